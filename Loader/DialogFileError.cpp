#include "Loader/DialogFileError.h"

#include "Core/GUIFactoryManager.h"

#include <cstring>

DialogFileError_t MakeUnknownElementError(const TextPosition_t& kPosition, const eC_Char* pcElement)
{
    return {kPosition, eC_String("unknown element ") + QuoteForMessage(pcElement),
            "one of " + CGUIFactoryManager::GetInstance().GetElementNames()};
}

DialogFileError_t MakeElementInsideError(const TextPosition_t& kPosition, const eC_Char* pcElement,
                                         const eC_Char* pcOuterElement)
{
    return {kPosition,
            eC_String("element ") + QuoteForMessage(pcElement) + " inside " + QuoteForMessage(pcOuterElement),
            "no elements inside an object that is not composite"};
}

DialogFileError_t MakeHandleError(const TextPosition_t& kPosition, const eC_Char* pcValue)
{
    const eC_Char* pcDigits = pcValue + (pcValue[0] == '-' ? 1 : 0);
    const eC_Bool bIsNumber = *pcDigits != '\0' && pcDigits[std::strspn(pcDigits, "0123456789")] == '\0';
    return {kPosition,
            eC_String(bIsNumber ? "number out of range " : "unknown handle ") + QuoteForMessage(pcValue),
            "the name of a handle or a number from -2147483648 to 2147483647"};
}

DialogFileError_t MakeUnknownAttributeError(const TextPosition_t& kPosition, const eC_Char* pcAttribute,
                                            const eC_Char* pcElement, const eC_String& kExpected)
{
    return {kPosition,
            eC_String("unknown attribute ") + QuoteForMessage(pcAttribute) + " of " +
                QuoteForMessage(pcElement),
            "one of id, " + kExpected};
}

DialogFileError_t MakeBadValueError(const TextPosition_t& kPosition, const eC_Char* pcAttribute,
                                    const eC_Char* pcValue, const eC_String& kExpected)
{
    return {kPosition,
            eC_String("bad value ") + QuoteForMessage(pcValue) + " of attribute " +
                QuoteForMessage(pcAttribute),
            kExpected};
}

eC_String FormatDialogFileError(const eC_String& kPath, const DialogFileError_t& kError)
{
    return kPath + ":" + eC_String(kError.m_kPosition.m_uiLine) + ":" +
           eC_String(kError.m_kPosition.m_uiColumn) + ": " + kError.m_kFound + "; expected " +
           kError.m_kExpected;
}

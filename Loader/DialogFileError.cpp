// SPDX-License-Identifier: MIT
#include "Loader/DialogFileError.h"

#include "Core/GUIFactoryManager.h"
#include "Loader/DialogElements.h"

#include <cstring>

namespace
{
/** @return the first zero byte or line break of a path from there on; a zero byte follows its end as well */
const eC_Char* FindBreak(const eC_Char* pcAt)
{
    while (*pcAt != '\0' && *pcAt != '\n' && *pcAt != '\r')
    {
        ++pcAt;
    }
    return pcAt;
}

eC_String EscapePath(const eC_String& kPath)
{
    eC_String kEscaped;
    const eC_Char* pcAt = kPath.GetText();
    const eC_Char* const pcEnd = pcAt + kPath.GetLength();
    while (pcAt != pcEnd)
    {
        const eC_Char* const pcBreak = FindBreak(pcAt);
        if (pcBreak != pcAt)
        {
            kEscaped += eC_String(pcAt, static_cast<eC_UInt>(pcBreak - pcAt));
            pcAt = pcBreak;
        }
        else
        {
            kEscaped += *pcAt == '\n' ? "\\n" : *pcAt == '\r' ? "\\r" : "\\0";
            ++pcAt;
        }
    }
    return kEscaped;
}
} // namespace

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

DialogFileError_t MakeTooDeepError(const TextPosition_t& kPosition)
{
    return {kPosition, "element nested too deeply",
            eC_String("at most ") + eC_String(static_cast<eC_UInt>(cuiMaxElementDepth)) + " levels"};
}

DialogFileError_t MakeNotMadeError(const TextPosition_t& kPosition, const eC_Char* pcElement)
{
    return {kPosition, eC_String("element ") + QuoteForMessage(pcElement) + " could not be made",
            "an object from the creator that is registered for it"};
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

DialogFileError_t MakeFileSizeError(std::size_t uiMaxSize)
{
    return {TextPosition_t(), "file too large",
            eC_String("at most ") + eC_String(static_cast<eC_UInt>(uiMaxSize)) + " bytes"};
}

eC_Bool IsPathOfOneLine(const eC_String& kPath)
{
    return FindBreak(kPath.GetText()) == kPath.GetText() + kPath.GetLength();
}

DialogFileError_t MakePathError()
{
    return {TextPosition_t(), "path with a zero byte or a line break", "a path of one line"};
}

eC_String FormatDialogFileError(const eC_String& kPath, const DialogFileError_t& kError)
{
    return EscapePath(kPath) + ":" + eC_String(kError.m_kPosition.m_uiLine) + ":" +
           eC_String(kError.m_kPosition.m_uiColumn) + ": " + kError.m_kFound + "; expected " +
           kError.m_kExpected;
}

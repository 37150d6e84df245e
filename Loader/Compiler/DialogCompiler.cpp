// SPDX-License-Identifier: MIT
#include "Loader/Compiler/DialogCompiler.h"

#include "Core/Control/GUIObject.h"
#include "Core/GUIFactoryManager.h"
#include "GUIConfig/GUIObjectHandleResource.h"
#include "Loader/Compiler/ConstantName.h"
#include "Loader/DialogElements.h"

#include <cstring>
#include <memory>

static_assert(cuiMaxNOFAttributes < cuiNoAttribute, "every attribute has a number of its own");

namespace
{
/** @return whether a C++ program can give a constant this name */
eC_Bool IsHandleName(const eC_Char* pcText)
{
    const eC_Bool bBeginsWithDigit = *pcText >= '0' && *pcText <= '9';
    const eC_Char* pcAt = pcText;
    while ((*pcAt >= '0' && *pcAt <= '9') || (*pcAt >= 'A' && *pcAt <= 'Z') ||
           (*pcAt >= 'a' && *pcAt <= 'z') || *pcAt == '_' || static_cast<unsigned char>(*pcAt) >= 0x80)
    {
        ++pcAt;
    }
    return pcAt != pcText && *pcAt == '\0' && !bBeginsWithDigit && !IsKeyword(pcText);
}

/** @return whether a text names a constant of the framework that is no handle */
eC_Bool IsNoHandle(const eC_Char* pcText)
{
    return std::strcmp(pcText, "OBJ_START_TAG") == 0 || std::strcmp(pcText, "NOF_OBJECTHANDLES") == 0 ||
           std::strcmp(pcText, "QUORVANE_INTERNAL_ID") == 0;
}

/** @return a handle that this program knows as a C++ expression: the name of the framework's constant, or a
 *          number
 */
std::string MakeHandleExpression(ObjectHandle_t eHandle)
{
    const eC_Char* pcName = GetObjectHandleName(eHandle);
    return pcName != nullptr ? pcName : "static_cast<ObjectHandle_t>(" + std::to_string(eHandle) + ")";
}

/** Compiles the elements of one document. */
class CElementCompiler
{
public:
    CElementCompiler(const CDialogDocument& kDocument, EHandleNames eHandleNames,
                     DialogFileError_t& kErrorOUT)
        : m_kDocument(kDocument), m_eHandleNames(eHandleNames), m_kErrorOUT(kErrorOUT)
    {
    }

    eC_Bool Compile(std::vector<CompiledElement_t>& kElementsOUT);

private:
    eC_Bool CompileElement(const DialogElement_t& kElement, const DialogAttribute_t* pkAttributes,
                           CompiledElement_t& kCompiled);
    eC_Bool CheckPlace(const DialogElement_t& kElement);
    eC_Bool CompileIdentifier(const DialogElement_t& kElement, const DialogAttribute_t* pkAttributes,
                              CompiledElement_t& kCompiled);
    eC_Bool CheckAttribute(const DialogAttribute_t& kAttribute, const DialogElement_t& kElement,
                           CGUIObject& kObject);
    eC_Bool Fail(const DialogFileError_t& kError);

    /** An element around the one that is being compiled. */
    struct Open_t
    {
        const eC_Char* m_pcName = nullptr;
        std::unique_ptr<CGUIObject>
            m_kObject; ///< null for a class of the application, which is not known here
    };

    const CDialogDocument& m_kDocument;
    const EHandleNames m_eHandleNames;
    DialogFileError_t& m_kErrorOUT;
    Open_t m_akOpen[cuiMaxElementDepth];
};

eC_Bool CElementCompiler::Compile(std::vector<CompiledElement_t>& kElementsOUT)
{
    const DialogElements_t kElements = m_kDocument.GetElements();
    const DialogAttribute_t* pkAttributes = kElements.m_pkAttributes;
    kElementsOUT.resize(kElements.m_uiNOFElements);
    for (eC_UInt uiElement = 0; uiElement < kElements.m_uiNOFElements; ++uiElement)
    {
        const DialogElement_t& kElement = kElements.m_pkElements[uiElement];
        if (!CompileElement(kElement, pkAttributes, kElementsOUT[uiElement]))
        {
            return false;
        }
        pkAttributes += kElement.m_uiNOFAttributes;
    }
    return true;
}

eC_Bool CElementCompiler::CompileElement(const DialogElement_t& kElement,
                                         const DialogAttribute_t* pkAttributes, CompiledElement_t& kCompiled)
{
    kCompiled.m_kName = kElement.m_pcName;
    kCompiled.m_uiLevel = kElement.m_uiLevel;
    kCompiled.m_kPosition = m_kDocument.LocateElement(kElement);
    kCompiled.m_kIDPosition = kCompiled.m_kPosition;
    if (!CheckPlace(kElement) || !CompileIdentifier(kElement, pkAttributes, kCompiled))
    {
        return false;
    }
    Open_t& kOpen = m_akOpen[kElement.m_uiLevel];
    kOpen.m_pcName = kElement.m_pcName;
    kOpen.m_kObject.reset(
        CGUIFactoryManager::GetInstance().CreateObject(kElement.m_pcName, nullptr, NO_HANDLE));
    for (unsigned char uiAttribute = 0; uiAttribute < kElement.m_uiNOFAttributes; ++uiAttribute)
    {
        const DialogAttribute_t& kAttribute = pkAttributes[uiAttribute];
        const eC_Bool bIsIdentifier = uiAttribute == kElement.m_uiNamedAttribute;
        if (!bIsIdentifier && kOpen.m_kObject && !CheckAttribute(kAttribute, kElement, *kOpen.m_kObject))
        {
            return false;
        }
        if (bIsIdentifier)
        {
            kCompiled.m_kIDPosition = m_kDocument.LocateValue(kAttribute);
        }
        if (!bIsIdentifier || kCompiled.m_uiNamedAttribute != cuiNoAttribute)
        {
            kCompiled.m_kAttributes.push_back({kAttribute.m_pcName, kAttribute.m_pcValue,
                                               m_kDocument.LocateName(kAttribute),
                                               m_kDocument.LocateValue(kAttribute)});
        }
    }
    return true;
}

eC_Bool CElementCompiler::CheckPlace(const DialogElement_t& kElement)
{
    if (kElement.m_uiLevel == 0)
    {
        return true;
    }
    const Open_t& kOuter = m_akOpen[kElement.m_uiLevel - 1];
    return !kOuter.m_kObject || kOuter.m_kObject->IsCompositeObject() ||
           Fail(MakeElementInsideError(m_kDocument.LocateElement(kElement), kElement.m_pcName,
                                       kOuter.m_pcName));
}

eC_Bool CElementCompiler::CompileIdentifier(const DialogElement_t& kElement,
                                            const DialogAttribute_t* pkAttributes,
                                            CompiledElement_t& kCompiled)
{
    kCompiled.m_kID = MakeHandleExpression(NO_HANDLE);
    kCompiled.m_uiNamedAttribute = cuiNoAttribute;
    if (kElement.m_uiNamedAttribute == cuiNoAttribute)
    {
        return true;
    }
    const DialogAttribute_t& kAttribute = pkAttributes[kElement.m_uiNamedAttribute];
    ObjectHandle_t eID = NO_HANDLE;
    if (ParseObjectHandle(kAttribute.m_pcValue, eID))
    {
        kCompiled.m_kID = MakeHandleExpression(eID);
    }
    else if (!IsHandleName(kAttribute.m_pcValue) || IsNoHandle(kAttribute.m_pcValue))
    {
        return Fail(MakeHandleError(m_kDocument.LocateValue(kAttribute), kAttribute.m_pcValue));
    }
    else if (m_eHandleNames == HANDLES_WHEN_COMPILED)
    {
        kCompiled.m_kID = kAttribute.m_pcValue;
    }
    else
    {
        kCompiled.m_uiNamedAttribute = kElement.m_uiNamedAttribute;
    }
    return true;
}

eC_Bool CElementCompiler::CheckAttribute(const DialogAttribute_t& kAttribute, const DialogElement_t& kElement,
                                         CGUIObject& kObject)
{
    eC_String kExpected;
    switch (kObject.SetAttribute(kAttribute.m_pcName, kAttribute.m_pcValue, kExpected))
    {
    case ATTRIBUTE_SET:
        break;
    case ATTRIBUTE_UNKNOWN:
        return Fail(MakeUnknownAttributeError(m_kDocument.LocateName(kAttribute), kAttribute.m_pcName,
                                              kElement.m_pcName, kExpected));
    case ATTRIBUTE_BAD_VALUE:
        return Fail(MakeBadValueError(m_kDocument.LocateValue(kAttribute), kAttribute.m_pcName,
                                      kAttribute.m_pcValue, kExpected));
    }
    return true;
}

eC_Bool CElementCompiler::Fail(const DialogFileError_t& kError)
{
    m_kErrorOUT = kError;
    return false;
}

/** Writes positions one after the other. */
class CPositionWriter
{
public:
    void Write(const TextPosition_t& kPosition)
    {
        const eC_Bool bIsInSameLine = kPosition.m_uiLine == m_kBefore.m_uiLine;
        WriteNumber(kPosition.m_uiLine - m_kBefore.m_uiLine);
        WriteNumber(kPosition.m_uiColumn - (bIsInSameLine ? m_kBefore.m_uiColumn : 0));
        m_kBefore = kPosition;
    }

    const std::vector<unsigned char>& GetBytes() const { return m_kBytes; }

private:
    void WriteNumber(eC_UInt uiNumber)
    {
        for (; uiNumber >= 0x80; uiNumber >>= 7)
        {
            m_kBytes.push_back(static_cast<unsigned char>(uiNumber | 0x80U));
        }
        m_kBytes.push_back(static_cast<unsigned char>(uiNumber));
    }

    std::vector<unsigned char> m_kBytes;
    TextPosition_t m_kBefore;
};
} // namespace

eC_Bool CompileDialog(const CDialogDocument& kDocument, EHandleNames eHandleNames,
                      CompiledDialog_t& kDialogOUT, DialogFileError_t& kErrorOUT)
{
    return CElementCompiler(kDocument, eHandleNames, kErrorOUT).Compile(kDialogOUT.m_kElements);
}

std::vector<unsigned char> EncodePositions(const CompiledDialog_t& kDialog)
{
    CPositionWriter kWriter;
    for (const CompiledElement_t& kElement : kDialog.m_kElements)
    {
        kWriter.Write(kElement.m_kPosition);
        for (const CompiledAttribute_t& kAttribute : kElement.m_kAttributes)
        {
            kWriter.Write(kAttribute.m_kNamePosition);
            kWriter.Write(kAttribute.m_kValuePosition);
        }
    }
    return kWriter.GetBytes();
}

#include "Loader/GUIDialogXMLReader.h"

#include "Core/Control/GUICompositeObject.h"
#include "Core/Control/GUIObject.h"
#include "Core/GUITrace.h"
#include "GUIConfig/GUIObjectHandleResource.h"
#include "Loader/DialogDocument.h"

#include <cstring>
#include <filesystem>
#include <memory>

namespace
{
constexpr const eC_Char* cpcIdentifierAttribute = "id";

/** Builds the objects of one document. */
class CTreeBuilder
{
public:
    CTreeBuilder(const CDialogDocument& kDocument, DialogFileError_t& kErrorOUT)
        : m_kDocument(kDocument), m_kErrorOUT(kErrorOUT)
    {
    }

    std::unique_ptr<CGUIObject> Build();

private:
    CGUIObject* MakeObject(const pugi::xml_node& kElement, CGUICompositeObject* pkParent);
    eC_Bool ReadIdentifier(const pugi::xml_node& kElement, ObjectHandle_t& eIDOUT);
    eC_Bool Complete(CGUIObject& kObject, const pugi::xml_node& kElement);
    eC_Bool SetAttributes(CGUIObject& kObject, const pugi::xml_node& kElement);
    eC_Bool MakeChildren(CGUIObject& kObject, const pugi::xml_node& kElement);

    const CDialogDocument& m_kDocument;
    DialogFileError_t& m_kErrorOUT;
};

std::unique_ptr<CGUIObject> CTreeBuilder::Build()
{
    const pugi::xml_node kTop = m_kDocument.GetTopElement();
    std::unique_ptr<CGUIObject> kObject(MakeObject(kTop, nullptr));
    if (kObject && !Complete(*kObject, kTop))
    {
        kObject.reset();
    }
    return kObject;
}

CGUIObject* CTreeBuilder::MakeObject(const pugi::xml_node& kElement, CGUICompositeObject* pkParent)
{
    ObjectHandle_t eID = NO_HANDLE;
    if (!ReadIdentifier(kElement, eID))
    {
        return nullptr;
    }
    const CGUIFactoryManager& kFactory = CGUIFactoryManager::GetInstance();
    CGUIObject* pkObject = kFactory.CreateObject(kElement.name(), pkParent, eID);
    if (pkObject == nullptr)
    {
        m_kErrorOUT = m_kDocument.MakeErrorAt(
            kElement, eC_String("unknown element ") + QuoteForMessage(kElement.name()),
            "one of " + kFactory.GetElementNames());
    }
    return pkObject;
}

eC_Bool CTreeBuilder::ReadIdentifier(const pugi::xml_node& kElement, ObjectHandle_t& eIDOUT)
{
    const pugi::xml_attribute kAttribute = kElement.attribute(cpcIdentifierAttribute);
    if (!kAttribute || ParseObjectHandle(kAttribute.value(), eIDOUT))
    {
        return true;
    }
    const eC_Char* pcDigits = kAttribute.value() + (kAttribute.value()[0] == '-' ? 1 : 0);
    const eC_Bool bIsNumber = *pcDigits != '\0' && pcDigits[std::strspn(pcDigits, "0123456789")] == '\0';
    m_kErrorOUT =
        m_kDocument.MakeErrorAtValue(kAttribute,
                                     eC_String(bIsNumber ? "number out of range " : "unknown handle ") +
                                         QuoteForMessage(kAttribute.value()),
                                     "the name of a handle or a number from -2147483648 to 2147483647");
    return false;
}

eC_Bool CTreeBuilder::Complete(CGUIObject& kObject, const pugi::xml_node& kElement)
{
    return SetAttributes(kObject, kElement) && MakeChildren(kObject, kElement);
}

eC_Bool CTreeBuilder::SetAttributes(CGUIObject& kObject, const pugi::xml_node& kElement)
{
    for (const pugi::xml_attribute& kAttribute : kElement.attributes())
    {
        if (std::strcmp(kAttribute.name(), cpcIdentifierAttribute) == 0)
        {
            continue;
        }
        eC_String kExpected;
        switch (kObject.SetAttribute(kAttribute.name(), kAttribute.value(), kExpected))
        {
        case ATTRIBUTE_SET:
            break;
        case ATTRIBUTE_UNKNOWN:
            m_kErrorOUT = m_kDocument.MakeErrorAtName(kAttribute,
                                                      eC_String("unknown attribute ") +
                                                          QuoteForMessage(kAttribute.name()) + " of " +
                                                          QuoteForMessage(kElement.name()),
                                                      "one of id, " + kExpected);
            return false;
        case ATTRIBUTE_BAD_VALUE:
            m_kErrorOUT =
                m_kDocument.MakeErrorAtValue(kAttribute,
                                             eC_String("bad value ") + QuoteForMessage(kAttribute.value()) +
                                                 " of attribute " + QuoteForMessage(kAttribute.name()),
                                             kExpected);
            return false;
        }
    }
    return true;
}

eC_Bool CTreeBuilder::MakeChildren(CGUIObject& kObject, const pugi::xml_node& kElement)
{
    for (const pugi::xml_node& kChild : kElement.children())
    {
        if (!kObject.IsCompositeObject())
        {
            m_kErrorOUT = m_kDocument.MakeErrorAt(kChild,
                                                  eC_String("element ") + QuoteForMessage(kChild.name()) +
                                                      " inside " + QuoteForMessage(kElement.name()),
                                                  "no elements inside an object that is not composite");
            return false;
        }
        CGUIObject* pkChild = MakeObject(kChild, static_cast<CGUICompositeObject*>(&kObject));
        if (pkChild == nullptr || !Complete(*pkChild, kChild))
        {
            return false;
        }
    }
    return true;
}

std::unique_ptr<CGUIObject> BuildFromFile(const std::filesystem::path& kFile, DialogFileError_t& kErrorOUT)
{
    CDialogDocument kDocument;
    return kDocument.Load(kFile, kErrorOUT) ? CTreeBuilder(kDocument, kErrorOUT).Build() : nullptr;
}
} // namespace

CGUIDialogXMLReader::CGUIDialogXMLReader(const eC_String& kBaseDirectory) : m_kBaseDirectory(kBaseDirectory)
{
}

CGUIObject* CGUIDialogXMLReader::Read(const eC_String& kPath)
{
    DialogFileError_t kError;
    const std::filesystem::path kBaseDirectory = m_kBaseDirectory.GetText();
    std::unique_ptr<CGUIObject> kObject = BuildFromFile(kBaseDirectory / kPath.GetText(), kError);
    if (!kObject)
    {
        GUILOG(GUI_TRACE_ERROR, "CGUIDialogXMLReader::Read: " + kPath + ":" +
                                    eC_String(kError.m_kPosition.m_uiLine) + ":" +
                                    eC_String(kError.m_kPosition.m_uiColumn) + ": " + kError.m_kFound +
                                    "; expected " + kError.m_kExpected + ".\n");
    }
    return kObject.release();
}

// SPDX-License-Identifier: MIT
/** @file
 *  Reads arbitrary bytes as a dialog description file. The reader either returns a tree or logs one error
 *  with a position inside the text. The tree is the same when the file is read again, and when the tree is
 *  written as a description and read back. pugixml reads the same elements and attributes from every accepted
 *  text.
 */

#include "Core/Control/GUICompositeObject.h"
#include "Core/Control/GUIObject.h"
#include "Core/GUIFactoryManager.h"
#include "Loader/DialogDocument.h"
#include "Loader/GUIDialogXMLReader.h"
#include "Scenario/EventLog.h"
#include "Scenario/TraceRecorder.h"
#include "TestSupport/ObjectCensus.h"
#include "Tests/Fuzz/FuzzTarget.h"

#include <pugixml.hpp>

#include <cerrno>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include <sys/mman.h>
#include <unistd.h>

namespace
{
/** An object class of an application, with a text and a number of one or two digits. */
class CFuzzLabel : public CGUIObject
{
public:
    using CGUIObject::CGUIObject;
    CFuzzLabel(CGUICompositeObject* pkParent, ObjectHandle_t eID) : CGUIObject(pkParent, eID)
    {
        ms_kLabels.push_back(this);
    }
    ~CFuzzLabel() override;

    EAttributeResult SetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                  eC_String& kExpectedOUT) override;

    /** @return the object as a label, or null */
    static const CFuzzLabel* Find(const CGUIObject& kObject);

    const std::string& GetText() const { return m_kText; }
    const std::string& GetWidth() const { return m_kWidth; }

private:
    static std::vector<const CFuzzLabel*> ms_kLabels;

    std::string m_kText;
    std::string m_kWidth;
};

std::vector<const CFuzzLabel*> CFuzzLabel::ms_kLabels;

CFuzzLabel::~CFuzzLabel()
{
    std::vector<const CFuzzLabel*> kOthers;
    for (const CFuzzLabel* pkLabel : ms_kLabels)
    {
        if (pkLabel != this)
        {
            kOthers.push_back(pkLabel);
        }
    }
    ms_kLabels.swap(kOthers);
}

EAttributeResult CFuzzLabel::SetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                          eC_String& kExpectedOUT)
{
    const std::string kValue = pcValue;
    if (std::strcmp(pcName, "text") == 0)
    {
        m_kText = kValue;
        return ATTRIBUTE_SET;
    }
    if (std::strcmp(pcName, "width") == 0)
    {
        const bool bIsNumber = !kValue.empty() && kValue.size() <= 2 &&
                               kValue.find_first_not_of("0123456789") == std::string::npos;
        m_kWidth = bIsNumber ? kValue : m_kWidth;
        kExpectedOUT = "a number from 0 to 99";
        return bIsNumber ? ATTRIBUTE_SET : ATTRIBUTE_BAD_VALUE;
    }
    return CGUIObject::SetAttribute(pcName, pcValue, kExpectedOUT);
}

const CFuzzLabel* CFuzzLabel::Find(const CGUIObject& kObject)
{
    for (const CFuzzLabel* pkLabel : ms_kLabels)
    {
        if (pkLabel == &kObject)
        {
            return pkLabel;
        }
    }
    return nullptr;
}

/** A file in memory. */
class CMemoryFile
{
public:
    explicit CMemoryFile(const std::string& kBytes) : m_iFile(memfd_create("dialog", 0))
    {
        if (m_iFile < 0 ||
            write(m_iFile, kBytes.data(), kBytes.size()) != static_cast<ssize_t>(kBytes.size()))
        {
            Fail(std::string("the file cannot be made: ") + std::strerror(errno));
        }
    }
    CMemoryFile(const CMemoryFile&) = delete;
    CMemoryFile& operator=(const CMemoryFile&) = delete;
    ~CMemoryFile() { close(m_iFile); }

    std::string GetPath() const { return "/proc/self/fd/" + std::to_string(m_iFile); }

private:
    int m_iFile;
};

/** A factory with its own object classes, "Label", and "Nothing", whose creator returns null. */
class CFactory
{
public:
    CFactory()
    {
        CGUIFactoryManager& kFactory = CGUIFactoryManager::CreateInstance();
        kFactory.RegisterObjectClass<CFuzzLabel>("Label");
        kFactory.RegisterObjectClass(
            "Nothing", [](CGUICompositeObject*, ObjectHandle_t) -> CGUIObject* { return nullptr; });
    }
    CFactory(const CFactory&) = delete;
    CFactory& operator=(const CFactory&) = delete;
    ~CFactory() { CGUIFactoryManager::DestroyInstance(); }
};

/** The result of reading a file: a tree, printed as a description, or an error. */
struct Outcome_t
{
    std::string m_kTree;
    TextPosition_t m_kPosition;
    std::string m_kError; ///< the log entry after the position
};

// --- Trees as descriptions ----------------------------------------------------------------------------

std::string EscapeValue(const std::string& kValue)
{
    std::string kText;
    for (const char cByte : kValue)
    {
        const bool bNeedsNoReference =
            static_cast<unsigned char>(cByte) >= ' ' && std::strchr("<&\"", cByte) == nullptr;
        kText += bNeedsNoReference ? std::string(1, cByte) : "&#" + std::to_string(cByte) + ";";
    }
    return kText;
}

std::string WriteAttribute(const char* pcName, const std::string& kValue)
{
    return std::string(" ") + pcName + "=\"" + EscapeValue(kValue) + "\"";
}

std::string WriteElement(const CGUIObject& kObject)
{
    const CFuzzLabel* pkLabel = CFuzzLabel::Find(kObject);
    const std::string kClass = kObject.IsCompositeObject() ? "Composite"
                               : pkLabel != nullptr        ? "Label"
                                                           : "Object";
    std::string kText = "<" + kClass + WriteAttribute("id", std::to_string(kObject.GetID())) +
                        WriteAttribute("invisible", kObject.IsInvisible() ? "true" : "false") +
                        WriteAttribute("focusable", kObject.IsFocusable() ? "true" : "false");
    if (pkLabel != nullptr)
    {
        kText += WriteAttribute("text", pkLabel->GetText());
        kText += pkLabel->GetWidth().empty() ? "" : WriteAttribute("width", pkLabel->GetWidth());
    }
    kText += ">\n";
    if (kObject.IsCompositeObject())
    {
        for (const CGUIObject* pkChild = static_cast<const CGUICompositeObject&>(kObject).GetFirstChild();
             pkChild != nullptr; pkChild = pkChild->GetNextSibling())
        {
            kText += WriteElement(*pkChild);
        }
    }
    return kText + "</" + kClass + ">\n";
}

// --- Reading ------------------------------------------------------------------------------------------

/** Splits a log entry: "CGUIDialogXMLReader::Read: <path>:<line>:<column>: <error>\n". */
Outcome_t ReadLogEntry(const std::string& kMessage, const std::string& kPath)
{
    const std::string kBeginning = "CGUIDialogXMLReader::Read: " + kPath + ":";
    Outcome_t kOutcome;
    int iLength = 0;
    if (kMessage.compare(0, kBeginning.size(), kBeginning) != 0 ||
        std::sscanf(kMessage.c_str() + kBeginning.size(), "%u:%u: %n", &kOutcome.m_kPosition.m_uiLine,
                    &kOutcome.m_kPosition.m_uiColumn, &iLength) != 2 ||
        iLength == 0)
    {
        Fail("this entry names no place: " + kMessage);
    }
    kOutcome.m_kError = kMessage.substr(kBeginning.size() + static_cast<std::size_t>(iLength));
    return kOutcome;
}

Outcome_t Read(const std::string& kText)
{
    const CMemoryFile kFile(kText);
    CEventLog kEventLog;
    const CTraceRecorder kRecorder(kEventLog);
    CGUIDialogXMLReader kReader;
    const ObjectCensus_t kBefore = TakeObjectCensus();
    std::unique_ptr<CGUIObject> kObject(kReader.Read(kFile.GetPath().c_str()));

    const std::vector<TraceEntry_t>& kEntries = kRecorder.GetEntries();
    Outcome_t kOutcome;
    if (kObject)
    {
        kOutcome.m_kTree = WriteElement(*kObject);
    }
    else if (kEntries.size() == 1 && kEntries.front().m_kPrefix == "ERROR: ")
    {
        kOutcome = ReadLogEntry(kEntries.front().m_kMessage, kFile.GetPath());
    }
    if (kEntries.size() != (kObject ? 0U : 1U))
    {
        Fail(std::to_string(kEntries.size()) + " entries are logged");
    }
    kObject.reset();
    const std::string kLeft = CompareObjectCensus(kBefore, TakeObjectCensus());
    if (!kLeft.empty())
    {
        Fail("left behind:\n" + kLeft);
    }
    return kOutcome;
}

// --- Checks -------------------------------------------------------------------------------------------

/** @return the length of each line in characters; in malformed text, the number of bytes other than
 *         continuation bytes
 */
std::vector<std::size_t> MeasureLines(const std::string& kText)
{
    std::vector<std::size_t> kLengths(1, 0);
    const bool bHasMark = kText.compare(0, 3, "\xEF\xBB\xBF") == 0;
    for (std::size_t uiByte = bHasMark ? 3 : 0; uiByte < kText.size(); ++uiByte)
    {
        const char cByte = kText[uiByte];
        if (cByte == '\n' || cByte == '\r')
        {
            const bool bHasPartner = cByte == '\r' && uiByte + 1 < kText.size() && kText[uiByte + 1] == '\n';
            uiByte += bHasPartner ? 1 : 0;
            kLengths.push_back(0);
        }
        else if (static_cast<unsigned char>(cByte) < 0x80 || static_cast<unsigned char>(cByte) >= 0xC0)
        {
            ++kLengths.back();
        }
    }
    return kLengths;
}

/** A position between CR and LF is valid: it is one column after the end of the line. */
bool IsPlaceIn(const TextPosition_t& kPosition, const std::string& kText)
{
    const std::vector<std::size_t> kLengths = MeasureLines(kText);
    return kPosition.m_uiLine >= 1 && kPosition.m_uiLine <= kLengths.size() && kPosition.m_uiColumn >= 1 &&
           kPosition.m_uiColumn <= kLengths[kPosition.m_uiLine - 1] + 2;
}

void ExpectSame(const std::string& kWhat, const std::string& kFirst, const std::string& kSecond)
{
    if (kFirst != kSecond)
    {
        Fail(kWhat + ":\n" + kFirst + "\n" + kSecond);
    }
}

/** Describes the elements and attributes of a tree built by pugixml. */
class CTreeDescriber : public pugi::xml_tree_walker
{
public:
    bool for_each(pugi::xml_node& kNode) override
    {
        m_kDescription += std::to_string(depth()) + " " + kNode.name() + "\n";
        for (const pugi::xml_attribute& kAttribute : kNode.attributes())
        {
            m_kDescription += std::string(kAttribute.name()) + "=" + kAttribute.value() + "\n";
        }
        return true;
    }

    const std::string& GetDescription() const { return m_kDescription; }

private:
    std::string m_kDescription;
};

std::string ParseWithPugixml(const std::string& kText)
{
    pugi::xml_document kTree;
    constexpr unsigned int cuiOptions = pugi::parse_escapes | pugi::parse_wconv_attribute;
    if (!kTree.load_buffer(kText.data(), kText.size(), cuiOptions, pugi::encoding_utf8))
    {
        Fail("pugixml refuses the text");
    }
    CTreeDescriber kDescriber;
    kTree.traverse(kDescriber);
    return kDescriber.GetDescription();
}

std::string DescribeElements(const DialogElements_t& kElements)
{
    std::string kDescription;
    const DialogAttribute_t* pkAttribute = kElements.m_pkAttributes;
    for (eC_UInt uiElement = 0; uiElement < kElements.m_uiNOFElements; ++uiElement)
    {
        const DialogElement_t& kElement = kElements.m_pkElements[uiElement];
        kDescription += std::to_string(kElement.m_uiLevel) + " " + kElement.m_pcName + "\n";
        for (unsigned char uiNumber = 0; uiNumber < kElement.m_uiNOFAttributes; ++uiNumber, ++pkAttribute)
        {
            kDescription += std::string(pkAttribute->m_pcName) + "=" + pkAttribute->m_pcValue + "\n";
        }
    }
    return kDescription;
}

/** Checks that each position is where the text has the element, the name or the value. */
void CheckPlaces(const CDialogDocument& kDocument, const std::string& kText)
{
    const DialogElements_t kElements = kDocument.GetElements();
    const DialogAttribute_t* pkAttribute = kElements.m_pkAttributes;
    std::size_t uiAt = 0;
    TextPosition_t kAt;
    const auto ExpectAt = [&](const TextPosition_t& kPosition, const std::string& kExpected)
    {
        for (; kAt.m_uiLine != kPosition.m_uiLine || kAt.m_uiColumn != kPosition.m_uiColumn; ++uiAt)
        {
            if (uiAt == kText.size())
            {
                Fail("a place is not after the one before: " + kExpected);
            }
            AdvanceInText(kText, uiAt, uiAt + 1, kAt);
        }
        for (; uiAt < kText.size() && (kText[uiAt] & 0xC0) == 0x80; ++uiAt)
        {
        }
        uiAt += uiAt == 0 && kText.compare(0, 3, ckByteOrderMark) == 0 ? 3 : 0;
        if (kText.compare(uiAt, kExpected.size(), kExpected) != 0)
        {
            Fail("not at its place: " + kExpected);
        }
    };
    for (eC_UInt uiElement = 0; uiElement < kElements.m_uiNOFElements; ++uiElement)
    {
        const DialogElement_t& kElement = kElements.m_pkElements[uiElement];
        ExpectAt(kDocument.LocateElement(kElement), std::string("<") + kElement.m_pcName);
        for (unsigned char uiNumber = 0; uiNumber < kElement.m_uiNOFAttributes; ++uiNumber, ++pkAttribute)
        {
            ExpectAt(kDocument.LocateName(*pkAttribute), pkAttribute->m_pcName);
            const bool bIsPlain = kText.find_first_of("&\t\r\n") == std::string::npos;
            ExpectAt(kDocument.LocateValue(*pkAttribute), bIsPlain ? pkAttribute->m_pcValue : "");
        }
    }
}

/** @return what the log entry should say after the position; empty if the text is well-formed */
std::string Parse(const std::string& kText, TextPosition_t& kPositionOUT)
{
    CDialogDocument kDocument;
    DialogFileError_t kError;
    if (kDocument.Parse(kText, kError))
    {
        ExpectSame("pugixml reads something else", ParseWithPugixml(kText),
                   DescribeElements(kDocument.GetElements()));
        CheckPlaces(kDocument, kText);
        return "";
    }
    if (kError.m_kExpected == cpcExpectedWithoutExplanation)
    {
        Fail("an error is not explained");
    }
    kPositionOUT = kError.m_kPosition;
    return std::string(kError.m_kFound.GetText()) + "; expected " + kError.m_kExpected.GetText() + ".\n";
}

void CheckError(const Outcome_t& kOutcome, const std::string& kText)
{
    const std::string kPlace =
        std::to_string(kOutcome.m_kPosition.m_uiLine) + ":" + std::to_string(kOutcome.m_kPosition.m_uiColumn);
    if (!IsPlaceIn(kOutcome.m_kPosition, kText))
    {
        Fail("not in the text: " + kPlace + ": " + kOutcome.m_kError);
    }
    const std::size_t uiExpected = kOutcome.m_kError.find("; expected ");
    const bool bIsOneLine = kOutcome.m_kError.find_first_of("\n\r\t") == kOutcome.m_kError.size() - 1;
    if (uiExpected == std::string::npos || uiExpected == 0 || !bIsOneLine)
    {
        Fail("not one line about what is wrong and what was expected: " + kOutcome.m_kError);
    }

    TextPosition_t kPosition;
    const std::string kError = Parse(kText, kPosition);
    const bool bIsSame = kError == kOutcome.m_kError && kPosition.m_uiLine == kOutcome.m_kPosition.m_uiLine &&
                         kPosition.m_uiColumn == kOutcome.m_kPosition.m_uiColumn;
    if (!kError.empty() && !bIsSame)
    {
        Fail("the text is refused for one thing, the file for another:\n" + kError + kOutcome.m_kError);
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* pcBytes, std::size_t uiSize)
{
    const std::string kText(pcBytes, pcBytes + uiSize);
    const CFactory kFactory;
    const Outcome_t kFirst = Read(kText);
    const Outcome_t kSecond = Read(kText);
    ExpectSame("the second reading gives another tree", kFirst.m_kTree, kSecond.m_kTree);
    if (kFirst.m_kTree.empty())
    {
        CheckError(kFirst, kText);
        return 0;
    }
    TextPosition_t kPosition;
    ExpectSame("the text is refused, the file is not", "", Parse(kText, kPosition));
    ExpectSame("the tree, written and read back, is another one", kFirst.m_kTree,
               Read(kFirst.m_kTree).m_kTree);
    return 0;
}

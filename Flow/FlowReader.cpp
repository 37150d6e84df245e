// SPDX-License-Identifier: MIT
#include "Flow/FlowReader.h"

#include "Core/Control/GUIObject.h"
#include "Core/GUIFactoryManager.h"
#include "Flow/FlowContents.h"
#include "Flow/FlowHandles.h"
#include "Flow/FlowText.h"
#include "Loader/DialogTreeBuilder.h"
#include "Scenario/Names.h"
#include "Widgets/GUIWidgets.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <functional>
#include <set>

namespace
{
constexpr eC_UInt cuiMostSize = 32767;
constexpr eC_UInt cuiLongestTime = 0x7FFFFFFF;
constexpr eC_UInt cuiMostKeys = 1000;
constexpr eC_UInt cuiMostAmount = 1'000'000'000;

constexpr const eC_Char* cpcHandleExpected =
    "the name of a handle: letters, digits and underscores, no digit first";

std::string Quote(const std::string& kText)
{
    return QuoteForMessage(kText).GetText();
}

std::string Format(const std::string& kFile, const DialogFileError_t& kError)
{
    return FormatDialogFileError(kFile.c_str(), kError).GetText();
}

/** The factory with the classes of widgets, for as long as flows are read. */
class CWidgetFactory
{
public:
    CWidgetFactory() : m_bIsOwn(CGUIFactoryManager::ms_pInstance == nullptr)
    {
        RegisterGUIWidgets(m_bIsOwn ? CGUIFactoryManager::CreateInstance()
                                    : CGUIFactoryManager::GetInstance());
    }

    CWidgetFactory(const CWidgetFactory&) = delete;
    CWidgetFactory& operator=(const CWidgetFactory&) = delete;

    ~CWidgetFactory()
    {
        if (m_bIsOwn)
        {
            CGUIFactoryManager::DestroyInstance();
        }
    }

private:
    eC_Bool m_bIsOwn;
};

/** Reads one flow. */
class CFlowParser
{
public:
    CFlowParser(const std::string& kPath, CDialogDocument& kDocument, FlowModel_t& kFlow)
        : m_kPath(kPath), m_kDocument(kDocument), m_kFlow(kFlow)
    {
    }

    /** @throw FlowMistake_t */
    void Read(const std::shared_ptr<CDialogDocument>& pkDocument)
    {
        m_pkDocument = pkDocument;
        const CFlowElement kTop(m_kDocument, 0);
        if (!kTop.Is("Flow"))
        {
            kTop.Fail("element " + Quote(kTop.GetName()) + " at the top", "Flow");
        }
        ReadTop(kTop);
        const std::vector<CFlowElement> kElements = kTop.GetChildren();
        for (const CFlowElement& kElement : kElements)
        {
            ReadDeclaration(kElement);
        }
        OrderKeys();
        CheckScreens();
        for (const CFlowElement& kElement : kElements)
        {
            ReadStatement(kElement);
        }
        CheckWhole(kTop);
    }

private:
    using Handler_t = void (CFlowParser::*)(const CFlowElement&);

    // --- Names ----------------------------------------------------------------------------------------

    ObjectHandle_t NewHandle(const CFlowElement& kElement, const eC_Char* pcAttribute) const
    {
        const DialogAttribute_t& kName = kElement.Get(pcAttribute, cpcHandleExpected);
        if (!IsHandleName(kName.m_pcValue))
        {
            kElement.FailAt(kName, cpcHandleExpected);
        }
        const ObjectHandle_t eHandle = GetFlowHandle(kName.m_pcValue);
        if (eHandle == NO_HANDLE)
        {
            kElement.FailAt(kName, "at most " + std::to_string(cuiMostFlowHandles) + " names");
        }
        return eHandle;
    }

    /** Finds the dialog, popup or object that an attribute names. @param pcExpected what it is to be */
    ObjectHandle_t FindHandle(const CFlowElement& kElement, const eC_Char* pcAttribute,
                              const std::set<ObjectHandle_t>& kKnown, const eC_Char* pcExpected) const
    {
        const DialogAttribute_t& kName = kElement.Get(pcAttribute, pcExpected);
        ObjectHandle_t eHandle = NO_HANDLE;
        const eC_Bool bIsHandle = GetObjectHandleByName(kName.m_pcValue, eHandle);
        if (!bIsHandle || (kKnown.count(eHandle) == 0 && m_kHandles.count(eHandle) == 0))
        {
            kElement.FailAt(kName, pcExpected);
        }
        return eHandle;
    }

    ObjectHandle_t FindDialog(const CFlowElement& kElement, const eC_Char* pcAttribute) const
    {
        return FindHandle(kElement, pcAttribute, m_kDialogs, "the id of a DialogDefinition or a Handle");
    }

    ObjectHandle_t FindPopup(const CFlowElement& kElement) const
    {
        return FindHandle(kElement, "popup", m_kPopups, "the id of a PopupDefinition or a Handle");
    }

    ObjectHandle_t FindObject(const CFlowElement& kElement, const eC_Char* pcAttribute) const
    {
        return FindInScreens(kElement, pcAttribute, m_kObjects, "the id of an object in a dialog or popup");
    }

    /** Finds an object. Any name may be that of one in a dialog file that cannot be read. */
    ObjectHandle_t FindInScreens(const CFlowElement& kElement, const eC_Char* pcAttribute,
                                 const std::set<ObjectHandle_t>& kKnown, const eC_Char* pcExpected) const
    {
        return m_bAllScreensLoad ? FindHandle(kElement, pcAttribute, kKnown, pcExpected)
                                 : NewHandle(kElement, pcAttribute);
    }

    template <typename TItem>
    eC_UInt FindItem(const CFlowElement& kElement, const eC_Char* pcAttribute,
                     const std::vector<TItem>& kItems, const std::string& kExpected) const
    {
        const DialogAttribute_t& kName = kElement.Get(pcAttribute, kExpected.c_str());
        for (eC_UInt uiItem = 0; uiItem < kItems.size(); ++uiItem)
        {
            if (kItems[uiItem].m_kName == kName.m_pcValue)
            {
                return uiItem;
            }
        }
        kElement.FailAt(kName, kExpected);
    }

    /** Reads the name of something that is declared, which nothing else may have. */
    std::string NewName(const CFlowElement& kElement)
    {
        constexpr const eC_Char* cpcExpected = "a name of letters, digits, hyphens and underscores";
        const DialogAttribute_t& kName = kElement.Get("name", cpcExpected);
        std::string kWord = kName.m_pcValue;
        std::replace(kWord.begin(), kWord.end(), '-', '_');
        if (!IsHandleName(kWord))
        {
            kElement.FailAt(kName, cpcExpected);
        }
        Claim(kElement, kName);
        return kName.m_pcValue;
    }

    void Claim(const CFlowElement& kElement, const DialogAttribute_t& kName)
    {
        if (!m_kNames.insert(kName.m_pcValue).second)
        {
            kElement.FailAt(kName, 0, "second declaration of " + Quote(kName.m_pcValue),
                            "a name that nothing else has");
        }
    }

    template <typename TItem>
    void Add(const CFlowElement& kElement, std::vector<TItem>& kItems, const TItem& kItem)
    {
        if (kItems.size() == cuiMostFlowItems)
        {
            kElement.Fail("one more " + std::string(kElement.GetName()),
                          "at most " + std::to_string(cuiMostFlowItems) + " of them");
        }
        kItems.push_back(kItem);
    }

    // --- Declarations ---------------------------------------------------------------------------------

    void ReadTop(const CFlowElement& kTop)
    {
        kTop.Allow({"name", "width", "height", "home", "touch"});
        m_kFlow.m_kName = kTop.Get("name", "the name of the device").m_pcValue;
        m_kFlow.m_iWidth = static_cast<eC_Int>(kTop.GetNumber("width", 1, cuiMostSize, 40));
        m_kFlow.m_iHeight = static_cast<eC_Int>(kTop.GetNumber("height", 1, cuiMostSize, 14));
        m_kFlow.m_bHasTouch = kTop.GetFlag("touch", false);
    }

    void ReadDeclaration(const CFlowElement& kElement)
    {
        static const std::initializer_list<FlowWord_t<Handler_t>> kDeclarations = {
            {"Key", &CFlowParser::ReadKey},
            {"Signal", &CFlowParser::ReadKey},
            {"Flag", &CFlowParser::ReadFlag},
            {"Timer", &CFlowParser::ReadTimer},
            {"Text", &CFlowParser::ReadText},
            {"Handle", &CFlowParser::ReadHandle},
            {"DialogDefinition", &CFlowParser::ReadDialog},
            {"PopupDefinition", &CFlowParser::ReadPopup}};
        for (const FlowWord_t<Handler_t>& kDeclaration : kDeclarations)
        {
            if (kElement.Is(kDeclaration.m_pcText))
            {
                (this->*kDeclaration.m_tValue)(kElement);
            }
        }
    }

    void ReadKey(const CFlowElement& kElement)
    {
        FlowKey_t kKey;
        kKey.m_bIsSignal = kElement.Is("Signal");
        if (kKey.m_bIsSignal)
        {
            kElement.Allow({"name", "label"});
        }
        else
        {
            kElement.Allow({"name", "label", "keyboard", "input"});
        }
        kElement.AllowNoChildren();
        kKey.m_kName = NewName(kElement);
        kKey.m_kLabel = kElement.Find("label") != nullptr ? kElement.GetText("label") : kKey.m_kName;
        kKey.m_kKeyboard = kElement.GetText("keyboard");
        kKey.m_bIsInput = kElement.Find("input") != nullptr;
        kKey.m_eInput = kElement.GetWord<EGUIKey>("input",
                                                  {{"next", GUIKEY_NEXT},
                                                   {"previous", GUIKEY_PREVIOUS},
                                                   {"up", GUIKEY_UP},
                                                   {"down", GUIKEY_DOWN},
                                                   {"left", GUIKEY_LEFT},
                                                   {"right", GUIKEY_RIGHT},
                                                   {"activate", GUIKEY_ACTIVATE}},
                                                  GUIKEY_NEXT);
        kKey.m_kPosition = kElement.GetPosition();
        Add(kElement, m_kFlow.m_kKeys, kKey);
    }

    void ReadFlag(const CFlowElement& kElement)
    {
        kElement.Allow({"name", "value"});
        kElement.AllowNoChildren();
        FlowFlag_t kFlag;
        kFlag.m_kName = NewName(kElement);
        kFlag.m_bValue = kElement.GetFlag("value", false);
        Add(kElement, m_kFlow.m_kFlags, kFlag);
    }

    void ReadTimer(const CFlowElement& kElement)
    {
        kElement.Allow({"name", "time", "repeats", "starts"});
        kElement.AllowNoChildren();
        FlowTimer_t kTimer;
        kTimer.m_kName = NewName(kElement);
        kElement.Get("time", "milliseconds");
        kTimer.m_uiTime = kElement.GetNumber("time", 1, cuiLongestTime, 1);
        kTimer.m_bRepeats = kElement.GetFlag("repeats", false);
        kTimer.m_bStarts = kElement.GetFlag("starts", false);
        Add(kElement, m_kFlow.m_kTimers, kTimer);
    }

    void ReadText(const CFlowElement& kElement)
    {
        constexpr std::size_t cuiMostTexts = 10000;
        kElement.Allow({"key", "text"});
        kElement.AllowNoChildren();
        const FlowText_t kText = {kElement.Get("key", "the key of a text").m_pcValue,
                                  kElement.Get("text", "the text").m_pcValue};
        if (m_kFlow.m_kTexts.size() == cuiMostTexts)
        {
            kElement.Fail("one more Text", "at most " + std::to_string(cuiMostTexts) + " of them");
        }
        m_kFlow.m_kTexts.push_back(kText);
    }

    void ReadHandle(const CFlowElement& kElement)
    {
        kElement.Allow({"id"});
        kElement.AllowNoChildren();
        const ObjectHandle_t eHandle = NewHandle(kElement, "id");
        Claim(kElement, *kElement.Find("id"));
        m_kHandles.insert(eHandle);
    }

    void ReadDialog(const CFlowElement& kElement)
    {
        kElement.Allow({"id", "file"});
        FlowDialog_t kDialog;
        ReadScreen(kElement, kDialog);
        m_kDialogs.insert(kDialog.m_eID);
        m_kFlow.m_kDialogs.push_back(kDialog);
    }

    void ReadPopup(const CFlowElement& kElement)
    {
        kElement.Allow({"id", "file", "priority", "time", "delete-on-close"});
        FlowPopup_t kPopup;
        ReadScreen(kElement, kPopup);
        const DialogAttribute_t* pkPriority = kElement.Find("priority");
        if (pkPriority != nullptr && (!ParsePriority(pkPriority->m_pcValue, kPopup.m_ePriority) ||
                                      kPopup.m_ePriority < CGUIDialogManager::PRIO_LOWEST ||
                                      kPopup.m_ePriority > CGUIDialogManager::PRIO_HIGHEST))
        {
            kElement.FailAt(*pkPriority, "a number from 1 to 9, or PRIO_LOWEST to PRIO_HIGHEST");
        }
        kPopup.m_uiTime = kElement.GetNumber("time", 0, cuiLongestTime, 0);
        kPopup.m_bDeleteOnClose = kElement.GetFlag("delete-on-close", true);
        m_kPopups.insert(kPopup.m_eID);
        Add(kElement, m_kFlow.m_kPopups, kPopup);
    }

    void ReadScreen(const CFlowElement& kElement, FlowDialog_t& kDialog)
    {
        kDialog.m_eID = NewHandle(kElement, "id");
        kDialog.m_kName = kElement.GetText("id");
        Claim(kElement, *kElement.Find("id"));
        kDialog.m_kPosition = kElement.GetPosition();
        const std::vector<CFlowElement> kChildren = kElement.GetChildren();
        const eC_Bool bHasFile = kElement.Find("file") != nullptr;
        if (kChildren.size() != (bHasFile ? 0U : 1U))
        {
            kElement.Fail(std::to_string(kChildren.size()) + " elements inside " + Quote(kDialog.m_kName),
                          bHasFile ? "none, because the dialog has a file" : "one, or the attribute file");
        }
        if (bHasFile)
        {
            ReadScreenFile(kElement.GetText("file"), kDialog.m_kScreen);
        }
        else
        {
            TakeScreen(kChildren.front(), kDialog);
        }
    }

    void ReadScreenFile(const std::string& kFile, FlowScreen_t& kScreen)
    {
        const std::filesystem::path kPath = std::filesystem::path(m_kPath).parent_path() / kFile;
        kScreen.m_kPath = kFile;
        kScreen.m_kFile = kPath.string();
        kScreen.m_pkDocument = std::make_shared<CDialogDocument>();
        DialogFileError_t kError;
        if (!kScreen.m_pkDocument->Load(kPath, kError))
        {
            kScreen.m_kError = Format(kScreen.m_kFile, kError);
            m_bAllScreensLoad = false;
            return;
        }
        TakeElements(0, kScreen.m_pkDocument->GetElements().m_uiNOFElements, kScreen);
    }

    /** Takes a dialog that is part of the flow file. */
    void TakeScreen(const CFlowElement& kTop, FlowDialog_t& kDialog)
    {
        kDialog.m_kScreen.m_kPath = kDialog.m_kName;
        kDialog.m_kScreen.m_kFile = m_kPath;
        kDialog.m_kScreen.m_pkDocument = m_pkDocument;
        kDialog.m_kScreen.m_pkAttributes =
            m_kDocument.GetElements().m_pkAttributes + kTop.GetFirstAttribute();
        TakeElements(kTop.GetIndex(), kTop.GetEnd(), kDialog.m_kScreen);
    }

    void TakeElements(eC_UInt uiFirst, eC_UInt uiEnd, FlowScreen_t& kScreen)
    {
        const DialogElements_t kAll = kScreen.m_pkDocument->GetElements();
        if (kScreen.m_pkAttributes == nullptr)
        {
            kScreen.m_pkAttributes = kAll.m_pkAttributes;
        }
        const DialogAttribute_t* pkAttribute = kScreen.m_pkAttributes;
        kScreen.m_uiFirst = uiFirst;
        kScreen.m_kElements.assign(kAll.m_pkElements + uiFirst, kAll.m_pkElements + uiEnd);
        const unsigned char uiLevel = kScreen.m_kElements.front().m_uiLevel;
        for (DialogElement_t& kElement : kScreen.m_kElements)
        {
            kElement.m_uiLevel = static_cast<unsigned char>(kElement.m_uiLevel - uiLevel);
            if (kElement.m_uiNamedAttribute != cuiNoAttribute &&
                IsHandleName(pkAttribute[kElement.m_uiNamedAttribute].m_pcValue))
            {
                m_kObjects.insert(GetFlowHandle(pkAttribute[kElement.m_uiNamedAttribute].m_pcValue));
            }
            pkAttribute += kElement.m_uiNOFAttributes;
        }
    }

    /** Builds each dialog once. A mistake inside the flow file is one of the flow. */
    void CheckScreens()
    {
        const CWidgetFactory kFactory;
        const CFlowContents kContents(m_kFlow);
        for (FlowDialog_t& kDialog : m_kFlow.m_kDialogs)
        {
            CheckScreen(kDialog.m_kScreen);
        }
        for (FlowPopup_t& kPopup : m_kFlow.m_kPopups)
        {
            CheckScreen(kPopup.m_kScreen);
        }
    }

    void CheckScreen(FlowScreen_t& kScreen)
    {
        if (!kScreen.m_kError.empty())
        {
            return;
        }
        const DialogElements_t kElements = kScreen.GetElements();
        CDialogTreeBuilder kBuilder(kElements);
        if (kBuilder.Build() != nullptr)
        {
            return;
        }
        const DialogFileError_t kError = kBuilder.MakeError(Locate(kScreen, kBuilder));
        if (kScreen.m_pkDocument == m_pkDocument)
        {
            throw FlowMistake_t{kError};
        }
        kScreen.m_kError = Format(kScreen.m_kFile, kError);
    }

    static TextPosition_t Locate(const FlowScreen_t& kScreen, const CDialogTreeBuilder& kBuilder)
    {
        switch (kBuilder.GetPart())
        {
        case CDialogTreeBuilder::ATTRIBUTE_NAME:
            return kScreen.m_pkDocument->LocateName(*kBuilder.GetAttribute());
        case CDialogTreeBuilder::ATTRIBUTE_VALUE:
            return kScreen.m_pkDocument->LocateValue(*kBuilder.GetAttribute());
        case CDialogTreeBuilder::ELEMENT:
            break;
        }
        const auto uiElement = static_cast<std::size_t>(&kBuilder.GetElement() - kScreen.m_kElements.data());
        return kScreen.m_pkDocument->LocateElement(
            kScreen.m_pkDocument->GetElements().m_pkElements[kScreen.m_uiFirst + uiElement]);
    }

    /** Signals come after the keys, in front ends too. */
    void OrderKeys()
    {
        std::stable_partition(m_kFlow.m_kKeys.begin(), m_kFlow.m_kKeys.end(),
                              [](const FlowKey_t& kKey) { return !kKey.m_bIsSignal; });
    }

    // --- Statements -----------------------------------------------------------------------------------

    void ReadStatement(const CFlowElement& kElement)
    {
        static const std::initializer_list<FlowWord_t<Handler_t>> kStatements = {
            {"Start", &CFlowParser::ReadStart},
            {"On", &CFlowParser::ReadOn},
            {"At", &CFlowParser::ReadAt},
            {"Never", &CFlowParser::ReadNever},
            {"Always", &CFlowParser::ReadAlways},
            {"Within", &CFlowParser::ReadWithin},
            {"LeftAlone", &CFlowParser::ReadLeftAlone},
            {"Harmless", &CFlowParser::ReadHarmless},
            {"AtMost", &CFlowParser::ReadAtMost},
            {"Expect", &CFlowParser::ReadExpectation}};
        static const std::set<std::string> kDeclarations = {
            "Key", "Signal", "Flag", "Timer", "Handle", "Text", "DialogDefinition", "PopupDefinition"};
        for (const FlowWord_t<Handler_t>& kStatement : kStatements)
        {
            if (kElement.Is(kStatement.m_pcText))
            {
                (this->*kStatement.m_tValue)(kElement);
                return;
            }
        }
        if (kDeclarations.count(kElement.GetName()) == 0)
        {
            kElement.Fail("unknown element " + Quote(kElement.GetName()),
                          "one of Key, Signal, Flag, Timer, Handle, Text, DialogDefinition, PopupDefinition, "
                          "Start, On, At, Never, "
                          "Always, Within, LeftAlone, Harmless, AtMost, Expect");
        }
    }

    void ReadStart(const CFlowElement& kElement)
    {
        kElement.Allow({});
        FlowReaction_t kReaction;
        kReaction.m_eOccasion = FlowReaction_t::START;
        AddReaction(kElement, kReaction);
    }

    void ReadOn(const CFlowElement& kElement)
    {
        kElement.Allow({"button", "key", "signal", "timer", "when"});
        FlowReaction_t kReaction;
        eC_UInt uiOccasions = 0;
        for (const eC_Char* pcOccasion : {"button", "key", "signal", "timer"})
        {
            uiOccasions += kElement.Find(pcOccasion) != nullptr ? 1U : 0U;
        }
        if (uiOccasions != 1)
        {
            kElement.Fail("element 'On' with " + std::to_string(uiOccasions) + " occasions",
                          "one of button, key, signal, timer");
        }
        ReadOccasion(kElement, kReaction);
        kReaction.m_kWhen = ReadCondition(kElement, "when");
        AddReaction(kElement, kReaction);
    }

    void ReadOccasion(const CFlowElement& kElement, FlowReaction_t& kReaction)
    {
        if (kElement.Find("button") != nullptr)
        {
            kReaction.m_eOccasion = FlowReaction_t::BUTTON;
            kReaction.m_eButton = FindObject(kElement, "button");
        }
        else if (kElement.Find("timer") != nullptr)
        {
            kReaction.m_eOccasion = FlowReaction_t::TIMER;
            kReaction.m_uiIndex = FindItem(kElement, "timer", m_kFlow.m_kTimers, "the name of a Timer");
        }
        else
        {
            kReaction.m_eOccasion = FlowReaction_t::KEY;
            kReaction.m_uiIndex = FindKey(kElement, kElement.Find("key") != nullptr ? "key" : "signal");
        }
    }

    /** Finds a key that the flow itself reacts to, or a signal. */
    eC_UInt FindKey(const CFlowElement& kElement, const eC_Char* pcAttribute) const
    {
        const eC_Bool bIsSignal = std::strcmp(pcAttribute, "signal") == 0;
        const std::string kExpected =
            bIsSignal ? "the name of a Signal" : "the name of a Key without the attribute input";
        const eC_UInt uiKey = FindItem(kElement, pcAttribute, m_kFlow.m_kKeys, kExpected);
        if (m_kFlow.m_kKeys[uiKey].m_bIsInput || m_kFlow.m_kKeys[uiKey].m_bIsSignal != bIsSignal)
        {
            kElement.FailAt(*kElement.Find(pcAttribute), kExpected);
        }
        return uiKey;
    }

    /** A point in time is a timer that runs from the beginning. */
    void ReadAt(const CFlowElement& kElement)
    {
        kElement.Allow({"time", "when"});
        FlowTimer_t kTimer;
        kElement.Get("time", "milliseconds after the start");
        kTimer.m_uiTime = kElement.GetNumber("time", 1, cuiLongestTime, 1);
        kTimer.m_kName = "at-" + std::to_string(kTimer.m_uiTime);
        kTimer.m_bStarts = true;
        for (const FlowTimer_t& kOther : m_kFlow.m_kTimers)
        {
            if (kOther.m_kName == kTimer.m_kName)
            {
                kElement.FailAt(*kElement.Find("time"), 0, "second point in time of " + kTimer.m_kName,
                                "one element At for each time");
            }
        }
        Add(kElement, m_kFlow.m_kTimers, kTimer);
        FlowReaction_t kReaction;
        kReaction.m_eOccasion = FlowReaction_t::TIMER;
        kReaction.m_uiIndex = static_cast<eC_UInt>(m_kFlow.m_kTimers.size() - 1);
        kReaction.m_kWhen = ReadCondition(kElement, "when");
        AddReaction(kElement, kReaction);
    }

    void AddReaction(const CFlowElement& kElement, FlowReaction_t& kReaction)
    {
        kReaction.m_kPosition = kElement.GetPosition();
        for (const CFlowElement& kAction : kElement.GetChildren())
        {
            kReaction.m_kActions.push_back(ReadAction(kAction));
        }
        m_kFlow.m_kReactions.push_back(kReaction);
    }

    FlowCondition_t ReadCondition(const CFlowElement& kElement, const eC_Char* pcAttribute) const
    {
        FlowCondition_t kCondition;
        const DialogAttribute_t* pkAttribute = kElement.Find(pcAttribute);
        const std::string kText = pkAttribute != nullptr ? pkAttribute->m_pcValue : "";
        std::size_t uiBegin = kText.find_first_not_of(' ');
        while (uiBegin != std::string::npos)
        {
            const std::size_t uiEnd = std::min(kText.find(' ', uiBegin), kText.size());
            FlowTerm_t kTerm{};
            const std::string kWord = kText.substr(uiBegin, uiEnd - uiBegin);
            kTerm.m_bIsNegated = kWord.front() == '!';
            if (!ReadTerm(kTerm.m_bIsNegated ? kWord.substr(1) : kWord, kTerm))
            {
                kElement.FailAt(
                    *pkAttribute, uiBegin, "unknown word " + Quote(kWord),
                    "the name of a Flag, the id of a dialog or popup, past: and the id of a dialog, "
                    "or ! and one of these");
            }
            kCondition.push_back(kTerm);
            uiBegin = kText.find_first_not_of(' ', uiEnd);
        }
        return kCondition;
    }

    eC_Bool ReadTerm(const std::string& kWord, FlowTerm_t& kTerm) const
    {
        for (eC_UInt uiFlag = 0; uiFlag < m_kFlow.m_kFlags.size(); ++uiFlag)
        {
            if (m_kFlow.m_kFlags[uiFlag].m_kName == kWord)
            {
                kTerm.m_eKind = FlowTerm_t::FLAG;
                kTerm.m_uiFlag = uiFlag;
                return true;
            }
        }
        const std::string kPast = "past:";
        const eC_Bool bIsPast = kWord.compare(0, kPast.size(), kPast) == 0;
        const std::string kName = bIsPast ? kWord.substr(kPast.size()) : kWord;
        if (!GetObjectHandleByName(kName.c_str(), kTerm.m_eHandle))
        {
            return false;
        }
        if (bIsPast)
        {
            kTerm.m_eKind = FlowTerm_t::PAST;
            return m_kDialogs.count(kTerm.m_eHandle) != 0;
        }
        kTerm.m_eKind = m_kPopups.count(kTerm.m_eHandle) != 0 ? FlowTerm_t::POPUP : FlowTerm_t::DIALOG;
        return kTerm.m_eKind == FlowTerm_t::POPUP || m_kDialogs.count(kTerm.m_eHandle) != 0;
    }

    // --- Actions --------------------------------------------------------------------------------------

    FlowAction_t ReadAction(const CFlowElement& kElement) const
    {
        struct Rule_t
        {
            const eC_Char* m_pcName;
            EFlowAction m_eKind;
            std::initializer_list<const eC_Char*> m_kAttributes;
        };
        static const std::initializer_list<Rule_t> kRules = {
            {"create", FLOW_CREATE, {"dialog", "action", "when"}},
            {"back", FLOW_BACK, {"delete", "when"}},
            {"back-to", FLOW_BACK_TO, {"dialog", "delete", "stepwise", "when"}},
            {"clear", FLOW_CLEAR, {"keep", "delete", "current", "when"}},
            {"show-popup", FLOW_SHOW_POPUP, {"popup", "when"}},
            {"close-popup", FLOW_CLOSE_POPUP, {"popup", "when"}},
            {"focus", FLOW_FOCUS, {"object", "when"}},
            {"hide", FLOW_HIDE, {"object", "when"}},
            {"destroy", FLOW_DESTROY, {"object", "when"}},
            {"set", FLOW_SET, {"flag", "value", "when"}},
            {"start", FLOW_START, {"timer", "when"}},
            {"stop", FLOW_STOP, {"timer", "when"}}};
        std::string kNames;
        for (const Rule_t& kRule : kRules)
        {
            if (kElement.Is(kRule.m_pcName))
            {
                kElement.Allow(kRule.m_kAttributes);
                kElement.AllowNoChildren();
                FlowAction_t kAction;
                kAction.m_eKind = kRule.m_eKind;
                kAction.m_kWhen = ReadCondition(kElement, "when");
                kAction.m_kPosition = kElement.GetPosition();
                ReadArguments(kElement, kAction);
                return kAction;
            }
            kNames += (kNames.empty() ? "one of " : ", ") + std::string(kRule.m_pcName);
        }
        kElement.Fail("unknown action " + Quote(kElement.GetName()), kNames);
    }

    void ReadArguments(const CFlowElement& kElement, FlowAction_t& kAction) const
    {
        kAction.m_bDelete = kElement.GetFlag("delete", true);
        kAction.m_bStepwise = kElement.GetFlag("stepwise", false);
        kAction.m_bCurrent = kElement.GetFlag("current", true);
        kAction.m_uiKeep = kElement.GetNumber("keep", 0, cuiLongestTime, 0);
        switch (kAction.m_eKind)
        {
        case FLOW_CREATE:
            kAction.m_eTarget = FindDialog(kElement, "dialog");
            kAction.m_eOldDialogAction = ReadOldDialogAction(kElement);
            break;
        case FLOW_BACK_TO:
            kAction.m_eTarget = FindDialog(kElement, "dialog");
            break;
        case FLOW_SHOW_POPUP:
        case FLOW_CLOSE_POPUP:
            kAction.m_eTarget = FindPopup(kElement);
            break;
        default:
            ReadOtherArguments(kElement, kAction);
            break;
        }
    }

    void ReadOtherArguments(const CFlowElement& kElement, FlowAction_t& kAction) const
    {
        switch (kAction.m_eKind)
        {
        case FLOW_FOCUS:
        case FLOW_HIDE:
        case FLOW_DESTROY:
            kAction.m_eTarget = FindObjectOrScreen(kElement);
            break;
        case FLOW_SET:
            kAction.m_uiIndex = FindItem(kElement, "flag", m_kFlow.m_kFlags, "the name of a Flag");
            kAction.m_bToggle = kElement.GetText("value") == "toggle";
            kAction.m_bValue = !kAction.m_bToggle && ReadValue(kElement);
            break;
        case FLOW_START:
        case FLOW_STOP:
            kAction.m_uiIndex = FindItem(kElement, "timer", m_kFlow.m_kTimers, "the name of a Timer");
            break;
        default:
            break;
        }
    }

    static eC_Bool ReadValue(const CFlowElement& kElement)
    {
        return kElement.GetWord<eC_Bool>("value", {{"true", true}, {"false", false}, {"toggle", true}}, true);
    }

    static CGUIDialogManager::EOldDialogAction ReadOldDialogAction(const CFlowElement& kElement)
    {
        return kElement.GetWord<CGUIDialogManager::EOldDialogAction>(
            "action",
            {{"ODA_INVISIBLE", CGUIDialogManager::ODA_INVISIBLE},
             {"ODA_INVISIBLE_ALL", CGUIDialogManager::ODA_INVISIBLE_ALL},
             {"ODA_DELETE", CGUIDialogManager::ODA_DELETE},
             {"ODA_DELETE_ALL", CGUIDialogManager::ODA_DELETE_ALL},
             {"ODA_NOTHING", CGUIDialogManager::ODA_NOTHING}},
            CGUIDialogManager::ODA_INVISIBLE);
    }

    ObjectHandle_t FindObjectOrScreen(const CFlowElement& kElement) const
    {
        std::set<ObjectHandle_t> kKnown = m_kObjects;
        kKnown.insert(m_kDialogs.begin(), m_kDialogs.end());
        kKnown.insert(m_kPopups.begin(), m_kPopups.end());
        return FindInScreens(kElement, "object", kKnown, "the id of a dialog, a popup or an object in one");
    }

    // --- Claims ---------------------------------------------------------------------------------------

    FlowClaim_t ReadClaim(const CFlowElement& kElement, FlowClaim_t::EKind eKind) const
    {
        kElement.AllowNoChildren();
        FlowClaim_t kClaim;
        kClaim.m_eKind = eKind;
        kClaim.m_kWhen = ReadCondition(kElement, "reach");
        kClaim.m_kFrom = ReadCondition(kElement, "from");
        kClaim.m_kPosition = kElement.GetPosition();
        kClaim.m_kText = kElement.GetText("name");
        return kClaim;
    }

    void ReadNever(const CFlowElement& kElement)
    {
        kElement.Allow({"name", "when"});
        kElement.Get("when", "a condition that no state fulfils");
        FlowClaim_t kClaim = ReadClaim(kElement, FlowClaim_t::NEVER);
        kClaim.m_kWhen = ReadCondition(kElement, "when");
        AddClaim(kElement, kClaim, "never " + kElement.GetText("when"));
    }

    void ReadAlways(const CFlowElement& kElement)
    {
        kElement.Allow({"name", "from", "when"});
        kElement.Get("when", "a condition that every state fulfils");
        FlowClaim_t kClaim = ReadClaim(kElement, FlowClaim_t::ALWAYS);
        kClaim.m_kWhen = ReadCondition(kElement, "when");
        AddClaim(kElement, kClaim, "always " + kElement.GetText("when") + From(kElement));
    }

    void ReadWithin(const CFlowElement& kElement)
    {
        kElement.Allow({"name", "from", "reach", "keys"});
        kElement.Get("reach", "a condition to be reached");
        kElement.Get("keys", "a number of keys");
        FlowClaim_t kClaim = ReadClaim(kElement, FlowClaim_t::WITHIN);
        kClaim.m_uiKeys = kElement.GetNumber("keys", 0, cuiMostKeys, 0);
        AddClaim(kElement, kClaim,
                 kElement.GetText("reach") + " within " + kElement.GetText("keys") + " keys" +
                     From(kElement));
    }

    void ReadLeftAlone(const CFlowElement& kElement)
    {
        kElement.Allow({"name", "from", "reach"});
        kElement.Get("reach", "a condition that is fulfilled after all times have run out");
        AddClaim(kElement, ReadClaim(kElement, FlowClaim_t::LEFT_ALONE),
                 "left alone" + From(kElement) + ", " + kElement.GetText("reach"));
    }

    void ReadHarmless(const CFlowElement& kElement)
    {
        kElement.Allow({"name", "from", "key", "button"});
        FlowClaim_t kClaim = ReadClaim(kElement, FlowClaim_t::HARMLESS);
        const eC_Bool bHasButton = kElement.Find("button") != nullptr;
        if (bHasButton == (kElement.Find("key") != nullptr))
        {
            kElement.Fail("element 'Harmless' without a key", "either key or button");
        }
        if (bHasButton)
        {
            kClaim.m_eButton = FindObject(kElement, "button");
        }
        else
        {
            kClaim.m_uiKey = FindItem(kElement, "key", m_kFlow.m_kKeys, "the name of a Key");
        }
        AddClaim(kElement, kClaim,
                 kElement.GetText(bHasButton ? "button" : "key") + " twice is harmless" + From(kElement));
    }

    void ReadAtMost(const CFlowElement& kElement)
    {
        static const std::initializer_list<FlowWord_t<FlowClaim_t::EAmount>> kAmounts = {
            {"objects", FlowClaim_t::OBJECTS},
            {"bytes", FlowClaim_t::BYTES},
            {"entries", FlowClaim_t::ENTRIES},
            {"popups", FlowClaim_t::POPUPS}};
        kElement.Allow({"name", "objects", "bytes", "entries", "popups"});
        eC_Bool bHasLimit = false;
        for (const FlowWord_t<FlowClaim_t::EAmount>& kAmount : kAmounts)
        {
            if (kElement.Find(kAmount.m_pcText) != nullptr)
            {
                bHasLimit = true;
                FlowClaim_t kClaim = ReadClaim(kElement, FlowClaim_t::AT_MOST);
                kClaim.m_eAmount = kAmount.m_tValue;
                kClaim.m_uiMost = kElement.GetNumber(kAmount.m_pcText, 0, cuiMostAmount, 0);
                AddClaim(kElement, kClaim,
                         "at most " + std::to_string(kClaim.m_uiMost) + " " + kAmount.m_pcText);
            }
        }
        if (!bHasLimit)
        {
            kElement.Fail("element 'AtMost' without a limit", "objects, bytes, entries or popups");
        }
    }

    static std::string From(const CFlowElement& kElement)
    {
        return kElement.Find("from") != nullptr ? " from " + kElement.GetText("from") : "";
    }

    void AddClaim(const CFlowElement& kElement, FlowClaim_t kClaim, const std::string& kText)
    {
        kClaim.m_kText = kClaim.m_kText.empty() ? kText : kClaim.m_kText + " (" + kText + ")";
        Add(kElement, m_kFlow.m_kClaims, kClaim);
    }

    void ReadExpectation(const CFlowElement& kElement)
    {
        kElement.Allow({"property", "about", "reason"});
        kElement.AllowNoChildren();
        FlowExpectation_t kExpectation;
        kExpectation.m_kPosition = kElement.GetPosition();
        const DialogAttribute_t& kProperty = kElement.Get("property", "P1 to P12");
        eC_UInt uiNumber = 0;
        if (kProperty.m_pcValue[0] != 'P' || !ParseNumber(kProperty.m_pcValue + 1, 12, uiNumber) ||
            uiNumber == 0)
        {
            kElement.FailAt(kProperty, "P1 to P12");
        }
        kExpectation.m_kProperty = kProperty.m_pcValue;
        kExpectation.m_kAbout = kElement.GetText("about");
        kExpectation.m_kReason = kElement.Get("reason", "why the violation is right").m_pcValue;
        if (kExpectation.m_kReason.empty())
        {
            kElement.FailAt(*kElement.Find("reason"), "why the violation is right");
        }
        m_kFlow.m_kExpectations.push_back(kExpectation);
    }

    // --- The whole ------------------------------------------------------------------------------------

    void CheckWhole(const CFlowElement& kTop)
    {
        const eC_Bool bStarts = std::any_of(m_kFlow.m_kReactions.begin(), m_kFlow.m_kReactions.end(),
                                            [](const FlowReaction_t& kReaction)
                                            { return kReaction.m_eOccasion == FlowReaction_t::START; });
        if (!bStarts)
        {
            kTop.Fail("no element 'Start'", "one, with the first dialog");
        }
        if (kTop.Find("home") != nullptr)
        {
            m_kFlow.m_eHome = FindDialog(kTop, "home");
        }
    }

    const std::string& m_kPath;
    const CDialogDocument& m_kDocument;
    FlowModel_t& m_kFlow;
    std::shared_ptr<CDialogDocument> m_pkDocument;
    std::set<std::string> m_kNames;      ///< everything that is declared
    std::set<ObjectHandle_t> m_kHandles; ///< declared and not defined
    std::set<ObjectHandle_t> m_kDialogs;
    std::set<ObjectHandle_t> m_kPopups;
    std::set<ObjectHandle_t> m_kObjects; ///< in dialogs and popups
    eC_Bool m_bAllScreensLoad = true;
};

std::shared_ptr<const FlowModel_t> ReadDocument(const std::string& kPath,
                                                const std::shared_ptr<CDialogDocument>& pkDocument,
                                                std::string& kErrorOUT)
{
    auto pkFlow = std::make_shared<FlowModel_t>();
    pkFlow->m_kFile = kPath;
    try
    {
        CFlowParser(kPath, *pkDocument, *pkFlow).Read(pkDocument);
    }
    catch (const FlowMistake_t& kMistake)
    {
        kErrorOUT = Format(kPath, kMistake.m_kError);
        return nullptr;
    }
    return pkFlow;
}
} // namespace

DialogElements_t FlowScreen_t::GetElements() const
{
    return {m_kElements.data(), static_cast<eC_UInt>(m_kElements.size()), m_pkAttributes};
}

std::shared_ptr<const FlowModel_t> ReadFlow(const std::string& kPath, std::string& kErrorOUT)
{
    const auto pkDocument = std::make_shared<CDialogDocument>();
    DialogFileError_t kError;
    if (!pkDocument->Load(kPath, kError))
    {
        kErrorOUT = Format(kPath, kError);
        return nullptr;
    }
    return ReadDocument(kPath, pkDocument, kErrorOUT);
}

std::shared_ptr<const FlowModel_t> ParseFlow(const std::string& kPath, const std::string& kText,
                                             std::string& kErrorOUT)
{
    const auto pkDocument = std::make_shared<CDialogDocument>();
    DialogFileError_t kError;
    if (!pkDocument->Parse(kText, kError))
    {
        kErrorOUT = Format(kPath, kError);
        return nullptr;
    }
    return ReadDocument(kPath, pkDocument, kErrorOUT);
}

// SPDX-License-Identifier: MIT
#include "Inspection/HazardWatch.h"

#include "Core/Control/GUI.h"
#include "Core/GUIEventHandler.h"

#include <cstring>

namespace
{
struct HazardText_t
{
    const eC_Char* m_pcName;
    const eC_Char* m_pcSentence;
};

constexpr HazardText_t cakTexts[] = {
    {"same-identifier",
     "Two objects under the root have this identifier, and only the first one is found by it: "
     "give one of them another."},
    {"focusable-without-identifier",
     "A focusable object has no identifier, so the focus cannot come back to it "
     "after its dialog was deleted: give it one."},
    {"created-elsewhere",
     "What CreateDialogImpl returned is not under the root or has another identifier, so the "
     "manager will not find it again: attach it, and give it the identifier asked for."},
    {"history-changed",
     "A hook changed the history on the way back, and what becomes of it is not specified: "
     "switch dialogs after the operation instead."},
    {"popup-without-parent",
     "A listed popup has no parent and belongs to nobody until it is shown: attach it to "
     "the root, or delete it when it is closed."},
    {"no-focus",
     "Nobody has the focus, so keys go nowhere: the current dialog has no object that is focusable "
     "and visible, or it was taken from one."},
    {"going-back-in-circles",
     "A stepwise go-back has come back to an equal state and will not end: a hook brings "
     "back what it leaves, or a dialog on the way cannot be made again."},
    {"never-registered",
     "A dialog or popup was asked for that no definition has: register it first, or correct "
     "the identifier."}};

const HazardText_t& GetTexts(EHazard eHazard)
{
    eC_UInt uiPlace = 0;
    while ((static_cast<eC_UInt>(eHazard) >> uiPlace) > 1)
    {
        ++uiPlace;
    }
    return cakTexts[uiPlace];
}

/** Visits only the requested parts. */
class CPartVisitor : public CStateVisitor
{
public:
    void VisitCurrent(const Access::DialogDescription_t&) override {}
    void VisitHistoryEntry(const Access::HistoryEntry_t&) override {}
    void VisitDialogDefinition(const Access::RegisteredDialog_t&) override {}
    void VisitPopupDefinition(const Access::RegisteredPopup_t&) override {}
    void VisitActivePopup(const ActivePopupState_t&) override {}
    void VisitRememberedFocus(const CGUIObject&) override {}
    void VisitDynamicIdentifier(ObjectHandle_t) override {}
    void VisitFocus(const CGUIObject&) override {}
    void VisitObject(const ObjectState_t&) override {}
    void VisitTimer(const TimerState_t&) override {}
};

/** @return the identifier of the nearest ancestor that has one */
ObjectHandle_t GetIDAbove(const CGUIObject& kObject)
{
    const CGUIObject* pkAbove = kObject.GetParent();
    while (pkAbove != nullptr && pkAbove->GetID() == NO_HANDLE)
    {
        pkAbove = pkAbove->GetParent();
    }
    return pkAbove != nullptr ? pkAbove->GetID() : NO_HANDLE;
}

/** Finds the first object for each kind of hazard. */
class CHazardFinder : public CPartVisitor
{
public:
    void VisitObject(const ObjectState_t& kObject) override
    {
        const CGUIObject& kVisited = *kObject.m_pkObject;
        if (m_pkSame == nullptr && kVisited.GetID() != NO_HANDLE &&
            CGUI::ms_pInstance->GetObjectByID(kVisited.GetID(), false) != &kVisited)
        {
            m_pkSame = &kVisited;
        }
        if (m_pkAnonymous == nullptr && kVisited.GetID() == NO_HANDLE && kVisited.IsFocusable())
        {
            m_pkAnonymous = &kVisited;
        }
    }

    void VisitActivePopup(const ActivePopupState_t& kPopup) override
    {
        if (m_pkOrphan == nullptr && kPopup.m_pkObject != nullptr &&
            kPopup.m_pkObject->GetParent() == nullptr)
        {
            m_pkOrphan = kPopup.m_pkObject;
        }
    }

    const CGUIObject* m_pkSame = nullptr;
    const CGUIObject* m_pkAnonymous = nullptr;
    const CGUIObject* m_pkOrphan = nullptr;
};

/** Finds out whether any definition has a given identifier. */
class CDefinitionFinder : public CPartVisitor
{
public:
    explicit CDefinitionFinder(ObjectHandle_t eID) : m_eID(eID) {}

    void VisitDialogDefinition(const Access::RegisteredDialog_t& kDefinition) override
    {
        m_bIsFound = m_bIsFound || kDefinition.m_eDialogID == m_eID;
    }

    ObjectHandle_t m_eID;
    eC_Bool m_bIsFound = false;
};

/** @return the rest of a text after its beginning, or null if it begins differently */
const eC_Char* GetBehind(const eC_Char* pcText, const eC_Char* pcBeginning)
{
    const std::size_t uiLength = std::strlen(pcBeginning);
    return std::strncmp(pcText, pcBeginning, uiLength) == 0 ? pcText + uiLength : nullptr;
}

/** Reads the identifier at the beginning of a text. @return the rest of the text */
const eC_Char* ReadID(const eC_Char* pcText, ObjectHandle_t& eIDOUT)
{
    const eC_Bool bIsNegative = *pcText == '-';
    pcText += bIsNegative ? 1 : 0;
    eC_UInt uiNumber = 0;
    for (; *pcText >= '0' && *pcText <= '9'; ++pcText)
    {
        uiNumber = uiNumber * 10 + static_cast<eC_UInt>(*pcText - '0');
    }
    eIDOUT = static_cast<ObjectHandle_t>(bIsNegative ? 0U - uiNumber : uiNumber);
    return pcText;
}

constexpr const eC_Char* cpcDialogFailed = "CGUIDialogManager::CreateDialog: Createing dialog with ID ";
constexpr const eC_Char* cpcPopupShown = "CGUIDialogManager::ShowPopup: Popup with id ";
constexpr const eC_Char* cpcNotRegistered = " is not registered";
} // namespace

const eC_Char* GetHazardName(EHazard eHazard)
{
    return GetTexts(eHazard).m_pcName;
}

const eC_Char* GetHazardSentence(EHazard eHazard)
{
    return GetTexts(eHazard).m_pcSentence;
}

CHazardWatch::CHazardWatch(const CGUIInspector& kInspector, CHazardListener& kListener)
    : m_kInspector(kInspector), m_kListener(kListener), m_pkNextSink(CGUITrace::GetInstance().GetSink())
{
    CGUITrace::GetInstance().SetSink(this);
}

CHazardWatch::~CHazardWatch()
{
    CGUITrace::GetInstance().SetSink(m_pkNextSink);
}

void CHazardWatch::Check()
{
    CHazardFinder kFinder;
    const eC_Bool bLooksAtTree =
        IsWatching(HAZARD_SAME_IDENTIFIER) || IsWatching(HAZARD_FOCUSABLE_WITHOUT_ID);
    const eC_UInt uiPopups = IsWatching(HAZARD_POPUP_WITHOUT_PARENT) ? STATE_ACTIVE_POPUPS : 0U;
    m_kInspector.Visit((bLooksAtTree ? STATE_TREE : 0U) | uiPopups, kFinder);
    CheckLasting(0, HAZARD_SAME_IDENTIFIER, kFinder.m_pkSame != nullptr,
                 kFinder.m_pkSame != nullptr ? kFinder.m_pkSame->GetID() : NO_HANDLE);
    CheckLasting(1, HAZARD_FOCUSABLE_WITHOUT_ID, kFinder.m_pkAnonymous != nullptr,
                 kFinder.m_pkAnonymous != nullptr ? GetIDAbove(*kFinder.m_pkAnonymous) : NO_HANDLE);
    CheckLasting(2, HAZARD_POPUP_WITHOUT_PARENT, kFinder.m_pkOrphan != nullptr,
                 kFinder.m_pkOrphan != nullptr ? kFinder.m_pkOrphan->GetID() : NO_HANDLE);
    const ObjectHandle_t eCurrent = CGUIInspector::GetCurrentDialog(m_kInspector.GetManager()).m_eDialogID;
    CheckLasting(3, HAZARD_NO_FOCUS,
                 eCurrent != NO_HANDLE && CGUIEventHandler::GetInstance().GetFocussedObject() == nullptr,
                 eCurrent);
}

void CHazardWatch::CheckLasting(eC_UInt uiPlace, EHazard eHazard, eC_Bool bIsThere, ObjectHandle_t eID)
{
    const eC_Bool bWasThere = (m_uiThere & eHazard) != 0 && m_aeIDs[uiPlace] == eID;
    const eC_Bool bIsSeen = bIsThere && IsWatching(eHazard);
    m_uiThere = bIsSeen ? m_uiThere | eHazard : m_uiThere & ~static_cast<eC_UInt>(eHazard);
    m_aeIDs[uiPlace] = eID;
    if (bIsSeen && !bWasThere)
    {
        Report(eHazard, eID);
    }
}

void CHazardWatch::Report(EHazard eHazard, ObjectHandle_t eID)
{
    if (IsWatching(eHazard))
    {
        m_kListener.OnHazard({eHazard, eID, GetHazardName(eHazard), GetHazardSentence(eHazard)});
    }
}

void CHazardWatch::Write(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
                         const eC_String& kLine)
{
    if (m_pkNextSink != nullptr)
    {
        m_pkNextSink->Write(kPrefix, kMessage, kFile, kLine);
    }
    // Only errors carry a line number.
    if (IsWatching(HAZARD_NEVER_REGISTERED) && !kLine.IsEmpty())
    {
        CheckMessage(kMessage.GetText());
    }
}

void CHazardWatch::CheckMessage(const eC_Char* pcMessage)
{
    ObjectHandle_t eID = NO_HANDLE;
    const eC_Char* const pcDialog = GetBehind(pcMessage, cpcDialogFailed);
    if (pcDialog != nullptr)
    {
        ReadID(pcDialog, eID);
        CDefinitionFinder kFinder(eID);
        m_kInspector.Visit(STATE_DIALOG_DEFINITIONS, kFinder);
        if (!kFinder.m_bIsFound)
        {
            Report(HAZARD_NEVER_REGISTERED, eID);
        }
        return;
    }
    const eC_Char* const pcPopup = GetBehind(pcMessage, cpcPopupShown);
    if (pcPopup != nullptr && GetBehind(ReadID(pcPopup, eID), cpcNotRegistered) != nullptr)
    {
        Report(HAZARD_NEVER_REGISTERED, eID);
    }
}

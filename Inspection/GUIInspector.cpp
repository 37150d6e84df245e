// SPDX-License-Identifier: MIT
#include "Inspection/GUIInspector.h"

#include "Core/Control/GUIObject.h"

namespace
{
/** Combines everything it visits into one number (FNV-1a, a word at a time, with the upper bits mixed in). */
class CFingerprint : public CStateVisitor
{
public:
    explicit CFingerprint(CGUIInspector::ETimes eTimes) : m_eTimes(eTimes) {}

    std::uint64_t GetNumber() const { return m_uiNumber; }

    void VisitCurrent(const Access::DialogDescription_t& kDialog) override
    {
        AddKind('c');
        AddDialog(kDialog);
    }

    void VisitHistoryEntry(const Access::HistoryEntry_t& kEntry) override
    {
        AddKind('h');
        AddDialog(kEntry.m_Dialog);
        Add(kEntry.m_eAction);
        AddHandle(kEntry.m_eFocussedObject);
    }

    void VisitDialogDefinition(const Access::RegisteredDialog_t& kDefinition) override
    {
        AddKind('d');
        AddHandle(kDefinition.m_eDialogID);
        AddText(kDefinition.m_kPath);
    }

    void VisitPopupDefinition(const Access::RegisteredPopup_t& kDefinition) override
    {
        AddKind('p');
        AddHandle(kDefinition.m_ePopupID);
        AddSettings(kDefinition.m_ePriority, kDefinition.m_uiDisplayTime, kDefinition.m_bDeleteOnClose);
        AddText(kDefinition.m_kPath);
    }

    void VisitActivePopup(const ActivePopupState_t& kPopup) override
    {
        AddKind('a');
        AddSettings(kPopup.m_ePriority, kPopup.m_uiDisplayTime, kPopup.m_bDeleteOnClose);
        Add(kPopup.m_bIsDetached ? 1 : 0);
        if (kPopup.m_pkObject != nullptr)
        {
            AddObject(*kPopup.m_pkObject);
        }
        if (kPopup.m_bHasTimer)
        {
            AddDue(kPopup.m_uiDue);
        }
    }

    void VisitRememberedFocus(const CGUIObject& kObject) override
    {
        AddKind('r');
        AddHandle(kObject.GetID());
    }

    void VisitDynamicIdentifier(ObjectHandle_t eID) override
    {
        AddKind('i');
        AddHandle(eID);
    }

    void VisitFocus(const CGUIObject& kObject) override
    {
        AddKind('f');
        AddHandle(kObject.GetID());
    }

    void VisitObject(const ObjectState_t& kObject) override
    {
        AddKind('t');
        Add(kObject.m_uiDepth * 2 + (kObject.m_bHasFocus ? 1 : 0));
        AddObject(*kObject.m_pkObject);
    }

    void VisitTimer(const TimerState_t& kTimer) override
    {
        AddKind('m');
        Add(kTimer.m_bIsPopup ? 1 : 0);
        AddHandle(kTimer.m_ePopupID);
        Add(kTimer.m_uiInterval);
        AddDue(kTimer.m_uiDue);
    }

private:
    void Add(eC_UInt uiWord)
    {
        constexpr std::uint64_t cuiPrime = 0x100000001B3U;
        m_uiNumber = (m_uiNumber ^ uiWord) * cuiPrime;
        m_uiNumber ^= m_uiNumber >> 32U;
    }

    void AddKind(eC_Char cKind) { Add(static_cast<eC_UInt>(cKind)); }
    void AddHandle(ObjectHandle_t eHandle) { Add(static_cast<eC_UInt>(eHandle)); }

    void AddText(const eC_String& kText)
    {
        for (const eC_Char* pcText = kText.GetText(); *pcText != '\0'; ++pcText)
        {
            Add(static_cast<unsigned char>(*pcText));
        }
    }

    void AddDialog(const Access::DialogDescription_t& kDialog)
    {
        AddHandle(kDialog.m_eDialogID);
        Add(kDialog.m_eOldDialogAction);
        Add((kDialog.m_bAllowObjectDeletion ? 2 : 0) + (kDialog.m_bRecoverFocus ? 1 : 0));
    }

    void AddSettings(eC_UInt uiPriority, eC_UInt uiDisplayTime, eC_Bool bDeleteOnClose)
    {
        Add(uiPriority * 2 + (bDeleteOnClose ? 1 : 0));
        Add(uiDisplayTime);
    }

    void AddObject(const CGUIObject& kObject)
    {
        AddHandle(kObject.GetID());
        Add((kObject.IsInvisible() ? 2 : 0) + (kObject.IsFocusable() ? 1 : 0));
    }

    /** The due time does not change as time passes. */
    void AddDue(eC_UInt uiDue)
    {
        AddKind('l');
        if (m_eTimes == CGUIInspector::TIMES_EXACT)
        {
            Add(uiDue);
        }
    }

    CGUIInspector::ETimes m_eTimes;
    std::uint64_t m_uiNumber = 0xCBF29CE484222325U;
};
} // namespace

eC_Bool CGUIInspector::GetHeap(HeapFigures_t& kFiguresOUT) const
{
    if (m_pfnHeap == nullptr)
    {
        return false;
    }
    kFiguresOUT = m_pfnHeap();
    return true;
}

std::uint64_t CGUIInspector::GetFingerprint(eC_UInt uiParts, ETimes eTimes) const
{
    CFingerprint kFingerprint(eTimes);
    Visit(uiParts, kFingerprint);
    return kFingerprint.GetNumber();
}

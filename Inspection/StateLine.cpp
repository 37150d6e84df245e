// SPDX-License-Identifier: MIT
#include "Inspection/StateLine.h"

#include "Core/Control/GUIObject.h"
#include "Scenario/Names.h"

namespace
{
constexpr eC_UInt cuiStateLineEnd = 16; ///< what follows the items

/** Writes items, starting with a given one, until the line is full. */
class CItemWriter : public CStateVisitor
{
public:
    CItemWriter(CInspectionLine& kLine, eC_UInt uiFrom) : m_kLine(kLine), m_uiFrom(uiFrom) {}

    StateLineResult_t GetResult() const { return {m_uiItems, m_bIsFull}; }

    void VisitCurrent(const Access::DialogDescription_t& kDialog) override
    {
        if (BeginItem())
        {
            WriteDialog(kDialog);
            EndItem();
        }
    }

    void VisitHistoryEntry(const Access::HistoryEntry_t& kEntry) override
    {
        if (BeginItem())
        {
            WriteDialog(kEntry.m_Dialog);
            WriteAction("left", kEntry.m_eAction);
            if (kEntry.m_eFocussedObject != NO_HANDLE)
            {
                m_kLine.Handle("focus", kEntry.m_eFocussedObject);
            }
            EndItem();
        }
    }

    void VisitDialogDefinition(const Access::RegisteredDialog_t& kDefinition) override
    {
        if (BeginItem())
        {
            m_kLine.HandleMembers(kDefinition.m_eDialogID);
            WritePath(kDefinition.m_kPath);
            EndItem();
        }
    }

    void VisitPopupDefinition(const Access::RegisteredPopup_t& kDefinition) override
    {
        if (BeginItem())
        {
            m_kLine.HandleMembers(kDefinition.m_ePopupID);
            WriteSettings(kDefinition.m_ePriority, kDefinition.m_uiDisplayTime, kDefinition.m_bDeleteOnClose);
            WritePath(kDefinition.m_kPath);
            EndItem();
        }
    }

    void VisitActivePopup(const ActivePopupState_t& kPopup) override
    {
        if (BeginItem())
        {
            if (kPopup.m_pkObject != nullptr)
            {
                m_kLine.HandleMembers(kPopup.m_pkObject->GetID());
                m_kLine.Flag("shown", !kPopup.m_pkObject->IsInvisible());
                m_kLine.Flag("detached", kPopup.m_bIsDetached);
            }
            m_kLine.Flag("gone", kPopup.m_pkObject == nullptr);
            WriteSettings(kPopup.m_ePriority, kPopup.m_uiDisplayTime, kPopup.m_bDeleteOnClose);
            if (kPopup.m_bHasTimer)
            {
                m_kLine.Number("left", kPopup.m_uiTimeLeft);
            }
            EndItem();
        }
    }

    void VisitRememberedFocus(const CGUIObject& kObject) override { WriteHandle(kObject.GetID()); }
    void VisitDynamicIdentifier(ObjectHandle_t eID) override { WriteHandle(eID); }
    void VisitFocus(const CGUIObject& kObject) override { WriteHandle(kObject.GetID()); }

    void VisitObject(const ObjectState_t& kObject) override
    {
        if (BeginItem())
        {
            m_kLine.Number("depth", kObject.m_uiDepth);
            m_kLine.HandleMembers(kObject.m_pkObject->GetID());
            WriteIfTrue("invisible", kObject.m_pkObject->IsInvisible());
            WriteIfTrue("focusable", kObject.m_pkObject->IsFocusable());
            WriteIfTrue("focussed", kObject.m_bHasFocus);
            EndItem();
        }
    }

    void VisitTimer(const TimerState_t& kTimer) override
    {
        if (BeginItem())
        {
            if (kTimer.m_bIsPopup)
            {
                m_kLine.Handle("popup", kTimer.m_ePopupID);
            }
            m_kLine.Number("interval", kTimer.m_uiInterval);
            m_kLine.Number("left", kTimer.m_uiTimeLeft);
            EndItem();
        }
    }

    void WriteHeap(const HeapFigures_t& kFigures)
    {
        if (BeginItem())
        {
            m_kLine.Number("used", kFigures.m_uiUsed);
            m_kLine.Number("most", kFigures.m_uiMost);
            m_kLine.Number("size", kFigures.m_uiSize);
            EndItem();
        }
    }

    void WriteHookTime(const HookTime_t& kTime)
    {
        if (BeginItem())
        {
            m_kLine.Text("hook", kTime.m_pcHook);
            m_kLine.HandleMembers(kTime.m_eID);
            m_kLine.Number("calls", kTime.m_uiCalls);
            m_kLine.Number("time", kTime.m_uiTotal);
            m_kLine.Number("most", kTime.m_uiLongest);
            EndItem();
        }
    }

private:
    /** @return true if the next item is to be written; EndItem must follow then */
    eC_Bool BeginItem()
    {
        if (m_bIsFull || m_uiItem++ < m_uiFrom)
        {
            return false;
        }
        m_uiBefore = m_kLine.GetLength();
        m_kLine.BeginObject();
        return true;
    }

    /** Ends the item, and removes it again if it does not fit. */
    void EndItem()
    {
        m_kLine.EndObject();
        m_bIsFull = m_kLine.IsTooLong();
        if (m_bIsFull)
        {
            m_kLine.ReturnTo(m_uiBefore);
        }
        m_uiItems += m_bIsFull ? 0U : 1U;
    }

    void WriteHandle(ObjectHandle_t eHandle)
    {
        if (BeginItem())
        {
            m_kLine.HandleMembers(eHandle);
            EndItem();
        }
    }

    void WriteDialog(const Access::DialogDescription_t& kDialog)
    {
        m_kLine.HandleMembers(kDialog.m_eDialogID);
        WriteAction("after", kDialog.m_eOldDialogAction);
        m_kLine.Flag("deletion", kDialog.m_bAllowObjectDeletion);
        m_kLine.Flag("recovery", kDialog.m_bRecoverFocus);
    }

    /** An action without a name is a number. */
    void WriteAction(const eC_Char* pcKey, CGUIDialogManager::EOldDialogAction eAction)
    {
        const eC_Char* const pcName = GetActionName(eAction);
        pcName != nullptr ? m_kLine.Text(pcKey, pcName) : m_kLine.Number(pcKey, eAction);
    }

    void WriteSettings(eC_UInt uiPriority, eC_UInt uiDisplayTime, eC_Bool bDeleteOnClose)
    {
        m_kLine.Number("priority", uiPriority);
        m_kLine.Number("time", uiDisplayTime);
        m_kLine.Flag("delete", bDeleteOnClose);
    }

    void WritePath(const eC_String& kPath) { m_kLine.Text("path", kPath.GetText()); }

    void WriteIfTrue(const eC_Char* pcKey, eC_Bool bFlag)
    {
        if (bFlag)
        {
            m_kLine.Flag(pcKey, true);
        }
    }

    CInspectionLine& m_kLine;
    eC_UInt m_uiFrom;
    eC_UInt m_uiItem = 0;   ///< items seen
    eC_UInt m_uiItems = 0;  ///< items written
    eC_UInt m_uiBefore = 0; ///< the length of the line before the item
    eC_Bool m_bIsFull = false;
};

constexpr eC_UInt cuiHooksPart = 10; ///< the number of the part with the times of the hooks

eC_UInt GetHeapFingerprint(const CGUIInspector& kInspector)
{
    // 0 without figures, and almost certainly different for others.
    HeapFigures_t kHeap;
    return kInspector.GetHeap(kHeap) ? kHeap.m_uiUsed * 31U + kHeap.m_uiMost + kHeap.m_uiSize : 0U;
}

eC_UInt GetHooksFingerprint(const CGUIInspector& kInspector)
{
    // Each call makes the sum greater, and another pair in the place of one has other figures.
    eC_UInt uiFingerprint = 0;
    HookTime_t kTime;
    for (eC_UInt uiPosition = 0; kInspector.GetHookTime(uiPosition, kTime); ++uiPosition)
    {
        uiFingerprint += kTime.m_uiCalls + kTime.m_uiTotal;
    }
    return uiFingerprint;
}
} // namespace

const InspectionPart_t cakInspectionParts[cuiInspectionParts] = {{"current", STATE_CURRENT},
                                                                 {"history", STATE_HISTORY},
                                                                 {"dialogs", STATE_DIALOG_DEFINITIONS},
                                                                 {"popups", STATE_POPUP_DEFINITIONS},
                                                                 {"active", STATE_ACTIVE_POPUPS},
                                                                 {"remembered", STATE_REMEMBERED_FOCUS},
                                                                 {"dynamic", STATE_DYNAMIC_IDENTIFIERS},
                                                                 {"focus", STATE_FOCUS},
                                                                 {"tree", STATE_TREE},
                                                                 {"timers", STATE_TIMERS},
                                                                 {"hooks", 0},
                                                                 {"heap", 0}};

std::uint64_t GetPartFingerprint(const CGUIInspector& kInspector, eC_UInt uiPart)
{
    if (cakInspectionParts[uiPart].m_uiParts != 0)
    {
        return kInspector.GetFingerprint(cakInspectionParts[uiPart].m_uiParts);
    }
    return uiPart == cuiHooksPart ? GetHooksFingerprint(kInspector) : GetHeapFingerprint(kInspector);
}

StateLineResult_t WriteStatePart(const CGUIInspector& kInspector, CInspectionLine& kLine, eC_UInt uiPart,
                                 eC_UInt uiFrom)
{
    const InspectionPart_t& kPart = cakInspectionParts[uiPart];
    kLine.Text("part", kPart.m_pcName);
    kLine.Number("from", uiFrom);
    kLine.BeginList("items");
    kLine.Reserve(cuiStateLineEnd);
    CItemWriter kWriter(kLine, uiFrom);
    HeapFigures_t kHeap;
    HookTime_t kTime;
    if (kPart.m_uiParts != 0)
    {
        kInspector.Visit(kPart.m_uiParts, kWriter);
    }
    else if (uiPart == cuiHooksPart)
    {
        for (eC_UInt uiPosition = 0; kInspector.GetHookTime(uiPosition, kTime); ++uiPosition)
        {
            kWriter.WriteHookTime(kTime);
        }
    }
    else if (kInspector.GetHeap(kHeap))
    {
        kWriter.WriteHeap(kHeap);
    }
    kLine.Reserve(0);
    kLine.EndList();
    kLine.Flag("more", kWriter.GetResult().m_bMore);
    return kWriter.GetResult();
}

// SPDX-License-Identifier: MIT
#include "Flow/Check/CheckedState.h"

#include "Core/Control/GUI.h"
#include "Core/GUIEventHandler.h"
#include "Scenario/Names.h"
#include "Scenario/StateReader.h"
#include "Widgets/GUIWidget.h"

#include <algorithm>
#include <cstring>

namespace
{
template <typename TValue>
void Append(std::string& kText, TValue tValue)
{
    eC_Char acBytes[sizeof tValue];
    std::memcpy(acBytes, &tValue, sizeof tValue);
    kText.append(acBytes, sizeof tValue);
}

/** Puts a state together. */
class CStateCollector : public CStateVisitor
{
public:
    explicit CStateCollector(CheckedState_t& kState) : m_kState(kState) {}

    void VisitCurrent(const Access::DialogDescription_t& kDialog) override
    {
        m_kState.m_eCurrent = kDialog.m_eDialogID;
        AppendDialog(m_kState.m_kControl, kDialog);
    }

    void VisitHistoryEntry(const Access::HistoryEntry_t& kEntry) override
    {
        std::string kText;
        AppendDialog(kText, kEntry.m_Dialog);
        Append(kText, kEntry.m_eAction);
        Append(kText, kEntry.m_eFocussedObject);
        m_kState.m_kHistory.push_back(kText);
        m_kState.m_kHistoryDialogs.push_back(kEntry.m_Dialog.m_eDialogID);
        m_kState.m_kHistoryFocus.push_back(kEntry.m_Dialog.m_bRecoverFocus ? kEntry.m_eFocussedObject
                                                                           : NO_HANDLE);
    }

    void VisitDialogDefinition(const Access::RegisteredDialog_t& /*kDefinition*/) override {}
    void VisitPopupDefinition(const Access::RegisteredPopup_t& /*kDefinition*/) override {}
    void VisitDynamicIdentifier(ObjectHandle_t /*eID*/) override {}
    void VisitTimer(const TimerState_t& /*kTimer*/) override {}

    void VisitActivePopup(const ActivePopupState_t& kPopup) override
    {
        std::string& kControl = m_kState.m_kControl;
        kControl += 'p';
        Append(kControl, kPopup.m_ePriority);
        Append(kControl, kPopup.m_uiDisplayTime);
        kControl += kPopup.m_bDeleteOnClose ? 'd' : '-';
        kControl += kPopup.m_bHasTimer ? 't' : '-';
        if (kPopup.m_pkObject == nullptr)
        {
            return;
        }
        const ObjectHandle_t eID = kPopup.m_pkObject->GetID();
        Append(kControl, eID);
        m_kPopups.push_back(kPopup.m_pkObject);
        m_kState.m_kListedPopups.push_back(eID);
        if (!kPopup.m_pkObject->IsInvisible())
        {
            m_kState.m_kShownPopups.push_back(eID);
        }
        if (kPopup.m_bHasTimer)
        {
            m_kState.m_kTimers.push_back({NameOfHandle(eID), kPopup.m_uiDisplayTime, kPopup.m_uiTimeLeft});
        }
    }

    void VisitRememberedFocus(const CGUIObject& kObject) override { m_pkRemembered = &kObject; }
    void VisitFocus(const CGUIObject& kObject) override { m_pkFocussed = &kObject; }

    void VisitObject(const ObjectState_t& kObject) override
    {
        const CGUIObject& kIt = *kObject.m_pkObject;
        ++m_kState.m_uiObjects;
        if (kObject.m_uiDepth == 0)
        {
            m_kWindows.emplace_back();
            m_kWindows.back().m_pkObject = &kIt;
        }
        std::string& kText = m_kWindows.back().m_kText;
        Append(kText, static_cast<unsigned char>(kObject.m_uiDepth));
        Append(kText, kIt.GetID());
        kText += static_cast<eC_Char>('0' + (kIt.IsInvisible() ? 1 : 0) + (kIt.IsFocusable() ? 2 : 0) +
                                      (&kIt == m_pkFocussed ? 4 : 0) + (&kIt == m_pkRemembered ? 8 : 0));
        const CGUIWidget* pkWidget = CGUIWidget::Find(&kIt);
        const eC_Int iValue = pkWidget != nullptr ? pkWidget->GetValue() : 0;
        if (iValue != 0)
        {
            Append(kText, iValue);
        }
    }

    /** Adds what could be added only after everything was visited. */
    void Finish()
    {
        std::reverse(m_kState.m_kHistory.begin(), m_kState.m_kHistory.end());
        std::reverse(m_kState.m_kHistoryDialogs.begin(), m_kState.m_kHistoryDialogs.end());
        std::reverse(m_kState.m_kHistoryFocus.begin(), m_kState.m_kHistoryFocus.end());
        m_kState.m_kOutcome = m_kState.m_kControl;
        AppendWindows();
        CheckFocus();
    }

private:
    struct Window_t
    {
        const CGUIObject* m_pkObject = nullptr;
        std::string m_kText;
    };

    static void AppendDialog(std::string& kText, const Access::DialogDescription_t& kDialog)
    {
        Append(kText, kDialog.m_eDialogID);
        Append(kText, kDialog.m_eOldDialogAction);
        kText += static_cast<eC_Char>('0' + (kDialog.m_bAllowObjectDeletion ? 1 : 0) +
                                      (kDialog.m_bRecoverFocus ? 2 : 0));
    }

    eC_Bool IsPopup(const CGUIObject* pkObject) const
    {
        return std::find(m_kPopups.begin(), m_kPopups.end(), pkObject) != m_kPopups.end();
    }

    /** The order of what is hidden does not matter: whatever is shown is raised. */
    void AppendWindows()
    {
        std::stable_sort(m_kWindows.begin(), m_kWindows.end(),
                         [](const Window_t& kOne, const Window_t& kOther)
                         {
                             const eC_Bool bIsOneHidden = kOne.m_pkObject->IsInvisible();
                             const eC_Bool bIsOtherHidden = kOther.m_pkObject->IsInvisible();
                             return bIsOneHidden != bIsOtherHidden
                                        ? bIsOneHidden
                                        : bIsOneHidden &&
                                              kOne.m_pkObject->GetID() < kOther.m_pkObject->GetID();
                         });
        for (const Window_t& kWindow : m_kWindows)
        {
            m_kState.m_kControl += 'w';
            m_kState.m_kControl += kWindow.m_kText;
            if (!kWindow.m_pkObject->IsInvisible() && !IsPopup(kWindow.m_pkObject))
            {
                m_kState.m_kVisible.push_back(kWindow.m_pkObject->GetID());
            }
        }
        std::sort(m_kState.m_kVisible.begin(), m_kState.m_kVisible.end());
    }

    void CheckFocus()
    {
        if (m_pkFocussed == nullptr)
        {
            const CGUIObject* pkWindow = CGUIWidgetInputWindow();
            m_kState.m_eFocusFault =
                pkWindow != nullptr && HasFocusable(*pkWindow) ? FOCUS_NOWHERE : FOCUS_RIGHT;
            return;
        }
        m_kState.m_eFocus = m_pkFocussed->GetID();
        const CGUIObject* pkWindow = m_pkFocussed;
        while (pkWindow->GetParent() != nullptr && pkWindow->GetParent()->GetParent() != nullptr)
        {
            pkWindow = pkWindow->GetParent();
        }
        const eC_Bool bIsDynamic =
            m_kState.m_eFocus >= static_cast<ObjectHandle_t>(cuiNOFObjectHandles - 8) ||
            m_kState.m_eFocus == NO_HANDLE;
        m_kState.m_eFocusFault = bIsDynamic                                       ? FOCUS_ANONYMOUS
                                 : CountObjects(*pkWindow, m_kState.m_eFocus) > 1 ? FOCUS_AMBIGUOUS
                                                                                  : FOCUS_RIGHT;
    }

    /** @return the topmost visible window */
    static const CGUIObject* CGUIWidgetInputWindow()
    {
        const CGUIObject* pkWindow = nullptr;
        for (const CGUIObject* pkChild = CGUI::GetInstance().GetFirstChild(); pkChild != nullptr;
             pkChild = pkChild->GetNextSibling())
        {
            pkWindow = pkChild->IsInvisible() ? pkWindow : pkChild;
        }
        return pkWindow;
    }

    static const CGUIObject* GetFirstChild(const CGUIObject& kObject)
    {
        return kObject.IsCompositeObject() ? static_cast<const CGUICompositeObject&>(kObject).GetFirstChild()
                                           : nullptr;
    }

    static eC_Bool HasFocusable(const CGUIObject& kObject)
    {
        if (kObject.IsInvisible())
        {
            return false;
        }
        eC_Bool bHasFocusable = kObject.IsFocusable();
        for (const CGUIObject* pkChild = GetFirstChild(kObject); pkChild != nullptr && !bHasFocusable;
             pkChild = pkChild->GetNextSibling())
        {
            bHasFocusable = HasFocusable(*pkChild);
        }
        return bHasFocusable;
    }

    static eC_UInt CountObjects(const CGUIObject& kObject, ObjectHandle_t eID)
    {
        eC_UInt uiObjects = kObject.GetID() == eID ? 1 : 0;
        for (const CGUIObject* pkChild = GetFirstChild(kObject); pkChild != nullptr;
             pkChild = pkChild->GetNextSibling())
        {
            uiObjects += CountObjects(*pkChild, eID);
        }
        return uiObjects;
    }

    CheckedState_t& m_kState;
    std::vector<const CGUIObject*> m_kPopups;
    std::vector<Window_t> m_kWindows;
    const CGUIObject* m_pkRemembered = nullptr;
    const CGUIObject* m_pkFocussed = nullptr;
};

void AddTouchable(const CGUIObject& kObject, std::vector<ObjectHandle_t>& kTouchable)
{
    if (kObject.IsInvisible())
    {
        return;
    }
    if (kObject.IsFocusable() && kObject.GetID() != NO_HANDLE)
    {
        kTouchable.push_back(kObject.GetID());
    }
    if (kObject.IsCompositeObject())
    {
        for (const CGUIObject* pkChild = static_cast<const CGUICompositeObject&>(kObject).GetFirstChild();
             pkChild != nullptr; pkChild = pkChild->GetNextSibling())
        {
            AddTouchable(*pkChild, kTouchable);
        }
    }
}
} // namespace

CheckedState_t ReadCheckedState(const CCheckSubject& kSubject)
{
    CheckedState_t kState;
    CStateCollector kCollector(kState);
    VisitState(kSubject.GetApplication().GetManager(), STATE_ALL & ~STATE_DEFINITIONS, kCollector);
    kCollector.Finish();
    for (const RunningTimer_t& kTimer : kSubject.GetTimers())
    {
        kState.m_kControl += "t" + kTimer.m_kName;
        kState.m_kTimers.push_back(kTimer);
    }
    kState.m_kControl += '=';
    kSubject.AppendState(kState.m_kControl);
    kSubject.AppendState(kState.m_kOutcome);
    if (kSubject.HasTouch())
    {
        const CGUIObject* pkModal = CGUIWidgetInput::GetModalWindow();
        AddTouchable(pkModal != nullptr ? *pkModal : CGUI::GetInstance(), kState.m_kTouchable);
    }
    return kState;
}

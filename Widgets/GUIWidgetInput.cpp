// SPDX-License-Identifier: MIT
#include "Widgets/GUIWidgetInput.h"

#include "Core/Control/GUI.h"
#include "Core/GUIEventHandler.h"
#include "Widgets/GUIWidgetLayout.h"

namespace
{
eC_Bool IsIn(const CGUIObject* pkObject, const CGUIObject* pkWindow)
{
    return pkObject == pkWindow || pkObject->IsDescendantOf(pkWindow);
}
} // namespace

void CGUIWidgetListener::OnChanged(CGUIWidget&) {}

eC_Bool CGUIWidgetInput::PressKey(EGUIKey eKey)
{
    CGUIObject* pkWindow = GetWindow();
    CGUIWidget* pkWidget = FindFocussed(pkWindow);
    const EGUIReaction eReaction = pkWidget != nullptr ? pkWidget->OnKey(eKey) : REACTION_NONE;
    if (eReaction != REACTION_NONE)
    {
        return Tell(*pkWidget, eReaction);
    }
    switch (eKey)
    {
    case GUIKEY_NEXT:
    case GUIKEY_DOWN:
    case GUIKEY_RIGHT:
        return CGUIEventHandler::GetInstance().FocusNext(pkWindow);
    case GUIKEY_PREVIOUS:
    case GUIKEY_UP:
    case GUIKEY_LEFT:
        return CGUIEventHandler::GetInstance().FocusPrevious(pkWindow);
    default:
        return false;
    }
}

eC_Bool CGUIWidgetInput::Type(const eC_Char* pcText)
{
    CGUIWidget* pkWidget = FindFocussed(GetWindow());
    return pkWidget != nullptr && Tell(*pkWidget, pkWidget->OnType(pcText));
}

eC_Bool CGUIWidgetInput::Touch(CGUIObject* pkObject)
{
    CGUIWidget* pkWidget = CGUIWidget::Find(pkObject);
    return pkWidget != nullptr && FocusForTouch(pkObject) &&
           Tell(*pkWidget, pkWidget->OnKey(GUIKEY_ACTIVATE));
}

eC_Bool CGUIWidgetInput::TouchAt(eC_Int iX, eC_Int iY, const CGUIWidgetLayout& kLayout)
{
    CGUIWidget* pkWidget = kLayout.FindAt(iX, iY);
    if (pkWidget == nullptr || !FocusForTouch(&pkWidget->GetObject()))
    {
        return false;
    }
    const GUIArea_t kArea = kLayout.GetArea(pkWidget->GetObject());
    Tell(*pkWidget, pkWidget->OnTouch(iX - kArea.m_iX, iY - kArea.m_iY, kArea));
    return true;
}

eC_Bool CGUIWidgetInput::ChangeValue(CGUIWidget& kWidget, eC_Int iValue)
{
    return kWidget.SetValue(iValue) && Tell(kWidget, REACTION_CHANGED);
}

eC_Bool CGUIWidgetInput::ChangeText(CGUIWidget& kWidget, const eC_Char* pcText)
{
    return kWidget.SetText(pcText) && Tell(kWidget, REACTION_CHANGED);
}

CGUIObject* CGUIWidgetInput::GetWindow()
{
    CGUIObject* pkModal = GetModalWindow();
    if (pkModal != nullptr)
    {
        return pkModal;
    }
    CGUI& kRoot = CGUI::GetInstance();
    CGUIObject* pkWindow = CGUIEventHandler::GetInstance().GetFocussedObject();
    if (pkWindow == nullptr)
    {
        for (CGUIObject* pkChild = kRoot.GetFirstChild(); pkChild != nullptr;
             pkChild = pkChild->GetNextSibling())
        {
            pkWindow = pkChild->IsInvisible() ? pkWindow : pkChild;
        }
        return pkWindow;
    }
    while (pkWindow->GetParent() != nullptr && pkWindow->GetParent() != &kRoot)
    {
        pkWindow = pkWindow->GetParent();
    }
    return pkWindow;
}

CGUIObject* CGUIWidgetInput::GetModalWindow()
{
    CGUIObject* pkModal = nullptr;
    for (CGUIObject* pkChild = CGUI::GetInstance().GetFirstChild(); pkChild != nullptr;
         pkChild = pkChild->GetNextSibling())
    {
        const CGUIWidget* pkWidget = pkChild->IsInvisible() ? nullptr : CGUIWidget::Find(pkChild);
        if (pkWidget != nullptr && pkWidget->IsModal())
        {
            pkModal = pkChild;
        }
    }
    return pkModal;
}

CGUIWidget* CGUIWidgetInput::FindFocussed(const CGUIObject* pkWindow)
{
    const CGUIObject* pkFocussed = CGUIEventHandler::GetInstance().GetFocussedObject();
    return pkFocussed != nullptr && IsIn(pkFocussed, pkWindow) ? CGUIWidget::Find(pkFocussed) : nullptr;
}

eC_Bool CGUIWidgetInput::FocusForTouch(CGUIObject* pkObject)
{
    const CGUIObject* pkModal = GetModalWindow();
    return (pkModal == nullptr || IsIn(pkObject, pkModal)) && pkObject->RequestFocus();
}

eC_Bool CGUIWidgetInput::Tell(CGUIWidget& kWidget, EGUIReaction eReaction)
{
    if (eReaction == REACTION_CHANGED)
    {
        m_kListener.OnChanged(kWidget);
    }
    else if (eReaction == REACTION_ACTIVATED)
    {
        m_kListener.OnActivated(kWidget);
    }
    return eReaction != REACTION_NONE;
}

// SPDX-License-Identifier: MIT
#include "Core/GUIEventHandler.h"

#include "Core/Control/GUIObject.h"

CGUIEventHandler CGUIEventHandler::ms_kInstance;

eC_Bool CGUIEventHandler::FocusNext(CGUIObject* pkTop)
{
    CGUIObject* pkFirst = nullptr;
    eC_Bool bIsAfterFocussed = false;
    for (CGUIObject* pkObject = pkTop; pkObject != nullptr; pkObject = GetNextVisible(pkObject, pkTop))
    {
        if (bIsAfterFocussed && pkObject->RequestFocus())
        {
            return true;
        }
        if (pkFirst == nullptr && pkObject->CanHaveFocus())
        {
            pkFirst = pkObject;
        }
        bIsAfterFocussed = bIsAfterFocussed || pkObject == m_pkFocussedObject;
    }
    if (pkFirst != nullptr)
    {
        pkFirst->RequestFocus();
    }
    return pkFirst != nullptr;
}

eC_Bool CGUIEventHandler::FocusPrevious(CGUIObject* pkTop)
{
    CGUIObject* pkPrevious = nullptr;
    for (CGUIObject* pkObject = pkTop; pkObject != nullptr; pkObject = GetNextVisible(pkObject, pkTop))
    {
        if (pkObject == m_pkFocussedObject && pkPrevious != nullptr)
        {
            break;
        }
        if (pkObject->CanHaveFocus())
        {
            pkPrevious = pkObject;
        }
    }
    if (pkPrevious != nullptr)
    {
        pkPrevious->RequestFocus();
    }
    return pkPrevious != nullptr;
}

CGUIObject* CGUIEventHandler::GetNextVisible(CGUIObject* pkObject, const CGUIObject* pkTop)
{
    return const_cast<CGUIObject*>(pkObject->GetNextInPreOrder(pkTop, true));
}

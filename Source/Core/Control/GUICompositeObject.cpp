// SPDX-License-Identifier: MIT
#include "Core/Control/GUICompositeObject.h"

CGUICompositeObject::CGUICompositeObject(CGUICompositeObject* pkParent, ObjectHandle_t eID)
    : CGUIObject(pkParent, eID), m_pkFirstChild(nullptr), m_pkLastChild(nullptr)
{
    m_bIsComposite = true;
}

CGUICompositeObject::~CGUICompositeObject()
{
    // Detaching first saves one step for each child: they are no longer under the root when destroyed.
    CGUIObject::SetParent(nullptr);
    DestroyChildren();
    // The destructor of a child may have attached this object again: its children must not be searched.
    m_bIsComposite = false;
}

void CGUICompositeObject::DrawOnTop(CGUIObject* pkChild)
{
    if (pkChild != nullptr && pkChild->m_pkParent == this && pkChild != m_pkLastChild)
    {
        Unlink(pkChild);
        Link(pkChild);
        if (m_bIsUnderRoot)
        {
            pkChild->m_uiRaised = CountRaise();
        }
    }
}

eC_Bool CGUICompositeObject::IsAncestorOf(const CGUIObject* pkObject) const
{
    return pkObject != nullptr && pkObject->IsDescendantOf(this);
}

eC_Bool CGUICompositeObject::FocusAny()
{
    if (RequestFocus())
    {
        return true;
    }
    // FocusAny may destroy objects, also the child itself and its siblings, which ends the loop.
    const eC_UInt uiDestroyed = ms_uiNOFDestroyedObjects;
    CGUIObject* pkChild = IsInvisible() ? nullptr : m_pkFirstChild;
    while (pkChild != nullptr && !pkChild->FocusAny())
    {
        pkChild = uiDestroyed == ms_uiNOFDestroyedObjects ? pkChild->GetNextSibling() : nullptr;
    }
    return pkChild != nullptr;
}

void CGUICompositeObject::AddObject(CGUIObject* pkObject)
{
    if (pkObject != nullptr)
    {
        pkObject->SetParent(this);
    }
}

void CGUICompositeObject::DestroyChildren()
{
    while (m_pkFirstChild != nullptr)
    {
        delete m_pkFirstChild;
    }
}

void CGUICompositeObject::Link(CGUIObject* pkChild)
{
    pkChild->m_pkParent = this;
    pkChild->m_pkPreviousSibling = m_pkLastChild;
    (m_pkLastChild != nullptr ? m_pkLastChild->m_pkNextSibling : m_pkFirstChild) = pkChild;
    m_pkLastChild = pkChild;
}

void CGUICompositeObject::Unlink(CGUIObject* pkChild)
{
    CGUIObject* pkBelow = pkChild->m_pkPreviousSibling;
    CGUIObject* pkAbove = pkChild->m_pkNextSibling;
    (pkBelow != nullptr ? pkBelow->m_pkNextSibling : m_pkFirstChild) = pkAbove;
    (pkAbove != nullptr ? pkAbove->m_pkPreviousSibling : m_pkLastChild) = pkBelow;
    pkChild->m_pkParent = nullptr;
    pkChild->m_pkPreviousSibling = nullptr;
    pkChild->m_pkNextSibling = nullptr;
}

// SPDX-License-Identifier: MIT
#include "Core/Control/GUIObject.h"

#include "Core/Control/GUI.h"
#include "Core/Control/GUICompositeObject.h"
#include "Core/GUIEventHandler.h"
#include "Core/Utils/SafeGUIObjectPtr.h"

#include <cassert>
#include <cstring>

eC_UInt CGUIObject::ms_uiRaises = 0;
eC_UInt CGUIObject::ms_uiNOFObjects = 0;
eC_UInt CGUIObject::ms_uiNOFDestroyedObjects = 0;
eC_UInt CGUIObject::ms_uiNOFIdentifiedObjects = 0;

namespace
{
constexpr eC_UInt cuiLastRaise = 0xFFFFFFFFU;

EAttributeResult ReadFlag(const eC_Char* pcValue, eC_Bool& bFlagOUT, eC_String& kExpectedOUT)
{
    bFlagOUT = std::strcmp(pcValue, "true") == 0;
    if (bFlagOUT || std::strcmp(pcValue, "false") == 0)
    {
        return ATTRIBUTE_SET;
    }
    kExpectedOUT = "true or false";
    return ATTRIBUTE_BAD_VALUE;
}
} // namespace

CGUIObject::CGUIObject(CGUICompositeObject* pkParent, ObjectHandle_t eID)
    : m_eID(NO_HANDLE),
      m_bIsInvisible(false),
      m_bIsFocusable(false),
      m_bIsUnderRoot(false),
      m_bIsComposite(false),
      m_pkNextInBucket(nullptr),
      m_pkNextWithSameID(nullptr),
      m_pkPreviousWithSameID(nullptr),
      m_pkParent(nullptr),
      m_pkNextSibling(nullptr),
      m_pkPreviousSibling(nullptr),
      m_uiRaised(0),
      m_uiFirstSince(0)
{
    ++ms_uiNOFObjects;
    // Most objects of a dialog are anonymous: a call saved for each.
    if (eID != NO_HANDLE)
    {
        SetID(eID);
    }
    if (pkParent != nullptr)
    {
        Attach(pkParent);
    }
}

CGUIObject::~CGUIObject()
{
    CGUIObject::SetParent(nullptr);
    if (m_eID != NO_HANDLE)
    {
        SetID(NO_HANDLE);
    }
    --ms_uiNOFObjects;
    ++ms_uiNOFDestroyedObjects;
    for (auto kIterator = CSafeGUIObjectPtr::ms_kSafeGUIObjectPointerList.GetBegin(); kIterator.IsValid();
         ++kIterator)
    {
        (*kIterator)->NotifyOfDestruction(this);
    }
}

void CGUIObject::SetID(const ObjectHandle_t& eID)
{
    const ObjectHandle_t eNewID = eID;
    if (eNewID == m_eID)
    {
        return;
    }
    if (m_eID != NO_HANDLE)
    {
        --ms_uiNOFIdentifiedObjects;
        if (m_bIsUnderRoot)
        {
            CGUI::ms_pInstance->m_kIndex.Leave(this);
        }
    }
    m_eID = eNewID;
    if (m_eID != NO_HANDLE)
    {
        ++ms_uiNOFIdentifiedObjects;
        if (CGUI::ms_pInstance != nullptr)
        {
            CGUI::ms_pInstance->m_kIndex.Reserve(ms_uiNOFIdentifiedObjects);
        }
        if (m_bIsUnderRoot)
        {
            CGUI::ms_pInstance->m_kIndex.Enter(this);
        }
    }
}

void CGUIObject::SetFocusable(const eC_Bool& bFocusable)
{
    m_bIsFocusable = bFocusable;
    if (!bFocusable)
    {
        ReleaseFocusUnlessAllowed();
    }
}

CGUIObject* CGUIObject::GetObjectByID(const ObjectHandle_t& eID, const eC_Bool& bOnlyVisible) const
{
    // Nearly all searches of the dialog manager are of this kind: going back makes one for each recorded
    // dialog. NO_HANDLE is in no index.
    if (this == CGUI::ms_pInstance && !bOnlyVisible)
    {
        return CGUI::ms_pInstance->m_kIndex.Find(eID);
    }
    if (eID == NO_HANDLE)
    {
        return nullptr;
    }
    return m_bIsUnderRoot ? CGUI::ms_pInstance->m_kIndex.FindBelow(*this, eID, bOnlyVisible)
                          : FindInPreOrder(eID, bOnlyVisible);
}

CGUIObject* CGUIObject::FindInPreOrder(ObjectHandle_t eID, eC_Bool bOnlyVisible) const
{
    const CGUIObject* pkObject = bOnlyVisible && m_bIsInvisible ? nullptr : this;
    while (pkObject != nullptr && pkObject->m_eID != eID)
    {
        pkObject = pkObject->GetNextInPreOrder(this, bOnlyVisible);
    }
    return const_cast<CGUIObject*>(pkObject);
}

eC_Bool CGUIObject::IsDescendantOf(const CGUIObject* pkObject) const
{
    const CGUIObject* pkAncestor = m_pkParent;
    while (pkAncestor != nullptr && pkAncestor != pkObject)
    {
        pkAncestor = pkAncestor->m_pkParent;
    }
    return pkAncestor != nullptr;
}

eC_Bool CGUIObject::RequestFocus()
{
    if (!CanHaveFocus())
    {
        return false;
    }
    CGUIEventHandler::GetInstance().m_pkFocussedObject = this;
    return true;
}

void CGUIObject::SetParent(CGUICompositeObject* pkParent)
{
    assert(pkParent == nullptr || (pkParent != this && !pkParent->IsDescendantOf(this)));
    if (pkParent != nullptr && pkParent == m_pkParent)
    {
        pkParent->DrawOnTop(this);
        return;
    }
    const eC_Bool bMayHaveHadFocus = m_bIsUnderRoot;
    LeaveRoot();
    if (m_pkParent != nullptr)
    {
        m_pkParent->Unlink(this);
    }
    if (pkParent != nullptr)
    {
        Attach(pkParent);
    }
    if (bMayHaveHadFocus)
    {
        ReleaseFocusUnlessAllowed();
    }
}

eC_Bool CGUIObject::FocusAny()
{
    return RequestFocus();
}

void CGUIObject::SetInvisible(const eC_Bool& bInvisible)
{
    m_bIsInvisible = bInvisible;
    if (bInvisible)
    {
        ReleaseFocusUnlessAllowed();
    }
}

EAttributeResult CGUIObject::SetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                          eC_String& kExpectedOUT)
{
    eC_Bool bFlag = false;
    EAttributeResult eResult = ATTRIBUTE_UNKNOWN;
    if (std::strcmp(pcName, "invisible") == 0)
    {
        eResult = ReadFlag(pcValue, bFlag, kExpectedOUT);
        if (eResult == ATTRIBUTE_SET)
        {
            SetInvisible(bFlag);
        }
    }
    else if (std::strcmp(pcName, "focusable") == 0)
    {
        eResult = ReadFlag(pcValue, bFlag, kExpectedOUT);
        if (eResult == ATTRIBUTE_SET)
        {
            SetFocusable(bFlag);
        }
    }
    else
    {
        kExpectedOUT = "invisible, focusable";
    }
    return eResult;
}

const CGUIObject* CGUIObject::GetNextInPreOrder(const CGUIObject* pkTop, eC_Bool bOnlyVisible) const
{
    const CGUIObject* pkNext =
        m_bIsComposite ? static_cast<const CGUICompositeObject*>(this)->GetFirstChild() : nullptr;
    const CGUIObject* pkWalked = this;
    while (pkNext == nullptr || (bOnlyVisible && pkNext->m_bIsInvisible))
    {
        if (pkNext != nullptr)
        {
            pkWalked = pkNext;
        }
        while (pkWalked != pkTop && pkWalked->m_pkNextSibling == nullptr)
        {
            pkWalked = pkWalked->m_pkParent;
        }
        if (pkWalked == pkTop)
        {
            return nullptr;
        }
        pkNext = pkWalked->m_pkNextSibling;
    }
    return pkNext;
}

eC_Bool CGUIObject::CanHaveFocus() const
{
    if (!m_bIsFocusable || !m_bIsUnderRoot || m_pkParent == nullptr)
    {
        return false;
    }
    const CGUIObject* pkObject = this;
    while (pkObject != nullptr && !pkObject->m_bIsInvisible)
    {
        pkObject = pkObject->m_pkParent;
    }
    return pkObject == nullptr;
}

void CGUIObject::ReleaseFocusUnlessAllowed()
{
    CGUIEventHandler& kEventHandler = CGUIEventHandler::GetInstance();
    if (kEventHandler.m_pkFocussedObject != nullptr && !kEventHandler.m_pkFocussedObject->CanHaveFocus())
    {
        kEventHandler.m_pkFocussedObject = nullptr;
    }
}

void CGUIObject::Attach(CGUICompositeObject* pkParent)
{
    pkParent->Link(this);
    if (!pkParent->m_bIsUnderRoot)
    {
        return;
    }
    CGUIObjectIndex& kIndex = CGUI::ms_pInstance->m_kIndex;
    for (CGUIObject* pkObject = this; pkObject != nullptr;
         pkObject = const_cast<CGUIObject*>(pkObject->GetNextInPreOrder(this, false)))
    {
        pkObject->m_bIsUnderRoot = true;
        pkObject->m_uiRaised = CountRaise();
        if (pkObject->m_eID != NO_HANDLE)
        {
            kIndex.Enter(pkObject);
        }
    }
}

void CGUIObject::LeaveRoot()
{
    if (!m_bIsUnderRoot)
    {
        return;
    }
    CGUIObjectIndex& kIndex = CGUI::ms_pInstance->m_kIndex;
    for (CGUIObject* pkObject = this; pkObject != nullptr;
         pkObject = const_cast<CGUIObject*>(pkObject->GetNextInPreOrder(this, false)))
    {
        pkObject->m_bIsUnderRoot = false;
        if (pkObject->m_eID != NO_HANDLE)
        {
            kIndex.Leave(pkObject);
        }
    }
}

// Returns the time of the next raise. After the last one the clock starts again: everything under the root is
// raised anew, from the bottom to the top, and no object is known to be the first with its identifier.
eC_UInt CGUIObject::CountRaise()
{
    if (ms_uiRaises == cuiLastRaise)
    {
        ms_uiRaises = 0;
        const CGUI& kRoot = CGUI::GetInstance();
        for (CGUIObject* pkObject = kRoot.GetFirstChild(); pkObject != nullptr;
             pkObject = const_cast<CGUIObject*>(pkObject->GetNextInPreOrder(&kRoot, false)))
        {
            pkObject->m_uiRaised = ++ms_uiRaises;
            pkObject->m_uiFirstSince = 0;
        }
    }
    return ++ms_uiRaises;
}

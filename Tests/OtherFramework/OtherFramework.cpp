// SPDX-License-Identifier: MIT
#include "Tests/OtherFramework/OtherFramework.h"

#include "Core/GUIAnimatable.h"
#include "Core/GUIEventHandler.h"
#include "Core/GUIFactoryManager.h"
#include "Core/GUITrace.h"
#include "Core/Utils/SafeGUIObjectPtr.h"

#include <algorithm>

CGUI* CGUI::ms_pInstance = nullptr;
CGUIFactoryManager* CGUIFactoryManager::ms_pInstance = nullptr;

// --- eC_String -------------------------------------------------------------------------------------

eC_String::eC_String(const eC_Char* pcText, eC_UInt uiLength, eStringFormat_t eFormat)
    : m_kText(uiLength == 0 ? std::string(pcText) : std::string(pcText, uiLength))
{
    static_cast<void>(eFormat);
}

eC_String eC_String::operator+(const eC_Char* pcText) const
{
    eC_String kResult(*this);
    kResult.m_kText += pcText;
    return kResult;
}

eC_String eC_String::operator+(const eC_String& kOther) const
{
    eC_String kResult(*this);
    kResult.m_kText += kOther.m_kText;
    return kResult;
}

eC_String operator+(const eC_Char* pcText, const eC_String& kString)
{
    return eC_String(pcText, 0, eC_String::eASCII) + kString;
}

// --- Timer, trace and factory ----------------------------------------------------------------------

eC_UInt CGUITimer::GetTime()
{
    COtherFramework::CountCall("GetTime");
    return COtherFramework::GetNextTime();
}

void CGUITimer::AddAnimationCallback(eC_UInt uiInterval, CGUIAnimatable* pkAnimatable)
{
    COtherFramework::CountCall("AddAnimationCallback");
    m_kIntervals[pkAnimatable] = uiInterval;
}

void CGUITimer::RemoveAnimationCallback(CGUIAnimatable* pkAnimatable)
{
    COtherFramework::CountCall("RemoveAnimationCallback");
    m_kIntervals.erase(pkAnimatable);
}

eC_Bool CGUITimer::IsAnimating(const CGUIAnimatable* pkAnimatable) const
{
    COtherFramework::CountCall("IsAnimating");
    return m_kIntervals.count(pkAnimatable) != 0;
}

CGUITrace& CGUITrace::GetInstance()
{
    static CGUITrace kTrace;
    return kTrace;
}

void CGUITrace::Log(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
                    const eC_String& kLine)
{
    COtherFramework::AddTrace(kPrefix, kMessage, kFile, kLine);
}

void CGUIFactoryManager::CreateInstance()
{
    static CGUIFactoryManager kFactory;
    ms_pInstance = &kFactory;
}

CGUIObject* CGUIFactoryManager::LoadDialogFromFile(const eC_String& kPath)
{
    COtherFramework::CountCall("LoadDialogFromFile");
    if (kPath != eC_String("dialog", 0, eC_String::eASCII))
    {
        return nullptr;
    }
    auto* pkDialog = new CGUICompositeObject;
    pkDialog->AddObject(new CGUIObject);
    return pkDialog;
}

// --- Objects ---------------------------------------------------------------------------------------

CGUIEventHandler& CGUIEventHandler::GetInstance()
{
    static CGUIEventHandler kEventHandler;
    return kEventHandler;
}

CGUIObject::~CGUIObject()
{
    CGUIObject::SetParent(nullptr);
    for (auto kIterator = CSafeGUIObjectPtr::ms_kSafeGUIObjectPointerList.GetBegin(); kIterator.IsValid();
         ++kIterator)
    {
        (*kIterator)->NotifyOfDestruction(this);
    }
}

CGUIObject* CGUIObject::GetObjectByID(const ObjectHandle_t& eID, const eC_Bool& bOnlyVisible) const
{
    if (eID == NO_HANDLE || (bOnlyVisible && m_bInvisible))
    {
        return nullptr;
    }
    if (m_eID == eID)
    {
        return const_cast<CGUIObject*>(this);
    }
    if (!IsCompositeObject())
    {
        return nullptr;
    }
    for (const CGUIObject* pkChild : static_cast<const CGUICompositeObject*>(this)->m_kChildren)
    {
        CGUIObject* pkFound = pkChild->GetObjectByID(eID, bOnlyVisible);
        if (pkFound != nullptr)
        {
            return pkFound;
        }
    }
    return nullptr;
}

eC_Bool CGUIObject::IsDescendantOf(const CGUIObject* pkObject) const
{
    return pkObject != nullptr && m_pkParent != nullptr &&
           (m_pkParent == pkObject || m_pkParent->IsDescendantOf(pkObject));
}

eC_Bool CGUIObject::RequestFocus()
{
    eC_Bool bHidden = IsCompositeObject();
    for (const CGUIObject* pkObject = this; pkObject != nullptr; pkObject = pkObject->m_pkParent)
    {
        bHidden = bHidden || pkObject->m_bInvisible;
    }
    if (bHidden)
    {
        return false;
    }
    CGUIEventHandler::GetInstance().m_pkFocussedObject = this;
    return true;
}

void CGUIObject::SetParent(CGUICompositeObject* pkParent)
{
    if (m_pkParent != nullptr)
    {
        auto& kSiblings = m_pkParent->m_kChildren;
        kSiblings.erase(std::find(kSiblings.begin(), kSiblings.end(), this));
    }
    m_pkParent = pkParent;
    if (m_pkParent != nullptr)
    {
        m_pkParent->m_kChildren.push_back(this);
    }
}

eC_Bool CGUIObject::FocusAny()
{
    return RequestFocus();
}

void CGUIObject::SetInvisible(const eC_Bool& bInvisible)
{
    m_bInvisible = bInvisible;
    CGUIEventHandler& kEventHandler = CGUIEventHandler::GetInstance();
    const CGUIObject* pkFocussed = kEventHandler.m_pkFocussedObject;
    if (m_bInvisible && pkFocussed != nullptr && (pkFocussed == this || pkFocussed->IsDescendantOf(this)))
    {
        kEventHandler.m_pkFocussedObject.Reset();
    }
}

CGUICompositeObject::~CGUICompositeObject()
{
    while (!m_kChildren.empty())
    {
        delete m_kChildren.front();
    }
}

CGUIObject* CGUICompositeObject::GetObjectByID(const ObjectHandle_t& eID, const eC_Bool& bOnlyVisible) const
{
    return CGUIObject::GetObjectByID(eID, bOnlyVisible);
}

void CGUICompositeObject::DrawOnTop(CGUIObject* pkChild)
{
    const auto kPlace = std::find(m_kChildren.begin(), m_kChildren.end(), pkChild);
    std::rotate(kPlace, kPlace + 1, m_kChildren.end());
}

eC_Bool CGUICompositeObject::IsAncestorOf(const CGUIObject* pkObject) const
{
    return pkObject != nullptr && pkObject->IsDescendantOf(this);
}

eC_Bool CGUICompositeObject::FocusAny()
{
    return std::any_of(m_kChildren.begin(), m_kChildren.end(),
                       [](CGUIObject* pkChild) { return pkChild->FocusAny(); });
}

void CGUICompositeObject::AddObject(CGUIObject* pkObject)
{
    pkObject->SetParent(this);
}

// --- The test's view -------------------------------------------------------------------------------

void COtherFramework::Reset()
{
    ms_kCalls.clear();
    ms_kTrace.clear();
    ms_uiTime = 0;
}

void COtherFramework::AddTrace(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
                               const eC_String& kLine)
{
    ms_kTrace.push_back(kPrefix.m_kText + "|" + kMessage.m_kText + "|" + kFile.m_kText + "|" + kLine.m_kText);
}

std::vector<std::string> COtherFramework::TakeTrace()
{
    std::vector<std::string> kTrace;
    kTrace.swap(ms_kTrace);
    return kTrace;
}

void COtherFramework::RunOnlyCallback()
{
    const CGUIAnimatable* pkAnimatable = CGUITimer::ms_kTimer.m_kIntervals.begin()->first;
    const_cast<CGUIAnimatable*>(pkAnimatable)->DoAnimate(1.0F);
}

std::vector<eC_UInt> COtherFramework::GetIntervals()
{
    std::vector<eC_UInt> kIntervals;
    for (const auto& kEntry : CGUITimer::ms_kTimer.m_kIntervals)
    {
        kIntervals.push_back(kEntry.second);
    }
    return kIntervals;
}

std::string COtherFramework::DescribeChildren(const CGUICompositeObject& kComposite)
{
    std::string kText;
    for (const CGUIObject* pkChild : kComposite.m_kChildren)
    {
        const std::string kID = std::to_string(pkChild->GetID());
        kText += (kText.empty() ? "" : " ") + (pkChild->IsInvisible() ? "(" + kID + ")" : kID);
    }
    return kText;
}

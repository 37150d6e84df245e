// SPDX-License-Identifier: MIT
#include "TestSupport/StructureChecker.h"

#include "Core/Control/GUI.h"
#include "Core/GUIEventHandler.h"
#include "Scenario/Names.h"
#include "TestSupport/TestAccess.h"

#include <algorithm>
#include <set>
#include <tuple>
#include <vector>

namespace
{
using Access = CGUITestAccess;

/** What one check has found so far, and the objects under the root. */
class CFindings
{
public:
    void Expect(bool bHolds, const std::string& kFault)
    {
        if (!bHolds)
        {
            m_kText += kFault + "\n";
        }
    }

    void Enter(const CGUIObject* pkObject)
    {
        m_kObjects.push_back(pkObject);
        m_kInTree.insert(pkObject);
    }

    /** @return the objects under the root in pre-order, the root first */
    const std::vector<const CGUIObject*>& GetObjects() const { return m_kObjects; }

    bool IsInTree(const CGUIObject* pkObject) const { return m_kInTree.count(pkObject) != 0; }

    const std::string& GetText() const { return m_kText; }

private:
    std::string m_kText;
    std::vector<const CGUIObject*> m_kObjects;
    std::set<const CGUIObject*> m_kInTree;
};

template <typename T>
void CheckList(const std::string& kName, const eC_TListDoubleLinked<T>& kList, CFindings& kFindings)
{
    const ListNode<T>* pkPrevious = nullptr;
    const ListNode<T>* pkNode = Access::GetFront(kList);
    eC_UInt uiCount = 0;
    // Stop at the list's own count, because a damaged chain may run in a circle.
    while (pkNode != nullptr && uiCount <= kList.GetQuantity())
    {
        kFindings.Expect(pkNode->m_pkPrevious == pkPrevious, kName + ": a node has a wrong predecessor");
        pkPrevious = pkNode;
        pkNode = Access::GetNext(*pkNode);
        ++uiCount;
    }
    kFindings.Expect(uiCount == kList.GetQuantity(),
                     kName + ": the chain has not as many nodes as the list counts");
    kFindings.Expect(Access::GetLast(kList) == pkPrevious,
                     kName + ": the last node is not the end of the chain");
    kFindings.Expect(Access::GetRegister(kList).empty(), kName + ": a safe iterator is left registered");
    kFindings.Expect(Access::HasRegister(kList) == (Access::GetRegisterSize(kList) != 0),
                     kName + ": the register has no memory for its capacity");
}

void CheckChildren(const CGUICompositeObject& kParent, CFindings& kFindings)
{
    const CGUIObject* pkPrevious = nullptr;
    for (const CGUIObject* pkChild = kParent.GetFirstChild(); pkChild != nullptr;
         pkChild = pkChild->GetNextSibling())
    {
        const std::string kName = "object " + NameOfObject(pkChild);
        if (kFindings.IsInTree(pkChild))
        {
            kFindings.Expect(false, kName + ": lies in the tree twice");
            return;
        }
        kFindings.Enter(pkChild);
        kFindings.Expect(pkChild->GetParent() == &kParent, kName + ": does not know its parent");
        kFindings.Expect(Access::GetPreviousSibling(*pkChild) == pkPrevious,
                         kName + ": does not know the sibling below");
        kFindings.Expect(Access::IsUnderRoot(*pkChild), kName + ": does not know that it is under the root");
        if (pkChild->IsCompositeObject())
        {
            CheckChildren(static_cast<const CGUICompositeObject&>(*pkChild), kFindings);
        }
        pkPrevious = pkChild;
    }
    kFindings.Expect(Access::GetLastChild(kParent) == pkPrevious,
                     "object " + NameOfObject(&kParent) + ": does not know its last child");
}

/** Visits all objects with the identifier of a head. @return how many there are */
std::size_t CheckObjectsWithSameID(const CGUIObject& kHead, CFindings& kFindings)
{
    const std::string kName = "index, identifier " + NameOfHandle(kHead.GetID());
    const CGUIObject* pkPrevious = nullptr;
    const CGUIObject* pkCandidate = &kHead;
    std::size_t uiCount = 0;
    while (pkCandidate != nullptr && uiCount <= kFindings.GetObjects().size())
    {
        if (!kFindings.IsInTree(pkCandidate))
        {
            kFindings.Expect(false, kName + ": an object is not under the root");
            return uiCount;
        }
        kFindings.Expect(pkCandidate->GetID() == kHead.GetID(), kName + ": an object has another identifier");
        kFindings.Expect(Access::GetPreviousWithSameID(*pkCandidate) == pkPrevious,
                         kName + ": an object has a wrong predecessor");
        kFindings.Expect(pkCandidate == &kHead || Access::GetNextInBucket(*pkCandidate) == nullptr,
                         kName + ": an object beside the head is in the bucket as well");
        pkPrevious = pkCandidate;
        pkCandidate = Access::GetNextWithSameID(*pkCandidate);
        ++uiCount;
    }
    return uiCount;
}

void CheckLookups(CGUI& kRoot, CFindings& kFindings)
{
    std::set<ObjectHandle_t> kSeen;
    for (const CGUIObject* pkObject : kFindings.GetObjects())
    {
        const ObjectHandle_t eID = pkObject->GetID();
        if (eID != NO_HANDLE && kSeen.insert(eID).second)
        {
            kFindings.Expect(kRoot.GetObjectByID(eID, false) == pkObject,
                             "index, identifier " + NameOfHandle(eID) + ": not the first object is found");
        }
    }
}

void CheckIndex(CGUI& kRoot, CFindings& kFindings)
{
    std::size_t uiEntries = 0;
    for (const CGUIObject* pkFirst : Access::GetBuckets(kRoot))
    {
        for (const CGUIObject* pkHead = pkFirst; pkHead != nullptr; pkHead = Access::GetNextInBucket(*pkHead))
        {
            if (!kFindings.IsInTree(pkHead) || uiEntries > kFindings.GetObjects().size())
            {
                kFindings.Expect(false, "index: an entry is not under the root, or stands there twice");
                return;
            }
            uiEntries += CheckObjectsWithSameID(*pkHead, kFindings);
        }
    }
    const auto uiIdentified =
        std::count_if(kFindings.GetObjects().begin(), kFindings.GetObjects().end(),
                      [](const CGUIObject* pkObject) { return pkObject->GetID() != NO_HANDLE; });
    kFindings.Expect(uiEntries == static_cast<std::size_t>(uiIdentified),
                     "index: has not as many entries as there are identified objects under the root");
    CheckLookups(kRoot, kFindings);
}

void CheckFocus(CFindings& kFindings)
{
    const CGUIObject* pkFocus = CGUIEventHandler::GetInstance().GetFocussedObject();
    if (pkFocus == nullptr)
    {
        return;
    }
    if (!kFindings.IsInTree(pkFocus))
    {
        kFindings.Expect(false, "focus: on an object that is not under the root");
        return;
    }
    kFindings.Expect(pkFocus->IsFocusable(), "focus: on an object that does not accept it");
    for (const CGUIObject* pkObject = pkFocus; pkObject != nullptr; pkObject = pkObject->GetParent())
    {
        kFindings.Expect(!pkObject->IsInvisible(), "focus: on an object that is invisible");
    }
}

void CheckSafePointers(const CGUI& kRoot, CFindings& kFindings)
{
    std::set<const CSafeGUIObjectPtr*> kSeen;
    for (const CSafeGUIObjectPtr* pkPointer : Access::GetSafePointers())
    {
        kFindings.Expect(kSeen.insert(pkPointer).second, "safe pointers: one is registered twice");
        const CGUIObject* pkObject = pkPointer->get();
        if (pkObject == nullptr || kFindings.IsInTree(pkObject))
        {
            continue;
        }
        kFindings.Expect(!Access::IsUnderRoot(*pkObject) && !pkObject->IsDescendantOf(&kRoot),
                         "safe pointers: one points to an object whose parent does not have it");
    }
}

/** Visits a registration and all below it. @return the one that is due first */
const Access::AnimationCallback_t& CheckCallbacks(const Access::AnimationCallback_t& kTop,
                                                  std::set<const CGUIAnimatable*>& kSeen,
                                                  CFindings& kFindings)
{
    kFindings.Expect(kTop.m_uiInterval != 0, "timer: an animatable has no interval");
    kFindings.Expect(kSeen.insert(kTop.m_pkAnimatable).second, "timer: an animatable is registered twice");
    kFindings.Expect(kTop.m_pkAnimatable != nullptr && kTop.m_pkAnimatable->IsAnimating(),
                     "timer: an animatable does not know that it is registered");
    const Access::AnimationCallback_t* pkFirstDue = &kTop;
    for (const Access::AnimationCallback_t* pkChild : kTop.m_apkChildren)
    {
        if (pkChild == nullptr)
        {
            continue;
        }
        kFindings.Expect(pkChild->m_pkParent == &kTop,
                         "timer: a registration does not know the one above it");
        const Access::AnimationCallback_t& kFirstDue = CheckCallbacks(*pkChild, kSeen, kFindings);
        if (std::tie(kFirstDue.m_uiDue, kFirstDue.m_uiRegistered) <
            std::tie(pkFirstDue->m_uiDue, pkFirstDue->m_uiRegistered))
        {
            pkFirstDue = &kFirstDue;
        }
    }
    kFindings.Expect(kTop.m_pkFirstDue == pkFirstDue,
                     "timer: a registration does not know which is due first");
    return *pkFirstDue;
}

void CheckTimer(CFindings& kFindings)
{
    const Access::AnimationCallback_t* pkTop = Access::GetTopCallback(GETTIMER);
    if (pkTop != nullptr)
    {
        std::set<const CGUIAnimatable*> kSeen;
        kFindings.Expect(pkTop->m_pkParent == nullptr,
                         "timer: there is something above the top registration");
        CheckCallbacks(*pkTop, kSeen, kFindings);
    }
}

void CheckPopups(CGUIDialogManager& kManager, CFindings& kFindings)
{
    const auto& kPopups = Access::GetActivePopups(kManager);
    eC_UInt uiPriority = 0;
    for (auto kIterator = kPopups.GetBegin(); kIterator.IsValid(); ++kIterator)
    {
        const Access::PopupDescription_t& kPopup = *kIterator;
        kFindings.Expect(kPopup.GetPriority() >= uiPriority, "active popups: not in order of priority");
        kFindings.Expect(kPopup.m_pDialogManager == &kManager, "active popups: one has another manager");
        uiPriority = kPopup.GetPriority();
    }
}
} // namespace

std::string CheckStructures(CGUIDialogManager& kManager)
{
    CGUI& kRoot = CGUI::GetInstance();
    CFindings kFindings;
    CheckList("history", Access::GetHistory(kManager), kFindings);
    CheckList("dynamic identifiers", Access::GetDynamicObjectIDs(kManager), kFindings);
    CheckList("dialog definitions", Access::GetRegisteredDialogs(kManager), kFindings);
    CheckList("popup definitions", Access::GetRegisteredPopups(kManager), kFindings);
    CheckList("active popups", Access::GetActivePopups(kManager), kFindings);
    CheckList("safe pointers", Access::GetSafePointerList(), kFindings);
    kFindings.Enter(&kRoot);
    CheckChildren(kRoot, kFindings);
    CheckIndex(kRoot, kFindings);
    CheckFocus(kFindings);
    CheckSafePointers(kRoot, kFindings);
    CheckTimer(kFindings);
    CheckPopups(kManager, kFindings);
    return kFindings.GetText();
}

// SPDX-License-Identifier: MIT
#ifndef TESTSUPPORT_TESTACCESS_H
#define TESTSUPPORT_TESTACCESS_H

/** @file
 *  Gives tests access to the private parts of the library's classes.
 */

#include "Core/Control/GUI.h"
#include "Core/GUIDialogManager.h"
#include "Core/GUITimer.h"
#include "Core/Utils/SafeGUIObjectPtr.h"
#include "Core/Utils/eC_TList_doubleLinked.h"
#include "Scenario/StateAccess.h"

#include <vector>

/** The test friend of the library's classes. It returns private members by name, so that tests can change
 *  them as well, and forwards calls. It draws no conclusions; those belong in the tests.
 */
class CGUITestAccess : public CGUIStateAccess
{
public:
    // --- Lists ---------------------------------------------------------------------------------

    template <typename T>
    static ListNode<T>* GetFront(const eC_TListDoubleLinked<T>& kList)
    {
        return static_cast<ListNode<T>*>(kList.m_pkFront);
    }

    template <typename T>
    static ListNode<T>* GetLast(const eC_TListDoubleLinked<T>& kList)
    {
        return static_cast<ListNode<T>*>(kList.m_pkLast);
    }

    /** @return the next node, null at the last one */
    template <typename T>
    static ListNode<T>* GetNext(const ListNode<T>& kNode)
    {
        return static_cast<ListNode<T>*>(kNode.m_pkNext);
    }

    /** @return the previous node, null at the first one */
    template <typename T>
    static ListNode<T>* GetPrevious(const ListNode<T>& kNode)
    {
        return static_cast<ListNode<T>*>(kNode.m_pkPrevious);
    }

    /** @return the node from which GetNext continues */
    template <typename T>
    static ListNode<T>* GetCursor(const eC_TListDoubleLinked<T>& kList)
    {
        return static_cast<ListNode<T>*>(kList.m_pkIterator);
    }

    template <typename T>
    static eC_Bool HasRegister(const eC_TListDoubleLinked<T>& kList)
    {
        return kList.m_ppIterRegister != nullptr;
    }

    template <typename T>
    static eC_UInt GetRegisterSize(const eC_TListDoubleLinked<T>& kList)
    {
        return kList.m_uiIterRegisterSize;
    }

    /** @return the used entries of the register of safe iterators, in order */
    template <typename T>
    static std::vector<const eC_TSafeIterator<T>*> GetRegister(const eC_TListDoubleLinked<T>& kList)
    {
        std::vector<const eC_TSafeIterator<T>*> kEntries;
        for (eC_UInt uiIndex = 0; uiIndex < kList.m_uiIterRegisterCnt; ++uiIndex)
        {
            kEntries.push_back(static_cast<eC_TSafeIterator<T>*>(kList.m_ppIterRegister[uiIndex]));
        }
        return kEntries;
    }

    /** Overwrites one entry of the register, to break it. */
    template <typename T>
    static void SetRegisterEntry(eC_TListDoubleLinked<T>& kList, eC_UInt uiIndex,
                                 eC_TSafeIterator<T>* pIterator)
    {
        kList.m_ppIterRegister[uiIndex] = pIterator;
    }

    /** @return the addresses of the data members in the order of their declaration */
    template <typename T>
    static std::vector<const void*> GetMemberAddresses(const eC_TListDoubleLinked<T>& kList)
    {
        return {&kList.m_pkFront,           &kList.m_pkLast,         &kList.m_pkIterator,
                &kList.m_uiQuantity,        &kList.m_ppIterRegister, &kList.m_uiIterRegisterCnt,
                &kList.m_uiIterRegisterSize};
    }

    template <typename T>
    static eC_Bool Remove(eC_TListDoubleLinked<T>& kList, ListNode<T>* pNode)
    {
        return kList.Remove(pNode);
    }

    template <typename T>
    static void RegisterIterator(eC_TListDoubleLinked<T>& kList, eC_TSafeIterator<T>* pIterator)
    {
        kList.RegisterIterator(pIterator);
    }

    template <typename T>
    static void UnregisterIterator(eC_TListDoubleLinked<T>& kList, eC_TSafeIterator<T>* pIterator)
    {
        kList.UnregisterIterator(pIterator);
    }

    template <typename T>
    static void UpdateIterators(const eC_TListDoubleLinked<T>& kList, ListNode<T>* pNode, Update_t eUpdate)
    {
        kList.UpdateIterators(pNode, eUpdate);
    }

    // --- Iterators -----------------------------------------------------------------------------

    template <typename T>
    static ListNode<T>* GetNode(const eC_TIterator<T>& kIterator)
    {
        return kIterator.GetNode();
    }

    template <typename T>
    static const eC_TListDoubleLinked<T>* GetList(const eC_TSafeIterator<T>& kIterator)
    {
        return static_cast<eC_TListDoubleLinked<T>*>(kIterator.m_pList);
    }

    template <typename T>
    static ListNode<T>* GetSavedNext(const eC_TSafeIterator<T>& kIterator)
    {
        return static_cast<ListNode<T>*>(kIterator.m_pSaveNextNode);
    }

    template <typename T>
    static ListNode<T>* GetSavedPrevious(const eC_TSafeIterator<T>& kIterator)
    {
        return static_cast<ListNode<T>*>(kIterator.m_pSavePrevNode);
    }

    /** @return the addresses of the data members, those of the base first */
    template <typename T>
    static std::vector<const void*> GetMemberAddresses(const eC_TSafeIterator<T>& kIterator)
    {
        return {&kIterator.m_pNode, &kIterator.m_pList, &kIterator.m_pSaveNextNode,
                &kIterator.m_pSavePrevNode};
    }

    template <typename T>
    static void SetList(eC_TSafeIterator<T>& kIterator, eC_TListDoubleLinked<T>* pList)
    {
        kIterator.SetList(pList);
    }

    /** Makes an iterator forget its list without unregistering, for an iterator whose list is gone. */
    template <typename T>
    static void ForgetList(eC_TSafeIterator<T>& kIterator)
    {
        kIterator.m_pList = nullptr;
    }

    template <typename T>
    static void Validate(eC_TSafeIterator<T>& kIterator, ListNode<T>* pNode, Update_t eUpdate)
    {
        kIterator.Validate(pNode, eUpdate);
    }

    // --- Safe pointers -------------------------------------------------------------------------

    /** @return every live safe pointer of the program, in order of construction */
    static std::vector<const CSafeGUIObjectPtr*> GetSafePointers()
    {
        std::vector<const CSafeGUIObjectPtr*> kPointers;
        for (auto kIterator = CSafeGUIObjectPtr::ms_kSafeGUIObjectPointerList.GetBegin(); kIterator.IsValid();
             ++kIterator)
        {
            kPointers.push_back(*kIterator);
        }
        return kPointers;
    }

    static eC_TListDoubleLinked<CSafeGUIObjectPtr*>& GetSafePointerList()
    {
        return CSafeGUIObjectPtr::ms_kSafeGUIObjectPointerList;
    }

    static void NotifyOfDestruction(CSafeGUIObjectPtr& kPointer, const CGUIObject* pObject)
    {
        kPointer.NotifyOfDestruction(pObject);
    }

    // --- Object tree ---------------------------------------------------------------------------

    static CGUIObject* GetLastChild(const CGUICompositeObject& kComposite)
    {
        return kComposite.m_pkLastChild;
    }

    static CGUIObject* GetPreviousSibling(const CGUIObject& kObject) { return kObject.m_pkPreviousSibling; }

    static eC_Bool IsUnderRoot(const CGUIObject& kObject) { return kObject.m_bIsUnderRoot; }

    /** @return how often objects have come under the root or were raised there, as far as the count goes */
    static eC_UInt GetNOFRaises() { return CGUIObject::ms_uiRaises; }

    /** Sets it, to a number that no object under the root has reached. */
    static void SetNOFRaises(eC_UInt uiNOFRaises) { CGUIObject::ms_uiRaises = uiNOFRaises; }

    // --- Index of identifiers ------------------------------------------------------------------

    static CGUIObjectIndex& GetIndex(CGUI& kRoot) { return kRoot.m_kIndex; }

    /** @return the first object of every bucket of the root's index, null for an empty bucket */
    static std::vector<const CGUIObject*> GetBuckets(const CGUI& kRoot)
    {
        const CGUIObjectIndex& kIndex = kRoot.m_kIndex;
        return {kIndex.m_ppkBuckets, kIndex.m_ppkBuckets + (std::size_t{1} << kIndex.m_uiBucketBits)};
    }

    static const CGUIObject* GetNextInBucket(const CGUIObject& kObject) { return kObject.m_pkNextInBucket; }
    static const CGUIObject* GetNextWithSameID(const CGUIObject& kObject)
    {
        return kObject.m_pkNextWithSameID;
    }
    static const CGUIObject* GetPreviousWithSameID(const CGUIObject& kObject)
    {
        return kObject.m_pkPreviousWithSameID;
    }

    // --- Timer ---------------------------------------------------------------------------------

    using AnimationCallback_t = TimerCallback_t;

    /** @return the top of the tree of registrations, null when there are none */
    static AnimationCallback_t* GetTopCallback(const CGUITimer& kTimer) { return kTimer.m_pkRoot; }

    // --- Dialog manager ------------------------------------------------------------------------

    static eC_TListDoubleLinked<HistoryEntry_t>& GetHistory(CGUIDialogManager& kManager)
    {
        return kManager.m_History;
    }

    static DialogDescription_t& GetCurrentDialog(CGUIDialogManager& kManager)
    {
        return kManager.m_CurrentDialog;
    }

    static eC_Int& GetLastDynObjID(CGUIDialogManager& kManager) { return kManager.m_iLastDynObjID; }

    static eC_TListDoubleLinked<int>& GetDynamicObjectIDs(CGUIDialogManager& kManager)
    {
        return kManager.m_DynamicObjectIDs;
    }

    static eC_TListDoubleLinked<PopupDescription_t>& GetActivePopups(CGUIDialogManager& kManager)
    {
        return kManager.m_ActivePopups;
    }

    static PopupDescription_t* GetActivePopup(const CGUIDialogManager& kManager, ObjectHandle_t eID)
    {
        return kManager.GetActivePopup(eID);
    }

    static HistoryEntry_t* FindDialogInHistory(const CGUIDialogManager& kManager, ObjectHandle_t eID)
    {
        return kManager.FindDialogInHistory(eID);
    }

    static void UpdateActivePopups(CGUIDialogManager& kManager) { kManager.UpdateActivePopups(); }

    static void PrintDialogHistory(CGUIDialogManager& kManager) { kManager.PrintDialogHistory(); }

    static void RecoverFocus(CGUIDialogManager& kManager, CGUIObject* pObjectToFocus)
    {
        kManager.RecoverFocus(pObjectToFocus);
    }

    static void EnsureFocus(CGUIDialogManager& kManager, CGUIObject* pAddedDialog)
    {
        kManager.EnsureFocus(pAddedDialog);
    }

    static CGUIObject* ReCreateDialog(const CGUIDialogManager& kManager, const DialogDescription_t& kDialog)
    {
        CSafeGUIObjectPtr pkDialog;
        kManager.ReCreateDialog(kDialog, pkDialog);
        return pkDialog;
    }

    static void DeleteDialog(CGUIDialogManager& kManager, const DialogDescription_t& kDialog,
                             eC_Bool bDeleteObject)
    {
        kManager.DeleteDialog(kDialog, bDeleteObject);
    }

    static void MakeDialogVisible(const CGUIDialogManager& kManager, CGUIObject* pkDialog)
    {
        kManager.MakeDialogVisible(pkDialog);
    }

    static void MakeDialogInvisible(CGUIDialogManager& kManager, CGUIObject* pkDialog)
    {
        kManager.MakeDialogInvisible(pkDialog);
    }

    static void StoreCurrentDialogInHistory(CGUIDialogManager& kManager,
                                            CGUIDialogManager::EOldDialogAction eAction,
                                            CGUIObject* pkFocusedObj)
    {
        kManager.StoreCurrentDialogInHistory(eAction, pkFocusedObj);
    }

    static void ApplyActionToHistory(CGUIDialogManager& kManager, CGUIDialogManager::EOldDialogAction eAction)
    {
        kManager.ApplyActionToHistory(eAction);
    }

    static CGUIObject* CreateDialogFromHistory(CGUIDialogManager& kManager)
    {
        return kManager.CreateDialogFromHistory();
    }
};

#endif

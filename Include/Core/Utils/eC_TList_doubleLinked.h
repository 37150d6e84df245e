// SPDX-License-Identifier: MIT
#ifndef CORE_UTILS_EC_TLIST_DOUBLELINKED_H
#define CORE_UTILS_EC_TLIST_DOUBLELINKED_H

/** @file
 *  The framework's only container: a doubly linked list of values with registered safe iterators.
 */

#include "Core/Utils/eC_TList_Iterators.h"
#include "Core/Utils/eC_Types.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <memory>

/** Doubly linked list that owns its nodes and keeps its safe iterators usable.
 *
 *  Elements are held by value. T needs a default constructor and an assignment; some operations need more
 *  (operator== to search, operator> to insert in order or to sort).
 *
 *  Change notices: every insertion sends ADDED after the new node is linked and counted; every removal
 *  of one node sends REMOVED after the node is unlinked and no longer counted, while it still holds its old
 *  links and its value, and then destroys it; RemoveAll and the destructor send one KILL after all
 *  nodes are gone; ReverseOrder sends REVERSE_ORDER. Each costs one pass over the register of safe
 *  iterators, in the order of their registration.
 *
 *  Removed nodes of a common size are reused (see eC_SpareBlocks), so a list whose length goes up and down by
 *  a few elements does not use the heap.
 *
 *  Nothing is logged. Exceptions of the allocator pass through and leave the list as it was, except in
 *  Swap. Not thread-safe.
 */
template <typename T>
class eC_TListDoubleLinked : public eC_ListBase
{
public:
    using Node = ListNode<T>;                 ///< one element
    using Iterator = eC_TIterator<T>;         ///< a plain cursor
    using SafeIterator = eC_TSafeIterator<T>; ///< a cursor that survives every change

    /** Makes an empty list. Nothing is allocated; the first safe iterator allocates the register of safe
     *  iterators.
     */
    constexpr eC_TListDoubleLinked() = default;

    /** Copies the elements in their order. The iterators registered with the other list stay there. */
    eC_TListDoubleLinked(const eC_TListDoubleLinked& kOther) : eC_TListDoubleLinked() { AppendAll(kOther); }

    /** Replaces all elements by copies of the other's; assigning a list to itself changes nothing.
     *  Registered iterators stay registered and get KILL, then ADDED for every element.
     */
    eC_TListDoubleLinked& operator=(const eC_TListDoubleLinked& kOther)
    {
        if (this != &kOther)
        {
            // Copy first: if that throws, this list is unchanged.
            eC_TListDoubleLinked kCopies(kOther);
            RemoveAll();
            TakeAllFrom(kCopies);
        }
        return *this;
    }

    /** Destroys all elements, then detaches safe iterators that are still registered, but only every
     *  second one: the others keep a pointer to the destroyed list. So no safe iterator may be used or
     *  destroyed after its list, unless it was the only one.
     */
    ~eC_TListDoubleLinked() { RemoveAll(); }

    /** Inserts a copy of the value at the front. */
    void Add(const T& tValue) { Link(new Node(tValue), nullptr, m_pkFront); }

    /** Inserts a copy of the value at the end. */
    void AddAtEnd(const T& tValue) { Link(new Node(tValue), m_pkLast, nullptr); }

    /** Inserts a copy of the value before the iterator's node.
     *  @param kIterator an iterator of this list; when it is on no node, the value goes to the front
     */
    void AddBefore(const T& tValue, Iterator& kIterator)
    {
        if (!kIterator.IsValid())
        {
            Add(tValue);
            return;
        }
        Node* pNext = kIterator.GetNode();
        Link(new Node(tValue), pNext->m_pkPrevious, pNext);
    }

    /** Inserts a copy of the value after the iterator's node.
     *  @param kIterator an iterator of this list; when it is on no node, the value goes to the end
     */
    void AddAfter(const T& tValue, Iterator& kIterator)
    {
        if (!kIterator.IsValid())
        {
            AddAtEnd(tValue);
            return;
        }
        Node* pPrevious = kIterator.GetNode();
        Link(new Node(tValue), pPrevious, pPrevious->m_pkNext);
    }

    /** Inserts a copy of the value into a list in ascending order, in front of equal values.
     *  Uses operator> of T only, with the new value as the left operand.
     */
    void AddSorted(const T& tValue)
    {
        if (IsEmpty())
        {
            Add(tValue);
        }
        else if (tValue > ToNode(m_pkLast)->m_tValue)
        {
            AddAtEnd(tValue);
        }
        else
        {
            // The last value is not less than the new one, so the loop ends inside the list.
            Iterator kIterator = GetBegin();
            while (tValue > *kIterator)
            {
                ++kIterator;
            }
            AddBefore(tValue, kIterator);
        }
    }

    /** Inserts a copy of the value at the front unless an equal one (operator==) is present.
     *  @return true when inserted
     */
    eC_Bool AddUnique(const T& tValue)
    {
        const eC_Bool bIsNew = !Contains(tValue);
        if (bIsNew)
        {
            Add(tValue);
        }
        return bIsNew;
    }

    /** Inserts a copy of the value at the end unless an equal one (operator==) is present.
     *  @return true when inserted
     */
    eC_Bool AddUniqueAtEnd(const T& tValue)
    {
        const eC_Bool bIsNew = !Contains(tValue);
        if (bIsNew)
        {
            AddAtEnd(tValue);
        }
        return bIsNew;
    }

    /** Inserts a copy of the value as AddSorted does unless an equal one (operator==) is present.
     *  @return true when inserted
     */
    eC_Bool AddUniqueSorted(const T& tValue)
    {
        const eC_Bool bIsNew = !Contains(tValue);
        if (bIsNew)
        {
            AddSorted(tValue);
        }
        return bIsNew;
    }

    /** Removes the iterator's element; the iterator stays in the gap.
     *  @param kIterator a safe iterator of this list
     *  @return false when the iterator is on no node or the list is empty
     */
    eC_Bool Remove(SafeIterator& kIterator) noexcept
    {
        const eC_Bool bRemoved = Remove(kIterator.GetNode());
        kIterator.m_pNode = nullptr;
        return bRemoved;
    }

    /** Removes the first element, counted from the front, that equals the value (operator== of T).
     *  @return false when none does
     */
    eC_Bool Remove(const T& tValue) { return Remove(FindNode(tValue)); }

    /** Removes the last element, counted from the end, that equals the value (operator== of T).
     *  @return false when none does
     */
    eC_Bool RemoveLast(const T& tValue)
    {
        eC_ListLinks* pNode = m_pkLast;
        while (pNode != nullptr && !(ToNode(pNode)->m_tValue == tValue))
        {
            pNode = pNode->m_pkPrevious;
        }
        if (pNode == nullptr)
        {
            return false;
        }
        Destroy(ToNode(pNode));
        return true;
    }

    /** Removes the first element.
     *  @param tValueOUT receives the element; unchanged when the list is empty
     *  @return false when the list is empty
     */
    eC_Bool RemoveFront(T& tValueOUT) { return TakeOff(ToNode(m_pkFront), tValueOUT); }

    /** Removes the last element.
     *  @param tValueOUT receives the element; unchanged when the list is empty
     *  @return false when the list is empty
     */
    eC_Bool RemoveEnd(T& tValueOUT) { return TakeOff(ToNode(m_pkLast), tValueOUT); }

    /** Destroys all elements from the front to the end, then sends one KILL. The cursor of GetNext
     *  does not change.
     */
    void RemoveAll() noexcept
    {
        DestroyNodes(DestroyNode);
        Notify(nullptr, KILL);
    }

    /** Removes every element that equals the value (operator== of T), from the front to the end.
     *  @param tValue the value; it may be an element of this list
     *  @return true when at least one was removed
     */
    eC_Bool RemoveAll(const T& tValue)
    {
        T tSought{};
        tSought = tValue;
        eC_Bool bRemoved = false;
        for (SafeIterator kIterator = GetBeginSafe(); kIterator.IsValid(); ++kIterator)
        {
            if (*kIterator == tSought)
            {
                bRemoved = Remove(kIterator);
            }
        }
        return bRemoved;
    }

    /** @return true when an element equals the value (operator== of T) */
    eC_Bool Contains(const T& tValue) const { return FindNode(tValue) != nullptr; }

    /** Exchanges two elements by assigning their values. The nodes keep their places, so each iterator
     *  stays on its node and finds the other value there; no notice is sent.
     *  @return false, with nothing changed, when one of the iterators is on no node
     *  @throws what the construction or the assignment of T throws, std::bad_alloc from a record that holds
     *  an eC_String. There are three assignments. When the construction or one of the first two throws, both
     *  elements are as they were, if a failed assignment of T changes nothing. When the third one throws,
     *  both elements have the second one's value, and the first one's is lost.
     */
    eC_Bool Swap(Iterator& kFirst, Iterator& kSecond)
    {
        if (!kFirst.IsValid() || !kSecond.IsValid())
        {
            return false;
        }
        T tFirst{};
        tFirst = *kFirst;
        *kFirst = *kSecond;
        *kSecond = tFirst;
        return true;
    }

    /** Reverses the order of all elements and sends REVERSE_ORDER. Iterators stay on their elements. */
    void ReverseOrder()
    {
        for (eC_ListLinks* pNode = m_pkFront; pNode != nullptr; pNode = pNode->m_pkPrevious)
        {
            eC_ListLinks* pNext = pNode->m_pkNext;
            pNode->m_pkNext = pNode->m_pkPrevious;
            pNode->m_pkPrevious = pNext;
        }
        eC_ListLinks* pFront = m_pkFront;
        m_pkFront = m_pkLast;
        m_pkLast = pFront;
        Notify(nullptr, REVERSE_ORDER);
    }

    /** Sorts the elements into ascending order (operator> of T). The nodes are linked again, no element
     *  is copied. Safe iterators stay on their elements and learn their new neighbours; one that is on no
     *  element loses its place.
     *  @param bStable true keeps the order of equal elements (merge sort, which needs a second array of
     *         node pointers); false does not guarantee that (quick sort in place)
     */
    void Sort(eC_Bool bStable)
    {
        if (m_uiQuantity < 2)
        {
            return;
        }
        const std::unique_ptr<Node*[]> ppNodes(new Node*[m_uiQuantity]);
        eC_UInt uiCount = 0;
        for (eC_ListLinks* pNode = m_pkFront; pNode != nullptr; pNode = pNode->m_pkNext)
        {
            ppNodes[uiCount++] = ToNode(pNode);
        }
        if (bStable)
        {
            SortArraysUsingMergeSort(ppNodes.get(), uiCount);
        }
        else
        {
            SortArraysUsingQuickSort(ppNodes.get(), 0, static_cast<eC_Int>(uiCount) - 1);
        }
        LinkInOrder(ppNodes.get());
    }

    /** Starts an iteration with the list's own cursor.
     *  @param tValueOUT receives the first element; unchanged when the list is empty
     *  @return false when the list is empty
     */
    eC_Bool GetFirst(T& tValueOUT)
    {
        m_pkIterator = m_pkFront;
        return ReadCursor(tValueOUT);
    }

    /** Continues the iteration that GetFirst began. The cursor is not told of changes: the element read
     *  last must still be in the list.
     *  @param tValueOUT receives the next element; unchanged when there is none
     *  @return false at the end of the list
     */
    eC_Bool GetNext(T& tValueOUT)
    {
        if (m_pkIterator == nullptr)
        {
            return false;
        }
        m_pkIterator = m_pkIterator->m_pkNext;
        return ReadCursor(tValueOUT);
    }

    /** @return an iterator on the first element, or on no node */
    Iterator GetBegin() const { return Iterator(ToNode(m_pkFront)); }

    /** @return an iterator on the last element, or on no node */
    Iterator GetEnd() const { return Iterator(ToNode(m_pkLast)); }

    /** @return a registered iterator on the first element, or on no node */
    SafeIterator GetBeginSafe() { return SafeIterator(this, ToNode(m_pkFront)); }

    /** @return a registered iterator on the last element, or on no node */
    SafeIterator GetEndSafe() { return SafeIterator(this, ToNode(m_pkLast)); }

    /** @param uiPosition number of steps from the front, 0 for the first element
     *  @return an iterator on that element, or on no node when the list is not that long
     */
    Iterator GetAt(eC_UInt uiPosition) const { return Iterator(ToNode(FindNodeAt(uiPosition))); }

    /** @param uiPosition number of steps from the front, 0 for the first element
     *  @return a registered iterator on that element, or on no node when the list is not that long
     */
    SafeIterator GetAtSafe(eC_UInt uiPosition) { return SafeIterator(this, ToNode(FindNodeAt(uiPosition))); }

    /** @return an iterator on the first element that equals the value (operator== of T), or on no node */
    Iterator GetFind(const T& tValue) const { return Iterator(FindNode(tValue)); }

    /** @return a registered iterator on the first element that equals the value, or on no node */
    SafeIterator GetFindSafe(const T& tValue) { return SafeIterator(this, FindNode(tValue)); }

protected:
    friend class eC_TSafeIterator<T>;
    friend class CGUITestAccess;

    /** Unlinks and destroys one node, which must be one of this list (not checked).
     *  @return false when the node is null or the list is empty
     */
    eC_Bool Remove(Node* pNode) noexcept
    {
        if (pNode == nullptr || m_pkFront == nullptr)
        {
            return false;
        }
        Destroy(pNode);
        return true;
    }

    /** Sends one notice to every registered iterator, in the order of registration.
     *  @param pNode the node concerned, null for notices that concern all
     *  @param eUpdate the notice; an unknown value has no effect
     */
    [[gnu::noinline]] void UpdateIterators(Node* pNode, Update_t eUpdate) const noexcept
    {
        for (eC_UInt i = 0; i < m_uiIterRegisterCnt; ++i)
        {
            assert(m_ppIterRegister[i] != NULL);
            ToIterator(*m_ppIterRegister[i]).Validate(pNode, eUpdate);
        }
    }

    /** Sorts the nodes between two positions of an array into ascending order of their values, in place.
     *  @param ppNodes the array
     *  @param iLeft the first position
     *  @param iRight the last position; nothing happens unless it is greater than iLeft
     */
    static void SortArraysUsingQuickSort(Node** ppNodes, eC_Int iLeft, eC_Int iRight)
    {
        if (iLeft < iRight)
        {
            std::sort(ppNodes + iLeft, ppNodes + iRight + 1, IsLess);
        }
    }

    /** Sorts the nodes of an array into ascending order of their values, keeping equal ones in order.
     *  @param ppNodes the array
     *  @param uiCount the number of its entries
     */
    static void SortArraysUsingMergeSort(Node** ppNodes, eC_UInt uiCount)
    {
        std::stable_sort(ppNodes, ppNodes + uiCount, IsLess);
    }

private:
    static Node* ToNode(eC_ListLinks* pLinks) { return static_cast<Node*>(pLinks); }

    static void DestroyNode(eC_ListLinks* pLinks) noexcept { delete ToNode(pLinks); }

    static SafeIterator& ToIterator(eC_ListPlace& kPlace) { return static_cast<SafeIterator&>(kPlace); }

    /** Sends one notice. Most changes find no safe iterator: they skip the call. */
    void Notify(Node* pNode, Update_t eUpdate) const noexcept
    {
        if (m_uiIterRegisterCnt != 0)
        {
            UpdateIterators(pNode, eUpdate);
        }
    }

    /** Links a new node between two neighbours (null: at that end), counts it and sends ADDED. */
    void Link(Node* pNode, eC_ListLinks* pPrevious, eC_ListLinks* pNext) noexcept
    {
        LinkNode(pNode, pPrevious, pNext);
        Notify(pNode, ADDED);
    }

    /** Unlinks a node, counts it off and sends REMOVED; the node keeps its own links. */
    void Unlink(Node* pNode) noexcept
    {
        UnlinkNode(pNode);
        Notify(pNode, REMOVED);
    }

    void Destroy(Node* pNode) noexcept
    {
        Unlink(pNode);
        delete pNode;
    }

    eC_Bool TakeOff(Node* pNode, T& tValueOUT)
    {
        if (pNode == nullptr)
        {
            return false;
        }
        tValueOUT = pNode->m_tValue;
        Destroy(pNode);
        return true;
    }

    eC_Bool ReadCursor(T& tValueOUT) const
    {
        if (m_pkIterator == nullptr)
        {
            return false;
        }
        tValueOUT = ToNode(m_pkIterator)->m_tValue;
        return true;
    }

    Node* FindNode(const T& tValue) const
    {
        eC_ListLinks* pNode = m_pkFront;
        while (pNode != nullptr && !(ToNode(pNode)->m_tValue == tValue))
        {
            pNode = pNode->m_pkNext;
        }
        return ToNode(pNode);
    }

    void AppendAll(const eC_TListDoubleLinked& kOther)
    {
        for (eC_ListLinks* pNode = kOther.m_pkFront; pNode != nullptr; pNode = pNode->m_pkNext)
        {
            AddAtEnd(ToNode(pNode)->m_tValue);
        }
    }

    void TakeAllFrom(eC_TListDoubleLinked& kOther)
    {
        while (kOther.m_pkFront != nullptr)
        {
            Node* pNode = ToNode(kOther.m_pkFront);
            kOther.Unlink(pNode);
            Link(pNode, m_pkLast, nullptr);
        }
    }

    /** Links all nodes in the order of the array and updates the iterators. */
    void LinkInOrder(Node** ppNodes)
    {
        const eC_UInt uiLast = m_uiQuantity - 1;
        for (eC_UInt uiIndex = 0; uiIndex <= uiLast; ++uiIndex)
        {
            ppNodes[uiIndex]->m_pkPrevious = uiIndex > 0 ? ppNodes[uiIndex - 1] : nullptr;
            ppNodes[uiIndex]->m_pkNext = uiIndex < uiLast ? ppNodes[uiIndex + 1] : nullptr;
        }
        m_pkFront = ppNodes[0];
        m_pkLast = ppNodes[uiLast];
        for (eC_UInt uiIndex = 0; uiIndex < m_uiIterRegisterCnt; ++uiIndex)
        {
            ToIterator(*m_ppIterRegister[uiIndex]).FollowNewOrder();
        }
    }

    static eC_Bool IsLess(const Node* pLeft, const Node* pRight)
    {
        return pRight->m_tValue > pLeft->m_tValue;
    }
};

#endif

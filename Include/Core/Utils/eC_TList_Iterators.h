// SPDX-License-Identifier: MIT
#ifndef CORE_UTILS_EC_TLIST_ITERATORS_H
#define CORE_UTILS_EC_TLIST_ITERATORS_H

/** @file
 *  Nodes, change notices and the two kinds of iterator of eC_TListDoubleLinked.
 *
 *  A plain iterator is a cursor on a node and is not told of changes: do not use it after its node was
 *  removed. A safe iterator is registered with its list and repairs itself on every change, so that a loop
 *  may remove the current element and continue.
 */

#include "Core/Utils/eC_SpareBlocks.h"
#include "Core/Utils/eC_Types.h"

#include <cassert>
#include <cstddef>

class CGUITestAccess;

template <typename T>
class eC_TListDoubleLinked;

/** The notice that a list sends to its registered safe iterators after a change. */
enum Update_t : unsigned char
{
    REMOVED = 0,      ///< one node was unlinked and is about to be destroyed
    ADDED = 1,        ///< one node was linked and counted
    KILL = 2,         ///< all nodes are gone
    REVERSE_ORDER = 3 ///< the order of all nodes was reversed
};

/** One element of a list. T needs a default constructor and an assignment, and no alignment beyond that of
 *  `operator new`. Nodes use blocks of eC_SpareBlocks.
 */
template <typename T>
struct ListNode
{
    /** Makes an unlinked node: the value is default-constructed and then assigned from tValue. */
    explicit ListNode(const T& tValue) : m_pkNext(nullptr), m_pkPrevious(nullptr), m_tValue()
    {
        m_tValue = tValue;
    }

    /** Takes a spare block, or one from the heap if there is none. */
    static void* operator new(std::size_t uiSize)
    {
        static_assert(alignof(ListNode) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__, "the element is over-aligned");
        return eC_SpareBlocks::Take(uiSize);
    }

    /** Keeps the block for another node. */
    static void operator delete(void* pBlock, std::size_t uiSize) noexcept
    {
        eC_SpareBlocks::Give(pBlock, uiSize);
    }

    ListNode* m_pkNext;     ///< the next node, null at the last one
    ListNode* m_pkPrevious; ///< the previous node, null at the first one
    T m_tValue;             ///< the element
};

/** Plain cursor on a node of a list.
 *
 *  It stays valid while its node is in the list. It is not told of changes.
 */
template <typename T>
class eC_TIterator
{
public:
    using Node = ListNode<T>; ///< what it points to

    /** Makes an iterator on no node. */
    eC_TIterator() : m_pNode(nullptr) {}

    /** Makes an iterator on a node.
     *  @param pNode the node, or null for none
     */
    explicit eC_TIterator(Node* pNode) : m_pNode(pNode) {}

    eC_TIterator(const eC_TIterator&) = default;            ///< points to the same node
    eC_TIterator& operator=(const eC_TIterator&) = default; ///< points to the same node
    virtual ~eC_TIterator() = default;                      ///< the node is not touched

    /** @return true when both are on the same node, or both on none */
    eC_Bool operator==(const eC_TIterator& kOther) const { return m_pNode == kOther.m_pNode; }

    /** @return true when this iterator is on the given node (null: on none) */
    eC_Bool operator==(const Node* pNode) const { return m_pNode == pNode; }

    /** @return true when the two are on different nodes */
    eC_Bool operator!=(const eC_TIterator& kOther) const { return m_pNode != kOther.m_pNode; }

    /** @return true when the iterator is on a node */
    eC_Bool IsValid() const { return m_pNode != nullptr; }

    /** @return true when the iterator is on a node */
    virtual eC_Bool IsInsideList() const { return m_pNode != nullptr; }

    /** Moves to the next node, or past the end; an iterator on no node stays there. */
    eC_TIterator& operator++()
    {
        if (m_pNode != nullptr)
        {
            m_pNode = m_pNode->m_pkNext;
        }
        return *this;
    }

    /** Moves as the prefix form does.
     *  @return an iterator on the node left
     */
    eC_TIterator operator++(int)
    {
        eC_TIterator kBefore(*this);
        ++*this;
        return kBefore;
    }

    /** Moves to the previous node, or before the front; an iterator on no node stays there. */
    eC_TIterator& operator--()
    {
        if (m_pNode != nullptr)
        {
            m_pNode = m_pNode->m_pkPrevious;
        }
        return *this;
    }

    /** Moves as the prefix form does.
     *  @return an iterator on the node left
     */
    eC_TIterator operator--(int)
    {
        eC_TIterator kBefore(*this);
        --*this;
        return kBefore;
    }

    /** @return the current element
     *  @throws int the value 0 when the iterator is on no node; nothing is logged
     */
    T& operator*() const
    {
        if (m_pNode == nullptr)
        {
            throw 0;
        }
        return m_pNode->m_tValue;
    }

protected:
    friend class eC_TListDoubleLinked<T>;
    friend class CGUITestAccess;

    /** @return the current node, or null */
    Node* GetNode() const { return m_pNode; }

    Node* m_pNode; ///< the current node, or null
};

/** Cursor that is registered with its list and survives every change of it.
 *
 *  When its element is removed it is on no node, but still knows both neighbours: ++ and -- continue from
 *  there. A loop that may remove elements therefore runs while
 *  `IsValid() || IsNextValid()` (forwards) or `IsValid() || IsPreviousValid()` (backwards).
 *
 *  Invariant: the register of a list has each iterator that is attached to the list exactly once.
 *  A list should outlive its safe iterators: see the destructor of eC_TListDoubleLinked.
 */
template <typename T>
class eC_TSafeIterator : public eC_TIterator<T>
{
public:
    using Node = ListNode<T>;             ///< what it points to
    using List = eC_TListDoubleLinked<T>; ///< what it can be attached to

    /** Makes an iterator on no node that is attached to no list. */
    eC_TSafeIterator()
        : eC_TIterator<T>(), m_pList(nullptr), m_pSaveNextNode(nullptr), m_pSavePrevNode(nullptr)
    {
    }

    /** Makes an iterator at the same place and registers it with the other's list.
     *  @throws std::bad_alloc when the register cannot grow
     */
    eC_TSafeIterator(const eC_TSafeIterator& kOther)
        : eC_TIterator<T>(kOther), m_pList(nullptr), m_pSaveNextNode(nullptr), m_pSavePrevNode(nullptr)
    {
        SetList(kOther.m_pList);
        m_pSaveNextNode = kOther.m_pSaveNextNode;
        m_pSavePrevNode = kOther.m_pSavePrevNode;
    }

    /** Leaves the register of the list. */
    ~eC_TSafeIterator() override { SetList(nullptr); }

    /** Moves to the other's place, changing the list if it is another one.
     *  @throws std::bad_alloc when the register of the new list cannot grow; this iterator has then left its
     *          old list and is like a new one
     */
    eC_TSafeIterator& operator=(const eC_TSafeIterator& kOther)
    {
        if (this != &kOther)
        {
            // An iterator that is attached to no list must not point into one.
            m_pNode = nullptr;
            m_pSaveNextNode = nullptr;
            m_pSavePrevNode = nullptr;
            SetList(kOther.m_pList);
            m_pNode = kOther.m_pNode;
            m_pSaveNextNode = kOther.m_pSaveNextNode;
            m_pSavePrevNode = kOther.m_pSavePrevNode;
        }
        return *this;
    }

    /** @return true when both are on the same node, or both on none */
    eC_Bool operator==(const eC_TSafeIterator& kOther) const { return m_pNode == kOther.m_pNode; }

    /** @return true when the two are on different nodes */
    eC_Bool operator!=(const eC_TSafeIterator& kOther) const { return m_pNode != kOther.m_pNode; }

    /** Moves to the remembered next node: after a removal of the current element, the removed one's
     *  successor.
     */
    eC_TSafeIterator& operator++()
    {
        // If the current node was removed, the notices have kept the previous node up to date.
        if (m_pNode != nullptr)
        {
            m_pSavePrevNode = m_pNode;
        }
        m_pNode = m_pSaveNextNode;
        if (m_pNode != nullptr)
        {
            m_pSaveNextNode = m_pNode->m_pkNext;
        }
        return *this;
    }

    /** Moves to the remembered previous node; the mirror image of ++. */
    eC_TSafeIterator& operator--()
    {
        if (m_pNode != nullptr)
        {
            m_pSaveNextNode = m_pNode;
        }
        m_pNode = m_pSavePrevNode;
        if (m_pNode != nullptr)
        {
            m_pSavePrevNode = m_pNode->m_pkPrevious;
        }
        return *this;
    }

    /** @return true when the iterator is on a node, or just before the front (on none, with a next but no
     *  previous node). False in the gap of a removed middle node, although ++ and -- still work there.
     */
    eC_Bool IsInsideList() const override
    {
        if (m_pNode != nullptr)
        {
            return true;
        }
        return m_pSaveNextNode != nullptr && m_pSavePrevNode == nullptr;
    }

    /** @return true when ++ leads to a node */
    eC_Bool IsNextValid() const { return m_pSaveNextNode != nullptr; }

    /** @return true when -- leads to a node */
    eC_Bool IsPreviousValid() const { return m_pSavePrevNode != nullptr; }

protected:
    friend class eC_TListDoubleLinked<T>;
    friend class CGUITestAccess;
    using eC_TIterator<T>::m_pNode;

    /** Makes an iterator on a node of a list and registers it.
     *  @param pList the list
     *  @param pNode one of its nodes, or null when it is empty
     */
    eC_TSafeIterator(List* pList, Node* pNode)
        : eC_TIterator<T>(pNode),
          m_pList(nullptr),
          m_pSaveNextNode(pNode != nullptr ? pNode->m_pkNext : nullptr),
          m_pSavePrevNode(pNode != nullptr ? pNode->m_pkPrevious : nullptr)
    {
        SetList(pList);
    }

    /** Repairs the iterator after a change of its list.
     *  @param pNode the node added or removed; null for the notices that concern all nodes
     *  @param eUpdate what happened; an unknown value is ignored
     */
    void Validate(Node* pNode, Update_t eUpdate)
    {
        switch (eUpdate)
        {
        case REMOVED:
            OnRemoved(pNode);
            break;
        case ADDED:
            OnAdded(pNode);
            break;
        case KILL:
            m_pNode = nullptr;
            m_pSaveNextNode = nullptr;
            m_pSavePrevNode = nullptr;
            break;
        case REVERSE_ORDER:
        {
            Node* pNext = m_pSaveNextNode;
            m_pSaveNextNode = m_pSavePrevNode;
            m_pSavePrevNode = pNext;
            break;
        }
        default:
            break;
        }
    }

    /** Changes the list that this iterator is registered with.
     *  @param pList the new list, or null to detach
     *  @throws std::bad_alloc when the register of the new list cannot grow; the iterator is then detached
     */
    void SetList(List* pList)
    {
        if (m_pList == pList)
        {
            return;
        }
        List* pOldList = m_pList;
        m_pList = pList;
        if (pOldList != nullptr)
        {
            pOldList->UnregisterIterator(this);
        }
        if (pList != nullptr)
        {
            pList->RegisterIterator(this);
        }
    }

private:
    void OnRemoved(Node* pNode)
    {
        if (pNode == m_pNode)
        {
            m_pNode = nullptr;
        }
        else if (pNode == m_pSaveNextNode)
        {
            assert(m_pSaveNextNode != NULL);
            m_pSaveNextNode = pNode->m_pkNext;
        }
        else if (pNode == m_pSavePrevNode)
        {
            assert(m_pSavePrevNode != NULL);
            m_pSavePrevNode = pNode->m_pkPrevious;
        }
    }

    void OnAdded(Node* pNode)
    {
        if (m_pNode != nullptr && m_pNode == pNode->m_pkNext)
        {
            m_pSavePrevNode = pNode;
        }
        else if (m_pNode != nullptr && m_pNode == pNode->m_pkPrevious)
        {
            m_pSaveNextNode = pNode;
        }
        else if (m_pNode == nullptr && m_pSavePrevNode == pNode->m_pkPrevious &&
                 m_pSaveNextNode == pNode->m_pkNext)
        {
            // The new node fills exactly the iterator's gap. Adopting it is intended: a loop that has reached
            // the end continues with elements appended since.
            m_pNode = pNode;
        }
    }

    /** Reads the neighbours of the current node again after the list was sorted. */
    void FollowNewOrder()
    {
        m_pSaveNextNode = m_pNode != nullptr ? m_pNode->m_pkNext : nullptr;
        m_pSavePrevNode = m_pNode != nullptr ? m_pNode->m_pkPrevious : nullptr;
    }

    List* m_pList;         ///< the list with which the iterator is registered, null when unattached
    Node* m_pSaveNextNode; ///< the node that ++ will move to
    Node* m_pSavePrevNode; ///< the node that -- will move to
};

#endif

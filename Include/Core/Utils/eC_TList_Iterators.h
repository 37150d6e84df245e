// SPDX-License-Identifier: MIT
#ifndef CORE_UTILS_EC_TLIST_ITERATORS_H
#define CORE_UTILS_EC_TLIST_ITERATORS_H

/** @file
 *  Nodes, change notices and the two kinds of iterator of eC_TListDoubleLinked.
 *
 *  A plain iterator is a cursor on a node and is not told of changes: do not use it after its node was
 *  removed. A safe iterator is registered with its list and repairs itself on every change, so that a loop
 *  may remove the current element and continue.
 *
 *  The templates are thin: what does not depend on the type of the elements is in the classes before them,
 *  once for all lists of a program.
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

/** The links of a node, the same for every type of element. */
struct eC_ListLinks
{
    eC_ListLinks* m_pkNext = nullptr;     ///< the next node, null at the last one
    eC_ListLinks* m_pkPrevious = nullptr; ///< the previous node, null at the first one
};

/** One element of a list: its links, then the value. T needs a default constructor, an assignment, a
 * destructor that does not throw, and no alignment beyond that of `operator new`. Nodes use blocks of
 * eC_SpareBlocks.
 */
template <typename T>
struct ListNode : public eC_ListLinks
{
    /** Makes an unlinked node: the value is default-constructed and then assigned from tValue. */
    explicit ListNode(const T& tValue) : m_tValue() { m_tValue = tValue; }

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

    T m_tValue; ///< the element
};

/** What the cursors of all lists have. */
class eC_ListCursor
{
public:
    virtual ~eC_ListCursor() = default; ///< the node is not touched

    /** @return true when the iterator is on a node */
    eC_Bool IsValid() const { return m_pNode != nullptr; }

    /** @return true when the iterator is on a node */
    virtual eC_Bool IsInsideList() const { return m_pNode != nullptr; }

protected:
    friend class CGUITestAccess;

    /** Makes a cursor on a node, or on none. */
    explicit eC_ListCursor(eC_ListLinks* pNode) : m_pNode(pNode) {}
    eC_ListCursor(const eC_ListCursor&) = default;            ///< points to the same node
    eC_ListCursor& operator=(const eC_ListCursor&) = default; ///< points to the same node

    /** Throws what reading an iterator on no node throws. */
    [[noreturn]] static void ThrowNoElement() { throw 0; }

    eC_ListLinks* m_pNode; ///< the current node, or null
};

class eC_ListPlace;

/** What all lists have: the ends of the chain of nodes, and the register of safe iterators. */
class eC_ListBase
{
public:
    /** @return the number of elements */
    eC_UInt GetQuantity() const { return m_uiQuantity; }

    /** @return true when the list holds no element */
    eC_Bool IsEmpty() const { return m_pkFront == nullptr; }

    /** @return the same as IsEmpty() */
    eC_Bool Empty() const { return IsEmpty(); }

    eC_ListBase(const eC_ListBase&) = delete;
    eC_ListBase& operator=(const eC_ListBase&) = delete;

protected:
    friend class eC_ListPlace;
    friend class CGUITestAccess;

    constexpr eC_ListBase()
        : m_pkFront(nullptr),
          m_pkLast(nullptr),
          m_pkIterator(nullptr),
          m_uiQuantity(0),
          m_ppIterRegister(nullptr),
          m_uiIterRegisterCnt(0),
          m_uiIterRegisterSize(0)
    {
    }

    /** Detaches every second safe iterator that is still registered, see ~eC_TListDoubleLinked. */
    ~eC_ListBase();

    /** Links a node between two neighbours (null: at that end) and counts it. */
    void LinkNode(eC_ListLinks* pNode, eC_ListLinks* pPrevious, eC_ListLinks* pNext) noexcept
    {
        pNode->m_pkPrevious = pPrevious;
        pNode->m_pkNext = pNext;
        (pPrevious != nullptr ? pPrevious->m_pkNext : m_pkFront) = pNode;
        (pNext != nullptr ? pNext->m_pkPrevious : m_pkLast) = pNode;
        ++m_uiQuantity;
    }

    /** Unlinks a node, which keeps its own links, and counts it off. */
    void UnlinkNode(const eC_ListLinks* pNode) noexcept
    {
        eC_ListLinks* pPrevious = pNode->m_pkPrevious;
        eC_ListLinks* pNext = pNode->m_pkNext;
        (pPrevious != nullptr ? pPrevious->m_pkNext : m_pkFront) = pNext;
        (pNext != nullptr ? pNext->m_pkPrevious : m_pkLast) = pPrevious;
        --m_uiQuantity;
    }

    /** Destroys all nodes from the front to the end with pfnDestroy, which knows their type. */
    void DestroyNodes(void (*pfnDestroy)(eC_ListLinks*) noexcept) noexcept
    {
        eC_ListLinks* pNode = m_pkFront;
        while (pNode != nullptr)
        {
            eC_ListLinks* pNext = pNode->m_pkNext;
            pfnDestroy(pNode);
            pNode = pNext;
        }
        m_pkFront = nullptr;
        m_pkLast = nullptr;
        m_uiQuantity = 0;
    }

    /** @return the node that is this many steps after the front, or null */
    eC_ListLinks* FindNodeAt(eC_UInt uiPosition) const noexcept
    {
        eC_ListLinks* pNode = m_pkFront;
        while (pNode != nullptr && uiPosition > 0)
        {
            pNode = pNode->m_pkNext;
            --uiPosition;
        }
        return pNode;
    }

    /** Enters a safe iterator in the register. Only eC_ListPlace may call this: an
     *  iterator that is attached elsewhere would be entered twice.
     *  @param pIterator the iterator; null is ignored
     */
    void RegisterIterator(eC_ListPlace* pIterator);

    /** Takes a safe iterator out of the register; the others keep their order.
     *  @param pIterator the iterator; null and one that is not registered here are ignored
     */
    void UnregisterIterator(eC_ListPlace* pIterator) noexcept;

    eC_ListLinks* m_pkFront;         ///< the first node, null when empty
    eC_ListLinks* m_pkLast;          ///< the last node, null when empty
    eC_ListLinks* m_pkIterator;      ///< the cursor of GetFirst and GetNext
    eC_UInt m_uiQuantity;            ///< the number of nodes
    eC_ListPlace** m_ppIterRegister; ///< the safe iterators attached to this list
    eC_UInt m_uiIterRegisterCnt;     ///< used entries of the register
    eC_UInt m_uiIterRegisterSize;    ///< capacity of the register

private:
    void GrowRegisterFor(eC_ListPlace& kIterator);
};

/** What a safe iterator has besides its cursor: its list, and where it goes on when its node is removed. */
class eC_ListPlace
{
public:
    eC_ListPlace(const eC_ListPlace&) = delete;
    eC_ListPlace& operator=(const eC_ListPlace&) = delete;

    /** @return true when ++ leads to a node */
    eC_Bool IsNextValid() const { return m_pSaveNextNode != nullptr; }

    /** @return true when -- leads to a node */
    eC_Bool IsPreviousValid() const { return m_pSavePrevNode != nullptr; }

protected:
    friend class eC_ListBase;
    friend class CGUITestAccess;

    eC_ListPlace() : m_pList(nullptr), m_pSaveNextNode(nullptr), m_pSavePrevNode(nullptr) {}

    /** Registers a new iterator with a list and remembers the neighbours of its node, if it has one. */
    void Begin(eC_ListBase* pList, const eC_ListLinks* pNode)
    {
        RememberNeighbours(pNode);
        m_pList = pList;
        pList->RegisterIterator(this);
    }

    /** Leaves the register of the list. */
    void Detach() noexcept
    {
        if (m_pList != nullptr)
        {
            m_pList->UnregisterIterator(this);
        }
    }

    /** Moves the iterator to the remembered next node. */
    void MoveToNext(eC_ListLinks*& pCurrent) noexcept
    {
        // If the current node was removed, the notices have kept the previous node up to date.
        if (pCurrent != nullptr)
        {
            m_pSavePrevNode = pCurrent;
        }
        pCurrent = m_pSaveNextNode;
        if (pCurrent != nullptr)
        {
            m_pSaveNextNode = pCurrent->m_pkNext;
        }
    }

    /** The mirror image of MoveToNext. */
    void MoveToPrevious(eC_ListLinks*& pCurrent) noexcept
    {
        if (pCurrent != nullptr)
        {
            m_pSaveNextNode = pCurrent;
        }
        pCurrent = m_pSavePrevNode;
        if (pCurrent != nullptr)
        {
            m_pSavePrevNode = pCurrent->m_pkPrevious;
        }
    }

    /** @return true when the iterator is on a node, or just before the front */
    eC_Bool IsInside(const eC_ListLinks* pCurrent) const noexcept
    {
        return pCurrent != nullptr || (m_pSaveNextNode != nullptr && m_pSavePrevNode == nullptr);
    }

    /** Changes the list that the iterator is registered with.
     *  @param pList the new list, or null to detach
     *  @throws std::bad_alloc when the register of the new list cannot grow; the iterator is then detached
     */
    void SetList(eC_ListBase* pList)
    {
        if (m_pList == pList)
        {
            return;
        }
        eC_ListBase* pOldList = m_pList;
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

    /** Remembers the neighbours of the iterator's node; none without a node. */
    void RememberNeighbours(const eC_ListLinks* pNode) noexcept
    {
        m_pSaveNextNode = pNode != nullptr ? pNode->m_pkNext : nullptr;
        m_pSavePrevNode = pNode != nullptr ? pNode->m_pkPrevious : nullptr;
    }

    /** Repairs the iterator after a change of its list.
     *  @param pCurrent the iterator's node, or null; may be changed
     *  @param pNode the node added or removed; null for the notices that concern all nodes
     *  @param eUpdate what happened; an unknown value is ignored
     */
    void Validate(eC_ListLinks*& pCurrent, eC_ListLinks* pNode, Update_t eUpdate) noexcept
    {
        switch (eUpdate)
        {
        case REMOVED:
            OnRemoved(pCurrent, pNode);
            break;
        case ADDED:
            OnAdded(pCurrent, pNode);
            break;
        case KILL:
            pCurrent = nullptr;
            m_pSaveNextNode = nullptr;
            m_pSavePrevNode = nullptr;
            break;
        case REVERSE_ORDER:
        {
            eC_ListLinks* pNext = m_pSaveNextNode;
            m_pSaveNextNode = m_pSavePrevNode;
            m_pSavePrevNode = pNext;
            break;
        }
        default:
            break;
        }
    }

    eC_ListBase* m_pList;          ///< the list with which the iterator is registered, null when unattached
    eC_ListLinks* m_pSaveNextNode; ///< the node that ++ will move to
    eC_ListLinks* m_pSavePrevNode; ///< the node that -- will move to

private:
    void OnRemoved(eC_ListLinks*& pCurrent, const eC_ListLinks* pNode) noexcept
    {
        if (pNode == pCurrent)
        {
            pCurrent = nullptr;
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

    void OnAdded(eC_ListLinks*& pCurrent, eC_ListLinks* pNode) noexcept
    {
        if (pCurrent != nullptr && pCurrent == pNode->m_pkNext)
        {
            m_pSavePrevNode = pNode;
        }
        else if (pCurrent != nullptr && pCurrent == pNode->m_pkPrevious)
        {
            m_pSaveNextNode = pNode;
        }
        else if (pCurrent == nullptr && m_pSavePrevNode == pNode->m_pkPrevious &&
                 m_pSaveNextNode == pNode->m_pkNext)
        {
            // The new node fills exactly the iterator's gap. Adopting it is intended: a loop that has reached
            // the end continues with elements appended since.
            pCurrent = pNode;
        }
    }
};

inline eC_ListBase::~eC_ListBase()
{
    // Detaching closes the gap in the register while the index still rises, which skips the iterator
    // that moved up: intended, which iterators stay attached is part of the contract.
    for (eC_UInt uiIndex = 0; uiIndex < m_uiIterRegisterCnt; ++uiIndex)
    {
        UnregisterIterator(m_ppIterRegister[uiIndex]);
    }
    delete[] m_ppIterRegister;
}

inline void eC_ListBase::RegisterIterator(eC_ListPlace* pIterator)
{
    if (pIterator == nullptr)
    {
        return;
    }
    if (m_uiIterRegisterCnt == m_uiIterRegisterSize)
    {
        GrowRegisterFor(*pIterator);
    }
    m_ppIterRegister[m_uiIterRegisterCnt] = pIterator;
    ++m_uiIterRegisterCnt;
    if (pIterator->m_pList != this)
    {
        pIterator->SetList(this);
    }
}

inline void eC_ListBase::UnregisterIterator(eC_ListPlace* pIterator) noexcept
{
    if (pIterator == nullptr)
    {
        return;
    }
    eC_UInt uiIndex = 0;
    while (uiIndex < m_uiIterRegisterCnt && m_ppIterRegister[uiIndex] != pIterator)
    {
        ++uiIndex;
    }
    if (uiIndex == m_uiIterRegisterCnt)
    {
        return;
    }
    // An iterator that moves to another list is already attached to that one. Leave it attached, or it
    // would be entered there twice.
    if (pIterator->m_pList == this)
    {
        pIterator->m_pList = nullptr;
    }
    for (; uiIndex + 1 < m_uiIterRegisterCnt; ++uiIndex)
    {
        m_ppIterRegister[uiIndex] = m_ppIterRegister[uiIndex + 1];
    }
    --m_uiIterRegisterCnt;
}

inline void eC_ListBase::GrowRegisterFor(eC_ListPlace& kIterator)
{
    const eC_UInt uiGrowth = 5;
    // SetList has already attached the iterator. If there is no memory it must be detached, since no
    // register has it.
    eC_ListBase* const pAttachedTo = kIterator.m_pList;
    if (pAttachedTo == this)
    {
        kIterator.m_pList = nullptr;
    }
    eC_ListPlace** ppGrown = new eC_ListPlace*[m_uiIterRegisterSize + uiGrowth];
    kIterator.m_pList = pAttachedTo;
    for (eC_UInt uiIndex = 0; uiIndex < m_uiIterRegisterCnt; ++uiIndex)
    {
        ppGrown[uiIndex] = m_ppIterRegister[uiIndex];
    }
    delete[] m_ppIterRegister;
    m_ppIterRegister = ppGrown;
    m_uiIterRegisterSize += uiGrowth;
}

/** Plain cursor on a node of a list.
 *
 *  It stays valid while its node is in the list. It is not told of changes.
 */
template <typename T>
class eC_TIterator : public eC_ListCursor
{
public:
    using Node = ListNode<T>; ///< what it points to

    /** Makes an iterator on no node. */
    eC_TIterator() : eC_ListCursor(nullptr) {}

    /** Makes an iterator on a node.
     *  @param pNode the node, or null for none
     */
    explicit eC_TIterator(Node* pNode) : eC_ListCursor(pNode) {}

    eC_TIterator(const eC_TIterator&) = default;            ///< points to the same node
    eC_TIterator& operator=(const eC_TIterator&) = default; ///< points to the same node

    /** @return true when both are on the same node, or both on none */
    eC_Bool operator==(const eC_TIterator& kOther) const { return m_pNode == kOther.m_pNode; }

    /** @return true when this iterator is on the given node (null: on none) */
    eC_Bool operator==(const Node* pNode) const { return m_pNode == pNode; }

    /** @return true when the two are on different nodes */
    eC_Bool operator!=(const eC_TIterator& kOther) const { return m_pNode != kOther.m_pNode; }

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
    // The call would take more bytes than what it does.
    [[gnu::always_inline]] T& operator*() const
    {
        if (m_pNode == nullptr)
        {
            ThrowNoElement();
        }
        return GetNode()->m_tValue;
    }

protected:
    friend class eC_TListDoubleLinked<T>;
    friend class CGUITestAccess;

    /** @return the current node, or null */
    Node* GetNode() const { return static_cast<Node*>(m_pNode); }
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
class eC_TSafeIterator : public eC_TIterator<T>, public eC_ListPlace
{
public:
    using Node = ListNode<T>;             ///< what it points to
    using List = eC_TListDoubleLinked<T>; ///< what it can be attached to

    /** Makes an iterator on no node that is attached to no list. */
    eC_TSafeIterator() = default;

    /** Makes an iterator at the same place and registers it with the other's list.
     *  @throws std::bad_alloc when the register cannot grow
     */
    eC_TSafeIterator(const eC_TSafeIterator& kOther) : eC_TIterator<T>(kOther), eC_ListPlace()
    {
        SetList(kOther.m_pList);
        m_pSaveNextNode = kOther.m_pSaveNextNode;
        m_pSavePrevNode = kOther.m_pSavePrevNode;
    }

    /** Leaves the register of the list. */
    ~eC_TSafeIterator() override { Detach(); }

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
        MoveToNext(m_pNode);
        return *this;
    }

    /** Moves to the remembered previous node; the mirror image of ++. */
    eC_TSafeIterator& operator--()
    {
        MoveToPrevious(m_pNode);
        return *this;
    }

    /** @return true when the iterator is on a node, or just before the front (on none, with a next but no
     *  previous node). False in the gap of a removed middle node, although ++ and -- still work there.
     */
    eC_Bool IsInsideList() const override { return IsInside(m_pNode); }

protected:
    friend class eC_TListDoubleLinked<T>;
    friend class CGUITestAccess;
    using eC_ListCursor::m_pNode;

    /** Makes an iterator on a node of a list and registers it.
     *  @param pList the list
     *  @param pNode one of its nodes, or null when it is empty
     */
    eC_TSafeIterator(List* pList, Node* pNode) : eC_TIterator<T>(pNode) { Begin(pList, pNode); }

    /** Repairs the iterator after a change of its list.
     *  @param pNode the node added or removed; null for the notices that concern all nodes
     *  @param eUpdate what happened; an unknown value is ignored
     */
    void Validate(Node* pNode, Update_t eUpdate) noexcept { eC_ListPlace::Validate(m_pNode, pNode, eUpdate); }

    /** Reads the neighbours of the current node again after the list was sorted. */
    void FollowNewOrder() { RememberNeighbours(m_pNode); }
};

#endif

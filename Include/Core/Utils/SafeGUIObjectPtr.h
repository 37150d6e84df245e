// SPDX-License-Identifier: MIT
#ifndef CORE_UTILS_SAFEGUIOBJECTPTR_H
#define CORE_UTILS_SAFEGUIOBJECTPTR_H

/** @file
 *  A pointer to a GUI object that becomes null by itself when the object is destroyed.
 */

#include "Core/Utils/eC_NeverDestroyed.h"
#include "Core/Utils/eC_TList_doubleLinked.h"

class CGUIObject;

/** Pointer to a GUI object that it does not own. It becomes null when the object is destroyed.
 *
 *  One static list has every live pointer exactly once, whatever it points to, in the order of construction.
 *  The destruction of a CGUIObject goes through that list and resets every pointer to it before the object's
 *  memory is released.
 *
 *  Cost: construction takes one list node; destruction searches the list from its end, where a local
 *  variable is found at once, and gives the node back; assignment is a plain store.
 *  Nothing is logged. Only construction may throw, what the allocator throws.
 *
 *  Pointers may be static objects of any kind, wherever they are first used: the list exists before and after
 *  every one of them.
 */
class GUI_API CSafeGUIObjectPtr
{
public:
    /** Makes a null pointer and enters it in the list. */
    CSafeGUIObjectPtr() : m_ptr(nullptr) { Register(); }

    /** Makes a pointer to an object and enters it in the list. Implicit on purpose: it replaces a plain
     *  pointer.
     *  @param pObject the object, or null
     */
    CSafeGUIObjectPtr(CGUIObject* pObject) : m_ptr(pObject) { Register(); }

    /** Makes a second pointer to the other's object, with an entry of its own in the list. */
    CSafeGUIObjectPtr(const CSafeGUIObjectPtr& kOther) : m_ptr(kOther.m_ptr) { Register(); }

    /** Leaves the list. */
    ~CSafeGUIObjectPtr();

    /** Points to the other's object. The list is not touched. */
    CSafeGUIObjectPtr& operator=(const CSafeGUIObjectPtr& kOther) = default;

    /** Points to an object, or to none. The list is not touched. */
    CSafeGUIObjectPtr& operator=(CGUIObject* pObject)
    {
        m_ptr = pObject;
        return *this;
    }

    /** @return the object, or null. Implicit on purpose: it replaces a plain pointer. */
    operator CGUIObject*() const { return m_ptr; }

    /** @return the object; the pointer must not be null */
    CGUIObject& operator*() const { return *m_ptr; }

    /** @return the object; the pointer must not be null */
    CGUIObject* operator->() const { return m_ptr; }

    /** @return the object, or null */
    CGUIObject* get() const { return m_ptr; }

    /** Becomes null. The list is not touched. */
    void Reset() { m_ptr = nullptr; }

    /** Enters this pointer at the end of the list. Every constructor does that; a second call would
     *  enter it twice.
     */
    void Register();

private:
    friend class CGUIObject;
    friend class CGUITestAccess; // lets tests read the list

    /** Called for every pointer when an object is destroyed.
     *  @param pObject the dying object
     */
    void NotifyOfDestruction(const CGUIObject* pObject)
    {
        if (m_ptr == pObject)
        {
            m_ptr = nullptr;
        }
    }

    CGUIObject* m_ptr; ///< the object pointed to, or null; not owned

    typedef eC_TListDoubleLinked<CSafeGUIObjectPtr*> PointerList_t;

    static eC_NeverDestroyed<PointerList_t> ms_kPointerListStorage;

    /** Every live pointer of the program, in order of construction. */
    inline static PointerList_t& ms_kSafeGUIObjectPointerList = ms_kPointerListStorage.m_tObject;
};

#endif

// SPDX-License-Identifier: MIT
#ifndef CORE_CONTROL_GUIOBJECT_H
#define CORE_CONTROL_GUIOBJECT_H

/** @file
 *  The base class of everything in the object tree.
 */

#include "Core/Utils/SafeGUIObjectPtr.h"
#include "Core/Utils/eC_String.h"
#include "Core/Utils/eC_Types.h"
#include "GUIConfig/GUIObjectHandleResource.h"

class CGUICompositeObject;

/** The result of setting an attribute that a dialog description file gives to an object. */
enum EAttributeResult : unsigned char
{
    ATTRIBUTE_SET,      ///< known and set
    ATTRIBUTE_UNKNOWN,  ///< the class has no attribute of that name
    ATTRIBUTE_BAD_VALUE ///< known, but the value is not valid
};

/** A GUI object: identifier, place in the tree, visibility and focus.
 *
 *  Tree. An object has one parent or none; a composite owns its children. Children are drawn in the
 *  order in which they were attached or last raised, the newest on top; this is the drawing order, and
 *  pre-order below means an object first, then its children from the bottom of the drawing order.
 *  With SetParent, putting an object under itself or under one of its own descendants is a broken
 *  invariant (assertion). Attaching, detaching and raising one object allocates nothing and takes a time
 *  that does not depend on the size of the tree (at most on its depth); a subtree that is attached to the
 *  root or detached from it costs one step for each of its objects. Only once in four thousand million
 *  raises every object under the root is visited.
 *
 *  Destruction detaches the object from its parent, takes the focus from it, destroys its children and
 *  resets every CSafeGUIObjectPtr to it before its memory is released.
 *
 *  Focus. Objects are focusable or not. An object can have the focus while it is focusable and under
 *  the root, and neither it nor an ancestor is invisible. When that ends, nobody has the focus.
 *
 *  Nothing here logs. Only construction and SetID may allocate (the root's index of identifiers),
 *  and they do not fail when memory runs out. Not thread-safe.
 */
class GUI_API CGUIObject
{
public:
    /** Makes a visible object that is not focusable.
     *  @param pkParent the parent to attach to, at the top of its drawing order; null: none
     *  @param eID the identifier, NO_HANDLE for an anonymous object
     */
    explicit CGUIObject(CGUICompositeObject* pkParent = nullptr, ObjectHandle_t eID = NO_HANDLE);

    CGUIObject(const CGUIObject&) = delete;
    CGUIObject& operator=(const CGUIObject&) = delete;

    /** Detaches the object, takes the focus from it and resets every safe pointer to it. */
    virtual ~CGUIObject();

    /** @return the identifier, NO_HANDLE for an anonymous object */
    ObjectHandle_t GetID() const { return m_eID; }

    /** Replaces the identifier. Several objects may have the same one. */
    void SetID(const ObjectHandle_t& eID);

    /** @return the object's own invisible flag; an object under an invisible one may say false */
    eC_Bool IsInvisible() const { return m_bIsInvisible; }

    /** @return whether the object accepts the focus */
    eC_Bool IsFocusable() const { return m_bIsFocusable; }

    /** Sets whether the object accepts the focus. An object that has it and becomes not focusable loses
     *  it.
     */
    void SetFocusable(const eC_Bool& bFocusable);

    /** @return the parent, null when detached */
    CGUICompositeObject* GetParent() const { return m_pkParent; }

    /** @return the sibling drawn next above this object, null at the top or without a parent */
    CGUIObject* GetNextSibling() const { return m_pkNextSibling; }

    /** Finds the first object, in pre-order from this one, that has an identifier.
     *
     *  Under the root the search uses the root's index. Its cost does not depend on the size of the
     *  tree. When k objects share the identifier it takes at most k steps (each as long as the path from
     *  that object to the root), or as many steps as there are objects below this one if they are fewer.
     *  The root remembers which of them comes first, and searches again only after that one was raised or
     *  removed.
     *  @param eID the identifier; NO_HANDLE never matches anything
     *  @param bOnlyVisible true: invisible objects are skipped with everything under them
     *  @return the object, or null
     */
    CGUIObject* GetObjectByID(const ObjectHandle_t& eID, const eC_Bool& bOnlyVisible) const;

    /** @return true when the argument is an ancestor of this object. False for the object itself and
     *          for null.
     */
    eC_Bool IsDescendantOf(const CGUIObject* pkObject) const;

    /** Asks for the focus.
     *  @return true when the object has the focus afterwards: exactly if it can have it (see above)
     */
    eC_Bool RequestFocus();

    /** Attaches the object at the top of the drawing order of a parent, which may be its present one, or
     *  detaches it. A focussed object in the subtree keeps the focus if it can still have it.
     *  @param pkParent the new parent, or null to detach; not this object nor a descendant (assertion)
     */
    virtual void SetParent(CGUICompositeObject* pkParent);

    /** Gives the focus to the first object in pre-order, this one included, that takes it.
     *  @return false when none does; the focus then stays where it was
     */
    virtual eC_Bool FocusAny();

    /** Hides (true) or shows (false) the object with everything under it. When it hides the object
     *  that has the focus, nobody has it afterwards.
     */
    virtual void SetInvisible(const eC_Bool& bInvisible);

    /** Sets an attribute from a dialog description file. This class has "invisible" and "focusable", each
     *  "true" or "false". A derived class handles its own names and passes the others on.
     *  @param pcName the attribute's name, zero-terminated
     *  @param pcValue its value, zero-terminated UTF-8
     *  @param kExpectedOUT unless the attribute was set: the text that follows "expected " in a message (the
     * names known, or the form of the value)
     *  @return the result
     */
    virtual EAttributeResult SetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                          eC_String& kExpectedOUT);

    /** @return true when the object is a CGUICompositeObject */
    virtual eC_Bool IsCompositeObject() const { return false; }

    /** @return the number of GUI objects alive in the program, in the tree or not */
    static eC_UInt GetNOFObjects() { return ms_uiNOFObjects; }

private:
    friend class CGUI;
    friend class CGUITestAccess;
    friend class CGUICompositeObject;
    friend class CGUIEventHandler;
    friend class CGUIObjectIndex;

    CGUIObject* FindInPreOrder(ObjectHandle_t eID, eC_Bool bOnlyVisible) const;
    const CGUIObject* GetNextInPreOrder(const CGUIObject* pkTop, eC_Bool bOnlyVisible) const;
    eC_Bool CanHaveFocus() const;
    static void ReleaseFocusUnlessAllowed();
    void Attach(CGUICompositeObject* pkParent);
    void LeaveRoot();
    static eC_UInt CountRaise();

    // The members up to m_pkParent are what a search by identifier reads of every object: together they
    // usually fit into one cache line. The three before m_pkParent, m_uiRaised and m_uiFirstSince belong to
    // the root's index.
    ObjectHandle_t m_eID;
    eC_Bool m_bIsInvisible;
    eC_Bool m_bIsFocusable;
    eC_Bool m_bIsUnderRoot; ///< the root, or something under it: then the index knows the identifier
    eC_Bool m_bIsComposite; ///< the result of IsCompositeObject, which saves a virtual call for each object
                            ///< of a search
    CGUIObject* m_pkNextInBucket;       ///< the head of another identifier in the same bucket
    CGUIObject* m_pkNextWithSameID;     ///< another object with this identifier
    CGUIObject* m_pkPreviousWithSameID; ///< null at the head
    CGUICompositeObject* m_pkParent;
    CGUIObject* m_pkNextSibling;     ///< drawn next above
    CGUIObject* m_pkPreviousSibling; ///< drawn next below
    eC_UInt m_uiRaised;     ///< when the object came under the root or was last raised there; orders siblings
    eC_UInt m_uiFirstSince; ///< when it was last known to be before those after it

    static eC_UInt ms_uiRaises;               ///< counts what comes under the root or is raised there
    static eC_UInt ms_uiNOFObjects;           ///< objects alive
    static eC_UInt ms_uiNOFDestroyedObjects;  ///< counts destructions, and wraps around
    static eC_UInt ms_uiNOFIdentifiedObjects; ///< objects alive with an identifier
};

#endif

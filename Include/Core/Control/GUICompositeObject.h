// SPDX-License-Identifier: MIT
#ifndef CORE_CONTROL_GUICOMPOSITEOBJECT_H
#define CORE_CONTROL_GUICOMPOSITEOBJECT_H

/** @file
 *  An object with children.
 */

#include "Core/Control/GUIObject.h"

/** A GUI object that owns children. See CGUIObject for the rules of the tree. */
class GUI_API CGUICompositeObject : public CGUIObject
{
public:
    /** Makes a visible composite without children.
     *  @param pkParent the parent to attach to, at the top of its drawing order; null: none
     *  @param eID the identifier, NO_HANDLE for an anonymous object
     */
    explicit CGUICompositeObject(CGUICompositeObject* pkParent = nullptr, ObjectHandle_t eID = NO_HANDLE);

    /** Detaches itself, then destroys the children from the bottom of the drawing order. */
    ~CGUICompositeObject() override;

    /** @return the child drawn first, null when there is none; GetNextSibling returns the next one */
    CGUIObject* GetFirstChild() const { return m_pkFirstChild; }

    /** Moves a child to the top of the drawing order.
     *  @param pkChild a child of this composite; null and other objects are ignored
     */
    void DrawOnTop(CGUIObject* pkChild);

    /** @return true when the argument is under this object. False for the object itself and for null. */
    eC_Bool IsAncestorOf(const CGUIObject* pkObject) const;

    /** Gives the focus to the first object in pre-order, this one included, that takes it.
     *  @return false when none does
     */
    eC_Bool FocusAny() override;

    /** @return true */
    eC_Bool IsCompositeObject() const override { return true; }

    /** Attaches an object at the top of the drawing order by its SetParent.
     *  @param pkObject the object; null is ignored
     */
    virtual void AddObject(CGUIObject* pkObject);

private:
    friend class CGUIObject;
    friend class CGUITestAccess;

    void Link(CGUIObject* pkChild);
    void Unlink(CGUIObject* pkChild);

    CGUIObject* m_pkFirstChild; ///< the bottom of the drawing order
    CGUIObject* m_pkLastChild;  ///< the top of the drawing order

protected:
    /** Destroys all children. */
    void DestroyChildren();
};

#endif

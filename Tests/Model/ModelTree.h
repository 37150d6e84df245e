// SPDX-License-Identifier: MIT
#ifndef TESTS_MODEL_MODELTREE_H
#define TESTS_MODEL_MODELTREE_H

/** @file
 *  The model's objects and the focus.
 */

#include "Tests/Model/Operations.h"

#include <vector>

/** A tree of objects. Objects are numbers, -1 for none, 0 for the root; a destroyed object keeps its number.
 */
class CModelTree
{
protected:
    struct Object_t
    {
        int m_iID = 0;
        int m_iParent = -1;
        bool m_bIsAlive = true;
        bool m_bIsComposite = false;
        bool m_bIsFocusable = false;
        bool m_bIsInvisible = false;
        std::vector<int> m_kChildren; ///< bottom of the drawing order first
    };

    CModelTree();

    Object_t& At(int iObject) { return m_kObjects[static_cast<std::size_t>(iObject)]; }
    const Object_t& At(int iObject) const { return m_kObjects[static_cast<std::size_t>(iObject)]; }
    bool IsAlive(int iObject) const { return iObject >= 0 && At(iObject).m_bIsAlive; }
    int AliveOrNone(int iObject) const { return IsAlive(iObject) ? iObject : -1; }
    bool IsUnder(int iObject, int iAncestor) const;

    /** @return the first object with an identifier at or below an object, -1 if there is none */
    int Find(int iTop, int iID) const;

    bool CanHaveFocus(int iObject) const;
    bool RequestFocus(int iObject);

    /** Focuses the object, or the first object below it that accepts the focus. */
    bool FocusFirst(int iObject);

    /** Clears the focus if its object cannot have it any more. */
    void CheckFocus();

    void Detach(int iObject);
    void Attach(int iObject, int iParent);
    void Destroy(int iObject);
    void Hide(int iObject, bool bInvisible);

    /** @return the top of the new objects */
    int BuildShape(const Shape_t& kShape);

    std::vector<int> GetLivingObjects() const;

    int m_iFocus = -1;

private:
    std::vector<Object_t> m_kObjects;
};

#endif

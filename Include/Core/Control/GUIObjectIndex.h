// SPDX-License-Identifier: MIT
#ifndef CORE_CONTROL_GUIOBJECTINDEX_H
#define CORE_CONTROL_GUIOBJECTINDEX_H

/** @file
 *  The root's index of objects by identifier. Applications do not use it.
 */

#include "Core/Control/GUIObject.h"
#include "Core/Utils/eC_Types.h"

/** Finds objects under the root by identifier, with the same result as a search in pre-order.
 *
 *  A hash table whose entries are the objects themselves. One object of each identifier, the head, is
 *  in the chain of its bucket; a list of the others with the same identifier begins at the head. Entering
 *  and removing an object allocates nothing. The array of buckets grows with the number of objects that have
 *  an identifier; if there is no memory for a larger one, the old array stays and the chains become longer.
 *
 *  Each object of such a list is before all that come after it in the list, as far as the index knows.
 * Raising an object only ever moves it to a later place, so that holds until the object itself, or one on its
 * path to the root, is raised. The index is not told of raises: every object records when it was last raised.
 * When the count of raises runs over, everything is taken for raised once more.
 * When the head is not known as the first, a search sorts the list; then objects can be found and removed one
 * after the other without another look at all of them.
 */
class GUI_API CGUIObjectIndex
{
public:
    CGUIObjectIndex();
    CGUIObjectIndex(const CGUIObjectIndex&) = delete;
    CGUIObjectIndex& operator=(const CGUIObjectIndex&) = delete;
    ~CGUIObjectIndex();

    /** Makes room for a number of objects with an identifier. */
    void Reserve(eC_UInt uiNOFObjects);

    /** Enters an object, which is already under the root and has an identifier. */
    void Enter(CGUIObject* pkObject);

    /** Removes an object, which still has the identifier under which it was entered. */
    void Leave(CGUIObject* pkObject);

    /** @return what CGUIObject::GetObjectByID returns for the root, invisible objects included */
    CGUIObject* Find(ObjectHandle_t eID);

    /** @return what CGUIObject::GetObjectByID returns for kTop, which is under the root */
    CGUIObject* FindBelow(const CGUIObject& kTop, ObjectHandle_t eID, eC_Bool bOnlyVisible);

private:
    friend class CGUITestAccess;

    static constexpr eC_UInt cuiOwnBucketBits = 4;
    static constexpr eC_UInt cuiMaxBucketBits = 28; ///< more would overflow with pointers of 32 bits

    CGUIObject** FindHead(ObjectHandle_t eID) const;
    // The same, called: only the manager's own search is short enough for the call to matter.
    CGUIObject** FindPlace(ObjectHandle_t eID) const;
    static void MakeHead(CGUIObject** ppkPlace, CGUIObject* pkObject);
    static void InsertAfterHead(CGUIObject* pkHead, CGUIObject* pkObject);
    static void UnlinkFromSameID(CGUIObject* pkObject);
    static eC_Bool IsKnownAsFirst(const CGUIObject* pkHead);
    static CGUIObject* MakeFirstTheHead(CGUIObject** ppkPlace);
    static CGUIObject* SortInPreOrder(CGUIObject* pkFirst);
    static CGUIObject* TakeRun(CGUIObject*& pkRest);
    static eC_Bool IsBefore(const CGUIObject* pkOne, const CGUIObject* pkOther);
    static eC_Bool IsFoundFrom(const CGUIObject& kTop, const CGUIObject* pkObject, eC_Bool bOnlyVisible);
    static CGUIObject* FindAmongSeveral(CGUIObject* pkHead, const CGUIObject& kTop, eC_Bool bOnlyVisible);

    CGUIObject** m_ppkBuckets;                           ///< m_apkOwnBuckets or an owned array
    eC_UInt m_uiBucketBits;                              ///< the number of buckets is 2 to this power
    CGUIObject* m_apkOwnBuckets[1U << cuiOwnBucketBits]; ///< enough for a small application
};

#endif

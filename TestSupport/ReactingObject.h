// SPDX-License-Identifier: MIT
#ifndef TESTSUPPORT_REACTINGOBJECT_H
#define TESTSUPPORT_REACTINGOBJECT_H

/** @file
 *  An object whose virtual operations call back, as those of an application's classes may.
 */

#include "Core/Control/GUICompositeObject.h"
#include "Core/Utils/SafeGUIObjectPtr.h"

#include <functional>

/** Where a reacting object calls back. */
enum EReaction : unsigned char
{
    REACTION_SET_INVISIBLE,
    REACTION_SET_PARENT,
    REACTION_FOCUS_ANY,
    REACTION_DESTRUCTOR ///< while the object is still in the tree
};

constexpr unsigned int cuiNOFReactions = REACTION_DESTRUCTOR + 1;

/** A composite that does what its base class does, then calls a function, which may destroy it. */
class CReactingObject : public CGUICompositeObject
{
public:
    /** Receives where the call comes from and the object. */
    using Reaction_t = std::function<void(EReaction, CGUIObject*)>;

    /** @param pkParent the parent, or null
     *  @param eID the identifier
     *  @param kReaction the function; it may be empty and may change at any time. Not owned, it outlives the
     *         object
     */
    CReactingObject(CGUICompositeObject* pkParent, ObjectHandle_t eID, const Reaction_t& kReaction)
        : CGUICompositeObject(pkParent, eID), m_kReaction(kReaction)
    {
    }

    ~CReactingObject() override { React(REACTION_DESTRUCTOR); }

    void SetInvisible(const eC_Bool& bInvisible) override
    {
        CGUICompositeObject::SetInvisible(bInvisible);
        React(REACTION_SET_INVISIBLE);
    }

    void SetParent(CGUICompositeObject* pkParent) override
    {
        CGUICompositeObject::SetParent(pkParent);
        React(REACTION_SET_PARENT);
    }

    eC_Bool FocusAny() override
    {
        // A child that is asked may destroy this object.
        const CSafeGUIObjectPtr pkThis = this;
        const eC_Bool bIsFocussed = CGUICompositeObject::FocusAny();
        if (pkThis != nullptr)
        {
            React(REACTION_FOCUS_ANY);
        }
        return bIsFocussed;
    }

private:
    void React(EReaction eReaction)
    {
        if (m_kReaction)
        {
            // A copy, because the function may change the original while it runs.
            const Reaction_t kReaction = m_kReaction;
            kReaction(eReaction, this);
        }
    }

    const Reaction_t& m_kReaction;
};

#endif

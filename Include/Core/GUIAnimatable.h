// SPDX-License-Identifier: MIT
#ifndef CORE_GUIANIMATABLE_H
#define CORE_GUIANIMATABLE_H

/** @file
 *  Base class of objects that the timer calls back.
 */

#include "Core/GUITimer.h"
#include "Core/Utils/eC_Types.h"

/** An object that CGUITimer calls back periodically.
 *
 *  Registration with the timer belongs to the object's address: copying an animatable makes a new,
 *  unregistered one. An object that is destroyed while registered unregisters itself, so it can never
 *  be called back afterwards.
 */
class GUI_API CGUIAnimatable
{
public:
    /** Makes an unregistered animatable. */
    CGUIAnimatable() = default;

    /** Makes an unregistered animatable, whatever the other one is. */
    CGUIAnimatable(const CGUIAnimatable&) = default;

    /** Changes nothing about either one's registration. */
    CGUIAnimatable& operator=(const CGUIAnimatable&) = default;

    /** Unregisters the object from the timer if, and only if, the timer reports it as animating. */
    virtual ~CGUIAnimatable();

    /** Called by the timer when an interval has elapsed. The object may remove or destroy itself or any
     *  other animatable, and register new ones. An exception passes to the caller of
     *  CGUITimer::ProcessCallbacks.
     *
     *  The default only logs one DEBUG entry, which tells a developer that an override was expected and
     *  not reached.
     *  @param vTimes the number of intervals that have elapsed since the last call, at least 1
     */
    virtual void DoAnimate(const eC_Value& vTimes);

    /** Starts the animation, as derived classes define it. The default logs one DEBUG entry like that
     *  of DoAnimate.
     */
    virtual void StartAnimation();

    /** Stops the animation, as derived classes define it. The default logs one DEBUG entry like that of
     *  DoAnimate.
     */
    virtual void StopAnimation();

    /** @return true while the timer holds a callback for this object */
    virtual eC_Bool IsAnimating() const;
};

#endif

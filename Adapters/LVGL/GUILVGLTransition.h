// SPDX-License-Identifier: MIT
#ifndef ADAPTERS_LVGL_GUILVGLTRANSITION_H
#define ADAPTERS_LVGL_GUILVGLTRANSITION_H

/** @file
 *  How one dialog takes the place of another one on the display.
 */

#include "Core/Utils/eC_Types.h"

#include <lvgl.h>

/** The kinds of lv_screen_load_anim, for dialogs. */
enum EGUITransition : unsigned char
{
    TRANSITION_NONE,       ///< at once
    TRANSITION_OVER_LEFT,  ///< the new dialog moves to the left, over the old one
    TRANSITION_OVER_RIGHT, ///< to the right
    TRANSITION_OVER_UP,    ///< upwards
    TRANSITION_OVER_DOWN,  ///< downwards
    TRANSITION_MOVE_LEFT,  ///< both dialogs move to the left
    TRANSITION_MOVE_RIGHT, ///< to the right
    TRANSITION_MOVE_UP,    ///< upwards
    TRANSITION_MOVE_DOWN,  ///< downwards
    TRANSITION_OUT_LEFT,   ///< the old dialog moves away to the left, and the new one is below
    TRANSITION_OUT_RIGHT,  ///< to the right
    TRANSITION_OUT_UP,     ///< upwards
    TRANSITION_OUT_DOWN,   ///< downwards
    TRANSITION_FADE        ///< the new dialog appears over the old one
};

/** A transition between two dialogs. They stay where they are; only their styles are moved or faded. */
class CGUILVGLTransition
{
public:
    CGUILVGLTransition() = default;
    CGUILVGLTransition(const CGUILVGLTransition&) = delete;
    CGUILVGLTransition& operator=(const CGUILVGLTransition&) = delete;
    ~CGUILVGLTransition() { Finish(); }

    /** Sets the transition of the switches from now on.
     *  @param uiTime milliseconds, 0 as for TRANSITION_NONE. @param bOnce only of the next switch
     */
    void Set(EGUITransition eKind, eC_UInt uiTime, eC_Bool bOnce);

    /** @return whether the next switch has a transition */
    eC_Bool IsWanted() const { return m_eKind != TRANSITION_NONE && m_uiTime != 0; }

    /** @return whether one runs */
    eC_Bool IsRunning() const { return m_pkEntering != nullptr; }

    /** A dialog goes; it stays visible until the transition is over.
     *  @param bDeletes whether it is deleted then, otherwise hidden. Nothing refers to it any more
     */
    void Leave(lv_obj_t* pkLeaving, eC_Bool bDeletes);

    /** Starts the transition to a dialog that is shown already. */
    void Enter(lv_obj_t* pkEntering);

    /** Ends the transition at once: the new dialog is in its place, the old one hidden or deleted. Without a
     *  new dialog the old one goes, too.
     */
    void Finish();

    /** Ends a transition to which no new dialog has come, or whose new dialog was deleted. */
    void Settle();

    /** Ends a transition whose animation is over, or was deleted by something else. @return whether it ended
     */
    eC_Bool FinishIfOver();

private:
    static void OnStep(void* pTransition, int32_t iStep);
    static void OnDeleted(lv_event_t* pkEvent);
    static void Forget(lv_obj_t* pkObject, void* pTransition);
    void Place(lv_obj_t* pkObject, eC_Int iStep, eC_Int iFrom, eC_Int iTo) const;

    EGUITransition m_eKind = TRANSITION_NONE;
    EGUITransition m_eRunning = TRANSITION_NONE;
    eC_Bool m_bOnce = false;
    eC_Bool m_bDeletes = false;
    eC_UInt m_uiTime = 0;
    lv_obj_t* m_pkLeaving = nullptr;
    lv_obj_t* m_pkEntering = nullptr;
};

#endif

// SPDX-License-Identifier: MIT
#ifndef ADAPTERS_LVGL_LVGLWIDGETS_H
#define ADAPTERS_LVGL_LVGLWIDGETS_H

/** @file
 *  The native widget of each class of Widgets/, for CGUILVGL.
 */

#include "Core/Utils/eC_Types.h"
#include "Widgets/GUIWidget.h"

#include <lvgl.h>

/** What an application tells about a style, a picture or a place. */
struct LVGLLook_t
{
    /** Adds the styles of a name to an object. */
    void (*m_pfnStyle)(void* pContext, lv_obj_t* pkObject, const eC_Char* pcName);
    /** @return the source of a picture, null if there is none of that name */
    const void* (*m_pfnImage)(void* pContext, const eC_Char* pcName);
    void* m_pContext;      ///< given to both
    eC_Int m_iScreenTitle; ///< the height of the title of a screen, in pixels
    eC_Int m_iWindowTitle; ///< the height of the title of anything smaller, in pixels
};

/** Makes the native widget of a widget. @return null for a class that it does not know */
lv_obj_t* CreateLVGLWidget(const CGUIWidget& kWidget, lv_obj_t* pkParent, const LVGLLook_t& kLook);

/** Adds the styles of the widget's class and of its own name. */
void AddLVGLStyles(const CGUIWidget& kWidget, lv_obj_t* pkObject, const LVGLLook_t& kLook);

/** Shows place, size and contents.
 *  @param pkParent where the native object is, or will be
 *  @param kArea place and size in pixels, relative to the parent's upper left corner
 */
void UpdateLVGLWidget(const CGUIWidget& kWidget, lv_obj_t* pkObject, const lv_obj_t* pkParent,
                      const GUIArea_t& kArea, const LVGLLook_t& kLook);

/** @return the event by which a user presses, changes or confirms the widget; LV_EVENT_ALL: there is none */
lv_event_code_t GetLVGLInputEvent(const CGUIWidget& kWidget);

#endif

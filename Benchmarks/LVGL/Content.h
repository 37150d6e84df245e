// SPDX-License-Identifier: MIT
#ifndef BENCHMARKS_LVGL_CONTENT_H
#define BENCHMARKS_LVGL_CONTENT_H

/** @file
 *  The display, the screens and the popup that are measured: the same objects whoever manages them.
 */

#include "Benchmarks/Application.h"
#include "Benchmarks/Workload.h"
#include "LVGL/Board.h"

#include <lvgl.h>

/** LVGL with a display of 320 by 240 pixels and keys, and the styles of the screens. */
class CDisplay
{
public:
    CDisplay();
    CDisplay(const CDisplay&) = delete;
    CDisplay& operator=(const CDisplay&) = delete;
    ~CDisplay();

    /** Lets the time of one frame pass, in which everything that has changed is drawn. */
    void Draw();

    lv_indev_t* GetKeys() const { return m_pkKeys; }
    const unsigned short* GetPixels() const { return m_kBoard.GetPixels(); }
    static unsigned GetNOFPixels();

    /** @return the number of the button that gets the keys, among its siblings; -1 if none does */
    int GetFocussed() const;

private:
    CBoard m_kBoard;
    lv_indev_t* m_pkKeys = nullptr;
};

/** A screen while it exists. The first objects in it are its buttons. */
struct Content_t
{
    lv_obj_t* m_pkScreen;
    lv_obj_t* m_apkButtons[cuiButtonsPerScreen];
};

/** Makes a screen of cuiObjectsPerScreen widgets: itself, buttons with their texts, and labels.
 *  @param pkParent null: a screen of LVGL; otherwise an object that fills its parent
 */
Content_t BuildContent(lv_obj_t* pkParent, unsigned uiScreen);

/** Makes a popup: an object in the middle with a text and a button. */
Content_t BuildPopupContent(lv_obj_t* pkParent);

#endif

// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_LVGL_LOOK_H
#define EXAMPLES_COFFEEMACHINE_LVGL_LOOK_H

/** @file
 *  How the coffee machine looks on LVGL.
 */

#include "Adapters/LVGL/GUILVGL.h"

/** Colours, fonts and shapes, by the names of the classes of widgets. */
class CLook
{
public:
    CLook();
    CLook(const CLook&) = delete;
    CLook& operator=(const CLook&) = delete;
    ~CLook();

    /** @return places and sizes for a display of 40 by 12 characters */
    static GUILVGLOptions_t GetOptions();

    /** Gives the adapter the styles, which it must not outlive. */
    void AddTo(CGUILVGL& kLVGL);

private:
    enum EStyle : unsigned char
    {
        STYLE_SCREEN,
        STYLE_WINDOW,
        STYLE_POPUP,
        STYLE_SCREEN_TITLE,
        STYLE_WINDOW_TITLE,
        STYLE_LABEL,
        STYLE_BUTTON,
        STYLE_FOCUSSED,
        STYLE_PRESSED,
        STYLE_BAR,
        STYLE_FILLED,
        STYLE_SHADE,
        NOF_STYLES
    };

    lv_style_t m_akStyles[NOF_STYLES];
};

#endif

// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_LVGL_LOOK_H
#define EXAMPLES_COFFEEMACHINE_LVGL_LOOK_H

/** @file
 *  How the coffee machine looks on LVGL.
 */

#include "Adapters/LVGL/GUILVGL.h"

/** What depends on the size of the display: fonts, and pixels. */
struct LookSizes_t
{
    const lv_font_t* m_pkScreenTitleFont;
    const lv_font_t* m_pkFont; ///< of everything else
    int m_iScreenTitle;        ///< the height of the title of a screen
    int m_iWindowTitle;        ///< of anything smaller
    int m_iLeft;               ///< of the title in a screen; something less in a window
    int m_iAboveScreenTitle;
    int m_iAboveWindowTitle;
    int m_iAboveLabel;
    int m_iButtonWidth;
    int m_iButtonHeight;
};

extern const LookSizes_t ckSizesFor480x320;
extern const LookSizes_t ckSizesFor320x240;

/** Colours, fonts and shapes, by the names of the classes of widgets. */
class CLook
{
public:
    /** @param kSizes not copied, outlives it */
    explicit CLook(const LookSizes_t& kSizes);
    CLook(const CLook&) = delete;
    CLook& operator=(const CLook&) = delete;
    ~CLook();

    /** @return places and sizes for a display of 40 by 12 characters */
    GUILVGLOptions_t GetOptions() const;

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

    const LookSizes_t& m_kSizes;
    lv_style_t m_akStyles[NOF_STYLES];
};

#endif

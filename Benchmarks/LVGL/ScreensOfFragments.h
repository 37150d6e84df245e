// SPDX-License-Identifier: MIT
#ifndef BENCHMARKS_LVGL_SCREENSOFFRAGMENTS_H
#define BENCHMARKS_LVGL_SCREENSOFFRAGMENTS_H

#include "Benchmarks/LVGL/Content.h"

/** The same screens as fragments of LVGL, which are always deleted when they are left. They have neither a
 *  focus nor popups; the focus is remembered as by hand, with a group for each screen.
 */
class CScreensOfFragments
{
public:
    CScreensOfFragments(unsigned uiScreens, bool bKept);
    CScreensOfFragments(const CScreensOfFragments&) = delete;
    CScreensOfFragments& operator=(const CScreensOfFragments&) = delete;
    ~CScreensOfFragments();

    void Forth(unsigned uiScreen);
    void Back() { Require(lv_fragment_manager_pop(m_pkManager)); }

    /** All has been done at once. */
    static void Turn() {}

    CDisplay& GetDisplay() { return m_kDisplay; }

private:
    struct Fragment_t;
    struct Arguments_t
    {
        CScreensOfFragments* m_pkThis;
        unsigned m_uiScreen;
    };

    static void Construct(lv_fragment_t* pkFragment, void* pArguments);
    static lv_obj_t* Create(lv_fragment_t* pkFragment, lv_obj_t* pkContainer);
    static void WillDelete(lv_fragment_t* pkFragment, lv_obj_t* pkObject);

    CDisplay m_kDisplay;
    lv_obj_t* m_pkContainer; ///< LVGL keeps its address
    lv_fragment_manager_t* m_pkManager;
};

#endif

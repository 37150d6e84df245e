// SPDX-License-Identifier: MIT
#ifndef BENCHMARKS_LVGL_SCREENSBYHAND_H
#define BENCHMARKS_LVGL_SCREENSBYHAND_H

#include "Benchmarks/LVGL/Content.h"

#include <vector>

/** Screens by hand, as good users of LVGL write them: each screen is one of LVGL's with a group of its own,
 *  which keeps the focus of a hidden screen; a stack remembers the way back, with the focus of screens that
 *  are deleted. The popup lies in the top layer, in an object that keeps touches from the screen.
 */
class CScreensByHand
{
public:
    /** @param bKept whether screens are hidden or deleted when they are left */
    CScreensByHand(unsigned uiScreens, bool bKept);
    CScreensByHand(const CScreensByHand&) = delete;
    CScreensByHand& operator=(const CScreensByHand&) = delete;
    ~CScreensByHand();

    void Forth(unsigned uiScreen);
    void Back();
    void ShowPopup();
    void ClosePopup();

    /** All has been done at once. */
    static void Turn() {}

    CDisplay& GetDisplay() { return m_kDisplay; }

private:
    struct Screen_t
    {
        lv_obj_t* m_pkScreen = nullptr;
        lv_group_t* m_pkGroup = nullptr;
    };

    struct Entry_t
    {
        unsigned m_uiScreen;
        int m_iFocussed;
    };

    void Build(unsigned uiScreen, int iFocussed);
    void Delete(Screen_t& kScreen);
    void Enter(unsigned uiScreen, int iFocussed);

    CDisplay m_kDisplay;
    std::vector<Screen_t> m_kScreens;
    std::vector<Entry_t> m_kHistory;
    unsigned m_uiCurrent = 0;
    bool m_bKept;
    lv_obj_t* m_pkCover = nullptr;
    lv_group_t* m_pkPopupGroup = nullptr;
};

#endif

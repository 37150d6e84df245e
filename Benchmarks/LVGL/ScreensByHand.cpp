// SPDX-License-Identifier: MIT
#include "Benchmarks/LVGL/ScreensByHand.h"

CScreensByHand::CScreensByHand(unsigned uiScreens, bool bKept) : m_kScreens(uiScreens), m_bKept(bKept)
{
    m_kHistory.reserve(uiScreens);
    Enter(0, cuiFocussedButton);

    m_pkCover = lv_obj_create(lv_layer_top());
    lv_obj_remove_style_all(m_pkCover);
    lv_obj_set_size(m_pkCover, LV_PCT(100), LV_PCT(100));
    lv_obj_add_flag(m_pkCover, LV_OBJ_FLAG_HIDDEN);
    m_pkPopupGroup = lv_group_create();
    lv_group_add_obj(m_pkPopupGroup, BuildPopupContent(m_pkCover).m_apkButtons[0]);
}

CScreensByHand::~CScreensByHand()
{
    Require(m_uiCurrent == 0 && m_kHistory.empty());
    lv_group_delete(m_pkPopupGroup);
    for (const Screen_t& kScreen : m_kScreens)
    {
        if (kScreen.m_pkGroup != nullptr)
        {
            lv_group_delete(kScreen.m_pkGroup);
        }
    }
}

void CScreensByHand::Forth(unsigned uiScreen)
{
    m_kHistory.push_back({m_uiCurrent, m_kDisplay.GetFocussed()});
    Enter(uiScreen, 0);
}

void CScreensByHand::Back()
{
    const Entry_t kEntry = m_kHistory.back();
    m_kHistory.pop_back();
    Enter(kEntry.m_uiScreen, kEntry.m_iFocussed);
}

void CScreensByHand::Enter(unsigned uiScreen, int iFocussed)
{
    const unsigned uiOld = m_uiCurrent;
    m_uiCurrent = uiScreen;
    if (m_kScreens[uiScreen].m_pkScreen == nullptr)
    {
        Build(uiScreen, iFocussed);
    }
    lv_screen_load(m_kScreens[uiScreen].m_pkScreen);
    lv_indev_set_group(m_kDisplay.GetKeys(), m_kScreens[uiScreen].m_pkGroup);
    if (!m_bKept && uiOld != uiScreen)
    {
        Delete(m_kScreens[uiOld]);
    }
}

void CScreensByHand::Build(unsigned uiScreen, int iFocussed)
{
    const Content_t kContent = BuildContent(nullptr, uiScreen);
    Screen_t& kScreen = m_kScreens[uiScreen];
    kScreen.m_pkScreen = kContent.m_pkScreen;
    kScreen.m_pkGroup = lv_group_create();
    for (lv_obj_t* pkButton : kContent.m_apkButtons)
    {
        lv_group_add_obj(kScreen.m_pkGroup, pkButton);
    }
    lv_group_focus_obj(kContent.m_apkButtons[iFocussed]);
}

void CScreensByHand::Delete(Screen_t& kScreen)
{
    lv_group_delete(kScreen.m_pkGroup);
    lv_obj_delete(kScreen.m_pkScreen);
    kScreen = {};
}

void CScreensByHand::ShowPopup()
{
    lv_obj_remove_flag(m_pkCover, LV_OBJ_FLAG_HIDDEN);
    lv_indev_set_group(m_kDisplay.GetKeys(), m_pkPopupGroup);
}

void CScreensByHand::ClosePopup()
{
    lv_obj_add_flag(m_pkCover, LV_OBJ_FLAG_HIDDEN);
    lv_indev_set_group(m_kDisplay.GetKeys(), m_kScreens[m_uiCurrent].m_pkGroup);
}

// SPDX-License-Identifier: MIT
#include "Benchmarks/LVGL/ScreensWithAdapter.h"

namespace
{
const ObjectHandle_t cePopup = static_cast<ObjectHandle_t>(1);
const ObjectHandle_t ceConfirm = static_cast<ObjectHandle_t>(2);
} // namespace

CScreensWithAdapter::CScreensWithAdapter(unsigned uiScreens, bool bKept)
    : m_kLVGL(GUILVGLOptions_t(), m_kListener),
      m_kManager(m_kLVGL.GetMirror()),
      m_kPopupBuilder(&BuildPopup, this),
      m_eAction(bKept ? CGUIDialogManager::ODA_INVISIBLE : CGUIDialogManager::ODA_DELETE)
{
    for (unsigned uiScreen = 0; uiScreen < uiScreens; ++uiScreen)
    {
        m_kScreens.push_back({this, uiScreen, CGUILVGLBuilder(&Build, nullptr)});
        Screen_t& kScreen = m_kScreens.back();
        kScreen.m_kBuilder = CGUILVGLBuilder(&Build, &kScreen);
        m_kLVGL.GetMirror().AddBuilder(GetScreenID(uiScreen), kScreen.m_kBuilder);
    }
    m_kLVGL.GetMirror().AddBuilder(cePopup, m_kPopupBuilder);
    m_kManager.RegisterPopupDefinition(cePopup, CGUIDialogManager::PRIO_MEDIUM, 0, false, "");
    Forth(0);
    Focus(GetButtonID(GetScreenID(0), cuiFocussedButton));
    Turn();
}

lv_obj_t* CScreensWithAdapter::Build(lv_obj_t* pkParent, void* pScreen)
{
    const Screen_t& kScreen = *static_cast<const Screen_t*>(pScreen);
    const Content_t kContent = BuildContent(pkParent, kScreen.m_uiScreen);
    for (unsigned uiButton = 0; uiButton < cuiButtonsPerScreen; ++uiButton)
    {
        kScreen.m_pkThis->m_kLVGL.Identify(kContent.m_apkButtons[uiButton],
                                           GetButtonID(GetScreenID(kScreen.m_uiScreen), uiButton));
    }
    return kContent.m_pkScreen;
}

lv_obj_t* CScreensWithAdapter::BuildPopup(lv_obj_t* pkParent, void* pThis)
{
    const Content_t kContent = BuildPopupContent(pkParent);
    static_cast<CScreensWithAdapter*>(pThis)->m_kLVGL.Identify(kContent.m_apkButtons[0], ceConfirm);
    return kContent.m_pkScreen;
}

void CScreensWithAdapter::Forth(unsigned uiScreen)
{
    Require(m_kManager.CreateDialog(GetScreenID(uiScreen), m_eAction) != nullptr);
}

void CScreensWithAdapter::ShowPopup()
{
    Require(m_kManager.ShowPopup(cePopup) != nullptr);
}

void CScreensWithAdapter::ClosePopup()
{
    Require(m_kManager.ClosePopup(cePopup));
}

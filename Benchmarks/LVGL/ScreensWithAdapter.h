// SPDX-License-Identifier: MIT
#ifndef BENCHMARKS_LVGL_SCREENSWITHADAPTER_H
#define BENCHMARKS_LVGL_SCREENSWITHADAPTER_H

#include "Adapters/LVGL/GUILVGL.h"
#include "Adapters/Mirror/GUIMirroredManager.h"
#include "Benchmarks/LVGL/Content.h"
#include "Core/Control/GUI.h"

#include <deque>

/** The same screens with the dialog manager. */
class CScreensWithAdapter
{
public:
    CScreensWithAdapter(unsigned uiScreens, bool bKept);
    CScreensWithAdapter(const CScreensWithAdapter&) = delete;
    CScreensWithAdapter& operator=(const CScreensWithAdapter&) = delete;
    ~CScreensWithAdapter() { Require(m_kManager.GetHistoryStackSize() == 0); }

    void Forth(unsigned uiScreen);
    void Back() { m_kManager.Back(m_eAction == CGUIDialogManager::ODA_DELETE); }
    void ShowPopup();
    void ClosePopup();

    /** Makes visible what has been done. */
    void Turn() { m_kLVGL.Turn(); }

    CDisplay& GetDisplay() { return m_kDisplay; }

private:
    class CListener : public CGUIWidgetListener
    {
    public:
        void OnActivated(CGUIWidget&) override {}
        void OnChanged(CGUIWidget&) override {}
    };

    struct Screen_t
    {
        CScreensWithAdapter* m_pkThis;
        unsigned m_uiScreen;
        CGUILVGLBuilder m_kBuilder;
    };

    static lv_obj_t* Build(lv_obj_t* pkParent, void* pScreen);
    static lv_obj_t* BuildPopup(lv_obj_t* pkParent, void* pThis);

    CDisplay m_kDisplay;
    CGUI m_kRoot;
    CListener m_kListener;
    CGUILVGL m_kLVGL;
    CGUIMirroredManager m_kManager;
    std::deque<Screen_t> m_kScreens;
    CGUILVGLBuilder m_kPopupBuilder;
    CGUIDialogManager::EOldDialogAction m_eAction;
};

#endif

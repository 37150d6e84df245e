// SPDX-License-Identifier: MIT
#ifndef TESTS_FLTK_FLTKTEST_H
#define TESTS_FLTK_FLTKTEST_H

/** @file
 *  A window of FLTK, with events that tests make.
 */

#include "Adapters/FLTK/GUIFLTK.h"
#include "Adapters/Mirror/GUINativePart.h"
#include "Tests/Adapters/AdapterTest.h"

#include <FL/Fl_Button.H>
#include <FL/Fl_Double_Window.H>

#include <memory>
#include <vector>

/** A screen of the application's own, as users of FLTK write it. */
struct Screen_t
{
    CGUIFLTK* m_pkFLTK = nullptr;
    std::vector<ObjectHandle_t> m_aeButtons;
    Fl_Callback* m_pfnClick = nullptr;
    void* m_pClicked = nullptr;
    eC_Bool m_bFails = false;
    eC_Bool m_bThrows = false;
    eC_UInt m_uiBuilt = 0;
    Fl_Group* m_pkBuilt = nullptr;
};

/** Builds a Screen_t: a group with a button for each identifier, and one without. */
Fl_Widget* BuildScreen(Fl_Group* pkParent, void* pUserData);

/** A window of 320 by 240 pixels. */
class CFLTKTest : public CAdapterTest
{
protected:
    CFLTKTest();
    ~CFLTKTest() override;

    /** Lets FLTK turn, and draw what has changed. */
    static void Turn();

    void PressKey(int iKey, const char* pcText = "", int iState = 0) const;
    void Touch(int iX, int iY) const;
    void Touch(const Fl_Widget* pkWidget) const;

    Fl_Widget* NativeOf(ObjectHandle_t eID) const { return m_pkFLTK->GetNative(Object(eID)); }
    template <typename TNative>
    TNative& NativeAs(ObjectHandle_t eID) const
    {
        return *static_cast<TNative*>(NativeOf(eID));
    }
    bool IsSeen(ObjectHandle_t eID) const
    {
        return NativeOf(eID) != nullptr && NativeOf(eID)->visible_r() != 0;
    }
    void Restart(const GUIAdapterOptions_t& kUnits = GUIAdapterOptions_t());

    std::unique_ptr<Fl_Double_Window> m_pkWindow;
    std::unique_ptr<CGUIFLTK> m_pkFLTK;
};

#endif

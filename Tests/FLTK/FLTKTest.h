// SPDX-License-Identifier: MIT
#ifndef TESTS_FLTK_FLTKTEST_H
#define TESTS_FLTK_FLTKTEST_H

/** @file
 *  A window of FLTK, with events that tests make.
 */

#include "Adapters/FLTK/GUIFLTK.h"
#include "Adapters/Mirror/GUIMirroredManager.h"
#include "Adapters/Mirror/GUINativePart.h"
#include "TestSupport/GTest/GUITestFixture.h"
#include "Tests/Unit/UnitTestHandles.h"
#include "Widgets/GUIWidgets.h"

#include <FL/Fl_Button.H>
#include <FL/Fl_Double_Window.H>

#include <functional>
#include <memory>
#include <string>
#include <vector>

/** @return the bytes that the program has allocated */
std::size_t GetHeapUse();

/** Records what the user does, and does what the test wants then. */
class CUser : public CGUIWidgetListener
{
public:
    void OnActivated(CGUIWidget& kWidget) override
    {
        m_kLog += "activated " + NameOfHandle(kWidget.GetObject().GetID()) + "; ";
        if (m_kOnActivated)
        {
            m_kOnActivated();
        }
    }
    void OnChanged(CGUIWidget& kWidget) override
    {
        m_kLog += "changed " + NameOfHandle(kWidget.GetObject().GetID()) + " " +
                  std::to_string(kWidget.GetValue()) + kWidget.GetText() + "; ";
    }

    std::string TakeLog()
    {
        std::string kLog;
        kLog.swap(m_kLog);
        return kLog;
    }

    std::function<void()> m_kOnActivated;

private:
    std::string m_kLog;
};

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
class CFLTKTest : public CGUITest
{
protected:
    CFLTKTest();
    ~CFLTKTest() override;

    CGUIMirroredManager& Dialogs() { return *m_pkDialogs; }

    CGUIScreen* AddScreen(ObjectHandle_t eID, const std::vector<ObjectHandle_t>& aeButtons);
    void Show(ObjectHandle_t eID,
              CGUIDialogManager::EOldDialogAction eAction = CGUIDialogManager::ODA_INVISIBLE)
    {
        EXPECT_NE(nullptr, Dialogs().CreateDialog(eID, eAction));
    }

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
    std::string FocusName() const { return NameOfObject(Focus()); }
    std::string TakeErrors();
    void Restart(const GUIAdapterOptions_t& kUnits = GUIAdapterOptions_t());

    std::unique_ptr<Fl_Double_Window> m_pkWindow;
    CUser m_kUser;
    std::unique_ptr<CGUIFLTK> m_pkFLTK;
    std::unique_ptr<CGUIMirroredManager> m_pkDialogs;
};

#endif

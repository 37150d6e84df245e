// SPDX-License-Identifier: MIT
#include "Tests/FLTK/FLTKTest.h"

#include <stdexcept>

Fl_Widget* BuildScreen(Fl_Group* pkParent, void* pUserData)
{
    auto& kScreen = *static_cast<Screen_t*>(pUserData);
    ++kScreen.m_uiBuilt;
    auto* pkScreen = new Fl_Group(pkParent->x(), pkParent->y(), pkParent->w(), pkParent->h());
    pkScreen->box(FL_FLAT_BOX);
    int iY = pkParent->y();
    for (const ObjectHandle_t eButton : kScreen.m_aeButtons)
    {
        auto* pkButton = new Fl_Button(pkParent->x(), iY, 100, 30);
        iY += 40;
        kScreen.m_pkFLTK->Identify(*pkButton, eButton);
        if (kScreen.m_pfnClick != nullptr)
        {
            pkButton->callback(kScreen.m_pfnClick, kScreen.m_pClicked);
        }
    }
    new Fl_Button(pkParent->x(), iY, 100, 30);
    pkScreen->end();
    kScreen.m_pkBuilt = pkScreen;
    if (kScreen.m_bThrows)
    {
        throw std::runtime_error("wrong");
    }
    // A builder that fails should delete what it has made; this one forgets.
    return kScreen.m_bFails ? nullptr : pkScreen;
}

CFLTKTest::CFLTKTest() : m_pkWindow(new Fl_Double_Window(320, 240))
{
    m_pkWindow->end();
    m_pkWindow->show();
    m_pkWindow->wait_for_expose();
    Restart();
}

void CFLTKTest::Restart(const GUIAdapterOptions_t& kUnits)
{
    m_pkDialogs.reset();
    m_pkFLTK.reset();
    GUIFLTKOptions_t kOptions;
    static_cast<GUIAdapterOptions_t&>(kOptions) = kUnits;
    kOptions.m_pkParent = m_pkWindow.get();
    m_pkFLTK.reset(new CGUIFLTK(kOptions, m_kUser));
    m_pkDialogs.reset(new CGUIMirroredManager(m_pkFLTK->GetMirror()));
}

CFLTKTest::~CFLTKTest()
{
    DestroyManager();
    m_pkDialogs.reset();
    DestroyRoot();
    m_pkFLTK.reset();
    m_pkWindow.reset();
    Fl::check();
}

void CFLTKTest::Turn()
{
    // What the display itself sends comes in a turn, and takes effect in the next one.
    Fl::check();
    Fl::check();
}

void CFLTKTest::PressKey(int iKey, const char* pcText, int iState) const
{
    std::string kText = pcText;
    Fl::e_keysym = iKey;
    Fl::e_state = iState;
    Fl::e_text = kText.data();
    Fl::e_length = static_cast<int>(kText.size());
    Fl::handle(FL_KEYBOARD, m_pkWindow.get());
    Fl::handle(FL_KEYUP, m_pkWindow.get());
    Fl::e_text = const_cast<char*>("");
    Fl::e_length = 0;
    Fl::e_keysym = 0;
    Turn();
}

void CFLTKTest::Touch(int iX, int iY) const
{
    Fl::e_x = Fl::e_x_root = iX;
    Fl::e_y = Fl::e_y_root = iY;
    Fl::e_state = 0;
    Fl::e_keysym = FL_Button + FL_LEFT_MOUSE;
    Fl::handle(FL_MOVE, m_pkWindow.get());
    Fl::e_state = FL_BUTTON1;
    Fl::handle(FL_PUSH, m_pkWindow.get());
    Fl::e_state = 0;
    Fl::handle(FL_RELEASE, m_pkWindow.get());
    Fl::e_keysym = 0;
    Turn();
}

void CFLTKTest::Touch(const Fl_Widget* pkWidget) const
{
    Touch(pkWidget->x() + pkWidget->w() / 2, pkWidget->y() + pkWidget->h() / 2);
}

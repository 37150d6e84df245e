// SPDX-License-Identifier: MIT
#include "FLTK/Window.h"

#include <FL/Fl.H>

namespace
{
constexpr int ciServiceKey = FL_F + 12;
} // namespace

CMachineWindow::CMachineWindow(CController& kController)
    : Fl_Double_Window(0, 0, ciWidth, ciHeight, "Coffee machine"), m_kController(kController)
{
    end();
}

int CMachineWindow::handle(int iEvent)
{
    if (iEvent == FL_KEYBOARD)
    {
        switch (Fl::event_key())
        {
        case FL_Escape:
            m_kController.PressKey(KEY_BACK);
            return 1;
        case FL_Home:
            m_kController.PressKey(KEY_HOME);
            return 1;
        case ciServiceKey:
            m_kController.PressKey(KEY_SERVICE);
            return 1;
        default:
            break;
        }
    }
    return Fl_Double_Window::handle(iEvent);
}

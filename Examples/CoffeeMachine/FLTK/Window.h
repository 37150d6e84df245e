// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_FLTK_WINDOW_H
#define EXAMPLES_COFFEEMACHINE_FLTK_WINDOW_H

/** @file
 *  The window of the coffee machine.
 */

#include "Application/Controller.h"

#include <FL/Fl_Double_Window.H>

/** The display, and the keys below it: Tab is next, Enter is OK, Escape is back, Home is home, and F12 is the
 *  technician's key. FLTK handles the first two.
 */
class CMachineWindow : public Fl_Double_Window
{
public:
    static constexpr int ciWidth = 480;
    static constexpr int ciHeight = 320;

    explicit CMachineWindow(CController& kController);

    int handle(int iEvent) override;

private:
    CController& m_kController;
};

#endif

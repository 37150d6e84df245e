// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_FLTK_LOOK_H
#define EXAMPLES_COFFEEMACHINE_FLTK_LOOK_H

/** @file
 *  How the coffee machine looks on FLTK.
 */

#include "Adapters/FLTK/GUIFLTK.h"

/** @return places and sizes for a display of 40 by 12 characters in a window */
GUIFLTKOptions_t GetFLTKOptions(Fl_Group& kWindow);

/** Gives the adapter colours and shapes, by the names of the classes of widgets. */
void AddFLTKStyles(CGUIFLTK& kFLTK);

#endif

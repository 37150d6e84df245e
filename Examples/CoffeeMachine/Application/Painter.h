// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_APPLICATION_PAINTER_H
#define EXAMPLES_COFFEEMACHINE_APPLICATION_PAINTER_H

/** @file
 *  Draws the widgets. It knows nothing of the coffee machine.
 */

#include "Application/Screen.h"

/** Draws everything visible below the root, in drawing order: the dialog first, popups over it. */
void PaintScreen(CScreen& kScreen);

#endif

// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_APPLICATION_PAINTER_H
#define EXAMPLES_COFFEEMACHINE_APPLICATION_PAINTER_H

/** @file
 *  Draws the object tree.
 */

#include "Application/Screen.h"
#include "Application/Values.h"

/** Draws everything visible below the root, in drawing order: the dialog first, popups over it. */
void PaintScreen(CScreen& kScreen, const CValueSource& kValues);

#endif

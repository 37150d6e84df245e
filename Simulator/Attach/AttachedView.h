// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_ATTACH_ATTACHEDVIEW_H
#define SIMULATOR_ATTACH_ATTACHEDVIEW_H

/** @file
 *  Draws what is known of a running program, in the panes of the simulator.
 */

#include "Simulator/Attach/AttachedDesk.h"
#include "Simulator/TextScreen.h"

/** Draws a desk: where the user of the program is, its objects beside that, and the trace below.
 *  @param iWidth, iHeight in characters, at least 0; what does not fit is cut off
 */
CTextScreen DrawAttached(const CAttachedDesk& kDesk, eC_Int iWidth, eC_Int iHeight);

/** Turns the mouse wheel over a desk that was drawn in that size. @param iLines down; negative: up */
void ScrollAttached(CAttachedDesk& kDesk, eC_Int iHeight, eC_Int iY, eC_Int iLines);

#endif

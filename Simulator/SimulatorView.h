// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_SIMULATORVIEW_H
#define SIMULATOR_SIMULATORVIEW_H

/** @file
 *  Draws a simulator's desk: the device, the inspector, the trace, and what is open over them.
 */

#include "Simulator/SimulatorDesk.h"
#include "Simulator/TextScreen.h"

/** The least size that has room for everything. */
constexpr eC_Int ciLeastDeskWidth = 80;
constexpr eC_Int ciLeastDeskHeight = 24;

/** Draws a desk. A smaller screen than the least one shows what fits.
 *  @param iWidth, iHeight in characters, at least 0
 */
CTextScreen DrawDesk(const CSimulatorDesk& kDesk, eC_Int iWidth, eC_Int iHeight);

/** Clicks on a desk that was drawn in that size: touches the device, presses one of its keys, or chooses a
 * line of an open menu or form.
 */
void ClickDesk(CSimulatorDesk& kDesk, eC_Int iWidth, eC_Int iHeight, eC_Int iX, eC_Int iY);

/** Turns the mouse wheel over a desk. @param iLines down; negative: up */
void ScrollDesk(CSimulatorDesk& kDesk, eC_Int iWidth, eC_Int iHeight, eC_Int iX, eC_Int iY, eC_Int iLines);

#endif

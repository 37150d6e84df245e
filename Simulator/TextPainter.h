// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_TEXTPAINTER_H
#define SIMULATOR_TEXTPAINTER_H

/** @file
 *  Draws widgets as characters. It knows nothing of any application.
 */

#include "Simulator/SimulatedApplication.h"
#include "Simulator/TextScreen.h"

/** Draws everything visible under the root, in drawing order: the dialog first, popups over it. What has the
 *  focus is between > and <.
 *
 *  | Widget | Looks like |
 *  |---|---|
 *  | screen that fills the display | its title, with a line below it |
 *  | smaller screen | a box with its title |
 *  | popup | the same, with double edges |
 *  | button | [ text ] |
 *  | check box | [x] text |
 *  | bar | ####------ and its value after it, in percent if its range is 0 to 100 |
 *  | slider | ---O------ and its value after it |
 *  | list | its entries, with * before the selected one |
 *  | text field | its text, filled up with _; the caption while it is empty |
 *  | image | its name, `<cup>` |
 *
 *  @param kDevice the size of the display and of its characters
 *  @return a screen that is as large as the display
 */
CTextScreen PaintDevice(const Device_t& kDevice);

/** Updates the widgets' values (see CGUIWidget::UpdateValues) and paints the device.
 *  @return its rows in a frame, each with a line break at its end
 */
std::string PaintFrame(const Device_t& kDevice);

#endif

// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_BROWSER_SCREENLINE_H
#define SIMULATOR_BROWSER_SCREENLINE_H

/** @file
 *  What a simulated device shows, as a line of JSON.
 */

#include "Inspection/InspectionLine.h"
#include "Simulator/SimulatedApplication.h"

/** Writes the member "widgets": the visible widgets in drawing order, a widget before its children.
 *
 *  Each has its "kind" ("screen", "popup", "container", "label", "image", "button", "checkbox", "bar",
 * "slider", "list", "textfield"; "widget" for a class of the application), "depth", identifier, area ("x",
 * "y", "width", "height", in units of the dialog files) and "text"; where they apply "style", "focusable",
 * "focus" and "modal". A check box, bar, slider and list have a "value", a bar and slider "minimum" and
 * "maximum", an image "image". A list has the "entries" that are visible, the number of the "first" one, and
 * "rowheight". A text field has its "entry" and the "cursor" in it, in characters.
 *
 *  @param kLine a line that was begun
 */
void WriteScreen(CInspectionLine& kLine, const Device_t& kDevice);

#endif

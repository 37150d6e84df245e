// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_LVGL_BOARDPICTURE_H
#define EXAMPLES_COFFEEMACHINE_LVGL_BOARDPICTURE_H

/** @file
 *  What is on the display of a board.
 */

#include "Drawn/Picture.h"
#include "LVGL/Board.h"

Picture_t TakePicture(const CBoard& kBoard);

/** Writes what is on the display as a PPM, without memory for the whole of it, replacing an existing file.
 *  @return empty, or what went wrong
 */
std::string WritePlainPicture(const CBoard& kBoard, const std::string& kPath);

#endif

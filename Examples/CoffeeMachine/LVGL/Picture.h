// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_LVGL_PICTURE_H
#define EXAMPLES_COFFEEMACHINE_LVGL_PICTURE_H

/** @file
 *  Writes what is on a display to a file.
 */

#include <string>

class CBoard;

/** Writes a PNG, replacing an existing file. @return false if it cannot be written; errno says why */
bool WritePicture(const CBoard& kBoard, const std::string& kPath);

#endif

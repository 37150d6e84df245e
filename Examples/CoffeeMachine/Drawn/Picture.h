// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_DRAWN_PICTURE_H
#define EXAMPLES_COFFEEMACHINE_DRAWN_PICTURE_H

/** @file
 *  Writes what is on a display to a file.
 */

#include <string>
#include <vector>

/** What is on a display. */
struct Picture_t
{
    int m_iWidth;
    int m_iHeight;
    std::vector<unsigned char> m_kBytes; ///< row by row: red, green and blue of each pixel
};

/** Writes a PNG, replacing an existing file. @return empty, or what went wrong */
std::string WritePicture(const Picture_t& kPicture, const std::string& kFolder, const std::string& kName);

#endif

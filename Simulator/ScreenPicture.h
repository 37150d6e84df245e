// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_SCREENPICTURE_H
#define SIMULATOR_SCREENPICTURE_H

/** @file
 *  A screen of characters as a picture.
 */

#include "Simulator/TextScreen.h"

/** How a style looks. Colours are those of terminals: 0 black, 1 red, 2 green, 3 yellow, 4 blue, 5 magenta,
 *  6 cyan, 7 white; -1 for the usual one.
 */
struct StyleLook_t
{
    eC_Int m_iColour;
    eC_Int m_iBackground;
    eC_Bool m_bIsBold;
    eC_Bool m_bIsReversed; ///< where there are no colours
    eC_Bool m_bIsUnderlined;
};

/** @return the look of a style */
const StyleLook_t& GetStyleLook(ETextStyle eStyle);

/** Writes a screen as SVG, with the characters as text.
 *  @param kTitle what it shows, for those who cannot see it
 *  @return the whole file; the same screen always gives the same file
 */
std::string WriteSVG(const CTextScreen& kScreen, const std::string& kTitle);

#endif

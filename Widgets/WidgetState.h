// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WIDGETSTATE_H
#define WIDGETS_WIDGETSTATE_H

/** @file
 *  Saved states that consist of one number: 32 bits, the least significant byte first.
 */

#include "Core/Utils/eC_Types.h"

class CGUIWidget;

constexpr eC_UInt cuiNumberBytes = 4; ///< the size of a saved number in bytes

/** Saves a number. @return its size in bytes; it is written if it fits */
eC_UInt SaveNumber(eC_Int iNumber, unsigned char* puiStateOUT, eC_UInt uiSize);

/** @return the number of these cuiNumberBytes bytes */
eC_Int ReadSavedNumber(const unsigned char* puiState);

/** Gives a widget the saved value. @return false, with nothing changed, if the size is not that of a number
 */
eC_Bool RestoreNumber(CGUIWidget& kWidget, const unsigned char* puiState, eC_UInt uiSize);

#endif

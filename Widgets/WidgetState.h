// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WIDGETSTATE_H
#define WIDGETS_WIDGETSTATE_H

/** @file
 *  Saved states that are one number, of 32 bits and the least significant byte first.
 */

#include "Core/Utils/eC_Types.h"

class CGUIWidget;

constexpr eC_UInt cuiNumberBytes = 4; ///< the bytes of a saved number

/** Saves a number. @return its bytes, which were written if they fit */
eC_UInt SaveNumber(eC_Int iNumber, unsigned char* puiStateOUT, eC_UInt uiSize);

/** @return the number of these cuiNumberBytes bytes */
eC_Int ReadSavedNumber(const unsigned char* puiState);

/** Gives a widget the value saved. @return false, with nothing changed, when the size is not that of a number
 */
eC_Bool RestoreNumber(CGUIWidget& kWidget, const unsigned char* puiState, eC_UInt uiSize);

#endif

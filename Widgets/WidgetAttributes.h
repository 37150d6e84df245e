// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WIDGETATTRIBUTES_H
#define WIDGETS_WIDGETATTRIBUTES_H

/** @file
 *  Reads the values of attributes. Each function returns ATTRIBUTE_SET, or ATTRIBUTE_BAD_VALUE and what was
 *  expected.
 */

#include "Core/Control/GUIObject.h"
#include "Core/Utils/eC_String.h"
#include "Core/Utils/eC_Types.h"

/** @return whether two names are the same */
eC_Bool IsName(const eC_Char* pcName, const eC_Char* pcOther);

/** Reads a decimal number with an optional minus. */
EAttributeResult ReadNumber(const eC_Char* pcValue, eC_Int iLeast, eC_Int iMost, eC_Int& iNumberOUT,
                            eC_String& kExpectedOUT);

/** Reads a size: a number, "natural" or "fill". */
EAttributeResult ReadSize(const eC_Char* pcValue, eC_Int& iSizeOUT, eC_String& kExpectedOUT);

/** Reads "true" or "false". */
EAttributeResult ReadFlag(const eC_Char* pcValue, eC_Bool& bFlagOUT, eC_String& kExpectedOUT);

/** Puts the names of a class's own attributes before those of its base class.
 *  @param eResult what the base class returned
 *  @return the same
 */
EAttributeResult WithOwnNames(EAttributeResult eResult, const eC_Char* pcOwnNames, eC_String& kExpectedOUT);

#endif

// SPDX-License-Identifier: MIT
#ifndef WIDGETS_GUIWIDGETCONTENTS_H
#define WIDGETS_GUIWIDGETCONTENTS_H

/** @file
 *  What an application tells the widgets of its dialog files: its texts and its values, by name.
 */

#include "Core/Utils/eC_Types.h"

/** The application's number for a text or a value. */
using GUIContentKey_t = unsigned short;

constexpr GUIContentKey_t cuiNoContent = 0; ///< no text, no value

/** The application's texts, in the language of the moment. */
class CGUITranslator
{
public:
    /** Finds a text by the name that dialog files give it in textkey.
     *  @param pcName the name, zero-terminated
     *  @param uiKeyOUT receives its number, not cuiNoContent; untouched when there is none
     *  @return true when found
     */
    virtual eC_Bool FindText(const eC_Char* pcName, GUIContentKey_t& uiKeyOUT) const = 0;

    /** @return the text, zero-terminated UTF-8; good until the language changes */
    virtual const eC_Char* GetText(GUIContentKey_t uiKey) const = 0;

protected:
    ~CGUITranslator() = default;
};

/** The application's changing values. */
class CGUIValueSource
{
public:
    /** Finds a value by the name that dialog files give it in source.
     *  @param pcName the name, zero-terminated
     *  @param uiValueOUT receives its number, not cuiNoContent; untouched when there is none
     *  @return true when found
     */
    virtual eC_Bool FindValue(const eC_Char* pcName, GUIContentKey_t& uiValueOUT) const = 0;

    /** @return the value as widgets with a text show it, zero-terminated UTF-8; good until the next call */
    virtual const eC_Char* GetValueText(GUIContentKey_t uiValue) const = 0;

    /** @return the value as bars, sliders, lists and check boxes show it */
    virtual eC_Int GetValueNumber(GUIContentKey_t uiValue) const = 0;

protected:
    ~CGUIValueSource() = default;
};

#endif

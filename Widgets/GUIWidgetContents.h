// SPDX-License-Identifier: MIT
#ifndef WIDGETS_GUIWIDGETCONTENTS_H
#define WIDGETS_GUIWIDGETCONTENTS_H

/** @file
 *  What an application supplies to the widgets of its dialog files: its texts and its values, by name.
 */

#include "Core/Utils/eC_Types.h"

/** The application's number for a text or a value. */
using GUIContentKey_t = unsigned short;

constexpr GUIContentKey_t cuiNoContent = 0; ///< no text, no value

/** The application's texts, in the current language. */
class CGUITranslator
{
public:
    /** Finds a text by the name that dialog files give in textkey.
     *  @param pcName the name, zero-terminated
     *  @param uiKeyOUT receives its number, not cuiNoContent; untouched if there is none
     *  @return true if found
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
    /** Finds a value by the name that dialog files give in source.
     *  @param pcName the name, zero-terminated
     *  @param uiValueOUT receives its number, not cuiNoContent; untouched if there is none
     *  @return true if found
     */
    virtual eC_Bool FindValue(const eC_Char* pcName, GUIContentKey_t& uiValueOUT) const = 0;

    /** @return the value as text, for widgets that show one, zero-terminated UTF-8; good until the next call
     */
    virtual const eC_Char* GetValueText(GUIContentKey_t uiValue) const = 0;

    /** @return the value as a number, for bars, sliders, lists and check boxes */
    virtual eC_Int GetValueNumber(GUIContentKey_t uiValue) const = 0;

protected:
    ~CGUIValueSource() = default;
};

#endif

// SPDX-License-Identifier: MIT
#ifndef ADAPTERS_MIRROR_GUIWIDGETLOOKS_H
#define ADAPTERS_MIRROR_GUIWIDGETLOOKS_H

/** @file
 *  What adapters ask about a widget when they draw it.
 */

#include "Widgets/GUIWidget.h"

/** @return the name of the widget's class as in a dialog file, such as Button; empty for a class that is not
 *          one of Widgets/
 */
const eC_Char* GetGUIClassName(const CGUIWidget& kWidget);

/** @return whether a widget is a popup */
eC_Bool IsGUIPopup(const CGUIWidget& kWidget);

/** @return whether a widget is a bar or a slider of natural height, which is half as high as its line */
eC_Bool IsGUIThinBar(const CGUIWidget& kWidget);

/** What a widget shows: its caption, its text, or both with a blank between them. */
class CGUIShownText
{
public:
    /** @param kWidget outlives this, unchanged */
    explicit CGUIShownText(const CGUIWidget& kWidget);
    CGUIShownText(const CGUIShownText&) = delete;
    CGUIShownText& operator=(const CGUIShownText&) = delete;

    /** @return zero-terminated UTF-8; if there are both, at most 255 bytes */
    const eC_Char* GetText() const { return m_pcText; }

private:
    const eC_Char* m_pcText;
    eC_Char m_acBoth[256];
};

#endif

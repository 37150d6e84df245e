// SPDX-License-Identifier: MIT
#ifndef WIDGETS_GUIWIDGETINPUT_H
#define WIDGETS_GUIWIDGETINPUT_H

/** @file
 *  From keys, touches and typed text to what the user wants.
 */

#include "Widgets/GUIWidget.h"

class CGUIWidgetLayout;

/** What an application hears of its users. Either function may switch dialogs and destroy the widget. What it
 *  throws passes through.
 */
class CGUIWidgetListener
{
public:
    /** The user has pressed a button, taken an entry of a list or finished a text. */
    virtual void OnActivated(CGUIWidget& kWidget) = 0;

    /** The user has changed value or text of a slider, check box, list or text field. Here: nothing. */
    virtual void OnChanged(CGUIWidget& kWidget);

protected:
    ~CGUIWidgetListener() = default;
};

/** Passes on what front ends hear of a user: first to the widget that has the focus, then to the focus.
 *
 *  Input goes to one window: a visible modal popup, the topmost of several; else the object directly under
 * the root in which the focus is; else, when nobody has it, the topmost visible object under the root. While
 * a modal popup is shown, nothing outside it is reached.
 *
 *  A step to the window costs one for each object directly under the root. Nothing here allocates (see
 *  CGUITextField for what typing may), logs or throws of its own.
 */
class CGUIWidgetInput
{
public:
    /** @param kListener not owned */
    explicit CGUIWidgetInput(CGUIWidgetListener& kListener) : m_kListener(kListener) {}

    /** Passes a key to the widget that has the focus; one that it does not need moves the focus in the
     * window: GUIKEY_NEXT, GUIKEY_DOWN and GUIKEY_RIGHT on, GUIKEY_PREVIOUS, GUIKEY_UP and GUIKEY_LEFT back.
     *  @return false when it had no effect at all
     */
    eC_Bool PressKey(EGUIKey eKey);

    /** Passes typed text to the widget that has the focus.
     *  @param pcText zero-terminated UTF-8
     *  @return false when it had no effect at all
     */
    eC_Bool Type(const eC_Char* pcText);

    /** Gives the focus to a widget and activates it, as a touch on a button does.
     *  @param pkObject the widget's object; null is ignored
     *  @return false, with nothing done, when it cannot have the focus, is no widget or lies outside a modal
     *          popup
     */
    eC_Bool Touch(CGUIObject* pkObject);

    /** Touches a point of the display: the topmost focusable widget there gets the focus and reacts.
     *  @param kLayout where everything lies
     *  @return false, with nothing done, when there is none or it lies outside a modal popup
     */
    eC_Bool TouchAt(eC_Int iX, eC_Int iY, const CGUIWidgetLayout& kLayout);

    /** Tells that the user has set a value, for a toolkit whose own sliders, lists and check boxes do so.
     *  @return whether it differs from the one before
     */
    eC_Bool ChangeValue(CGUIWidget& kWidget, eC_Int iValue);

    /** Tells that the user has edited a text, for a toolkit whose own text fields do so.
     *  @param pcText zero-terminated UTF-8
     *  @return whether it differs from the one before
     */
    eC_Bool ChangeText(CGUIWidget& kWidget, const eC_Char* pcText);

    /** @return the window that input goes to, null when there is none */
    static CGUIObject* GetWindow();

    /** @return the modal popup that is shown, the topmost of several, null when there is none */
    static CGUIObject* GetModalWindow();

private:
    static CGUIWidget* FindFocussed(const CGUIObject* pkWindow);
    static eC_Bool FocusForTouch(CGUIObject* pkObject);
    eC_Bool Tell(CGUIWidget& kWidget, EGUIReaction eReaction);

    CGUIWidgetListener& m_kListener;
};

#endif

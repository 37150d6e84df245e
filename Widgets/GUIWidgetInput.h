// SPDX-License-Identifier: MIT
#ifndef WIDGETS_GUIWIDGETINPUT_H
#define WIDGETS_GUIWIDGETINPUT_H

/** @file
 *  Turns keys, touches and typed text into what the user wants.
 */

#include "Widgets/GUIWidget.h"

class CGUIWidgetLayout;

/** Notifies an application of user input. Both functions may switch dialogs and destroy the widget.
 *  Exceptions pass through.
 */
class CGUIWidgetListener
{
public:
    /** The user has pressed a button, confirmed an entry of a list or finished a text. */
    virtual void OnActivated(CGUIWidget& kWidget) = 0;

    /** The user has changed the value or text of a slider, check box, list or text field. Does nothing here.
     */
    virtual void OnChanged(CGUIWidget& kWidget);

protected:
    ~CGUIWidgetListener() = default;
};

/** Passes on user input from front ends to the widget that has the focus. A key that the widget does not use
 *  may move the focus.
 *
 *  All input goes to one window. That is the topmost visible modal popup; without one, the object directly
 *  under the root that contains the focus; and if nothing has the focus, the topmost visible object under the
 *  root. While a modal popup is shown, nothing outside it receives input.
 *
 *  Finding the window takes one step for each object directly under the root. Nothing here allocates (except
 *  typing, see CGUITextField), logs or throws by itself.
 */
class CGUIWidgetInput
{
public:
    /** @param kListener not owned */
    explicit CGUIWidgetInput(CGUIWidgetListener& kListener) : m_kListener(kListener) {}

    /** Passes a key to the widget that has the focus. A key that it does not use moves the focus within the
     *  window: GUIKEY_NEXT, GUIKEY_DOWN and GUIKEY_RIGHT forwards, GUIKEY_PREVIOUS, GUIKEY_UP and GUIKEY_LEFT
     *  back.
     *  @return false if it had no effect at all
     */
    eC_Bool PressKey(EGUIKey eKey);

    /** Passes typed text to the widget that has the focus.
     *  @param pcText zero-terminated UTF-8
     *  @return false if it had no effect at all
     */
    eC_Bool Type(const eC_Char* pcText);

    /** Gives the focus to a widget and activates it, like a touch on a button.
     *  @param pkObject the widget's object; null is ignored
     *  @return false, with nothing done, if it cannot have the focus, is no widget or is outside a modal
     *         popup
     */
    eC_Bool Touch(CGUIObject* pkObject);

    /** Touches a point of the display: the topmost focusable widget there gets the focus and reacts.
     *  @param kLayout where the widgets are
     *  @return false, with nothing done, if there is none or it is outside a modal popup
     */
    eC_Bool TouchAt(eC_Int iX, eC_Int iY, const CGUIWidgetLayout& kLayout);

    /** Reports that the user has set a value, for a toolkit with its own sliders, lists and check boxes.
     *  @return whether the value changed
     */
    eC_Bool ChangeValue(CGUIWidget& kWidget, eC_Int iValue);

    /** Reports that the user has edited a text, for a toolkit with its own text fields.
     *  @param pcText zero-terminated UTF-8
     *  @return whether the text changed
     */
    eC_Bool ChangeText(CGUIWidget& kWidget, const eC_Char* pcText);

    /** @return the window that receives input, null if there is none */
    static CGUIObject* GetWindow();

    /** @return the topmost modal popup that is shown, null if there is none */
    static CGUIObject* GetModalWindow();

private:
    static CGUIWidget* FindFocussed(const CGUIObject* pkWindow);
    static eC_Bool FocusForTouch(CGUIObject* pkObject);
    eC_Bool Tell(CGUIWidget& kWidget, EGUIReaction eReaction);

    CGUIWidgetListener& m_kListener;
};

#endif

// SPDX-License-Identifier: MIT
#ifndef WIDGETS_GUIWIDGETVISITOR_H
#define WIDGETS_GUIWIDGETVISITOR_H

/** @file
 *  How front ends receive widgets.
 */

#include "Widgets/GUIWidget.h"

class CGUIBar;
class CGUIButton;
class CGUICheckBox;
class CGUIContainer;
class CGUIImage;
class CGUILabel;
class CGUIList;
class CGUIPopup;
class CGUIScreen;
class CGUISlider;
class CGUITextField;

/** A front end, or anything else that treats each class of widgets differently: one function for each class,
 *  which calls OnWidget unless it is overridden. kArea is the widget's area on the display. A function must
 *  not change any widget or object.
 */
class CGUIWidgetVisitor
{
public:
    /** Called for each widget of the class, parents before their children.
     *  @{
     */
    virtual void OnScreen(const CGUIScreen& kScreen, const GUIArea_t& kArea);
    virtual void OnPopup(const CGUIPopup& kPopup, const GUIArea_t& kArea);
    virtual void OnContainer(const CGUIContainer& kContainer, const GUIArea_t& kArea);
    virtual void OnLabel(const CGUILabel& kLabel, const GUIArea_t& kArea);
    virtual void OnImage(const CGUIImage& kImage, const GUIArea_t& kArea);
    virtual void OnButton(const CGUIButton& kButton, const GUIArea_t& kArea);
    virtual void OnCheckBox(const CGUICheckBox& kCheckBox, const GUIArea_t& kArea);
    virtual void OnBar(const CGUIBar& kBar, const GUIArea_t& kArea);
    virtual void OnSlider(const CGUISlider& kSlider, const GUIArea_t& kArea);
    virtual void OnList(const CGUIList& kList, const GUIArea_t& kArea);
    virtual void OnTextField(const CGUITextField& kTextField, const GUIArea_t& kArea);
    /** @} */

    /** Called for each widget whose class has no override in this visitor. */
    virtual void OnWidget(const CGUIWidget& kWidget, const GUIArea_t& kArea) = 0;

    /** Called after the children of a screen, popup or container. Does nothing here. */
    virtual void OnEnd(const CGUIWidget& kWidget);

protected:
    ~CGUIWidgetVisitor() = default;
};

#endif

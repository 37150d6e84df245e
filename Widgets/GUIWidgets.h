// SPDX-License-Identifier: MIT
#ifndef WIDGETS_GUIWIDGETS_H
#define WIDGETS_GUIWIDGETS_H

/** @file
 *  All classes of widgets, and how dialog files get to know them.
 */

#include "Widgets/GUIBar.h"
#include "Widgets/GUIButton.h"
#include "Widgets/GUIContainer.h"
#include "Widgets/GUILabel.h"
#include "Widgets/GUIList.h"
#include "Widgets/GUITextField.h"

class CGUIFactoryManager;

/** Makes the classes known to the factory, by the names of their elements: Screen, Popup, Container, Label,
 *  Image, Button, CheckBox, Bar, Slider, List, TextField. A name that is registered already stays as it is.
 */
void RegisterGUIWidgets(CGUIFactoryManager& kFactory);

#endif

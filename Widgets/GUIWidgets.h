// SPDX-License-Identifier: MIT
#ifndef WIDGETS_GUIWIDGETS_H
#define WIDGETS_GUIWIDGETS_H

/** @file
 *  All classes of widgets, and how to make them known to dialog files.
 */

#include "Widgets/GUIBar.h"
#include "Widgets/GUIButton.h"
#include "Widgets/GUIContainer.h"
#include "Widgets/GUILabel.h"
#include "Widgets/GUIList.h"
#include "Widgets/GUITextField.h"

class CGUIFactoryManager;

/** Registers the classes with the factory, by the names of their elements: Screen, Popup, Container, Label,
 *  Image, Button, CheckBox, Bar, Slider, List, TextField. A name that is already registered stays as it is.
 */
void RegisterGUIWidgets(CGUIFactoryManager& kFactory);

#endif

// SPDX-License-Identifier: MIT
#include "Widgets/GUIWidgets.h"

#include "Core/GUIFactoryManager.h"

void RegisterGUIWidgets(CGUIFactoryManager& kFactory)
{
    kFactory.RegisterObjectClass<CGUIScreen>("Screen");
    kFactory.RegisterObjectClass<CGUIPopup>("Popup");
    kFactory.RegisterObjectClass<CGUIContainer>("Container");
    kFactory.RegisterObjectClass<CGUILabel>("Label");
    kFactory.RegisterObjectClass<CGUIImage>("Image");
    kFactory.RegisterObjectClass<CGUIButton>("Button");
    kFactory.RegisterObjectClass<CGUICheckBox>("CheckBox");
    kFactory.RegisterObjectClass<CGUIBar>("Bar");
    kFactory.RegisterObjectClass<CGUISlider>("Slider");
    kFactory.RegisterObjectClass<CGUIList>("List");
    kFactory.RegisterObjectClass<CGUITextField>("TextField");
}

// SPDX-License-Identifier: MIT
#include "Application/BuiltDialogs.h"

#include "Application/Handles.h"
#include "Application/Texts.h"
#include "Application/Values.h"
#include "Core/Control/GUI.h"
#include "Widgets/GUIWidgets.h"

namespace
{
void AddLabel(CGUIContainer* pkWindow, eC_Int iX, eC_Int iY, ETextKey eText, EValue eValue)
{
    auto* pkLabel = new CGUILabel(pkWindow, NO_HANDLE);
    pkLabel->SetPosition(iX, iY);
    pkLabel->SetTextKey(eText);
    pkLabel->SetSource(eValue);
}

void AddButton(CGUIContainer* pkWindow, eC_Int iX, eC_Int iY, ObjectHandle_t eID, ETextKey eText)
{
    auto* pkButton = new CGUIButton(pkWindow, eID);
    pkButton->SetPosition(iX, iY);
    pkButton->SetTextKey(eText);
}
} // namespace

CGUIObject* BuildBrewingDialog()
{
    auto* pkDialog = new CGUIScreen(&CGUI::GetInstance(), DLG_BREWING);
    pkDialog->SetTextKey(TXT_BREWING);
    AddLabel(pkDialog, 3, 3, TXT_NONE, VALUE_CUP);
    AddLabel(pkDialog, 3, 7, TXT_NONE, VALUE_STATUS);

    auto* pkBar = new CGUIBar(pkDialog, NO_HANDLE);
    pkBar->SetPosition(3, 5);
    pkBar->SetSize(20, 1);
    pkBar->SetSource(VALUE_PROGRESS);

    AddButton(pkDialog, 3, 10, BTN_BACK, TXT_BACK);
    AddButton(pkDialog, 18, 10, BTN_STOP, TXT_STOP);
    return pkDialog;
}

CGUIObject* BuildAboutDialog()
{
    auto* pkDialog = new CGUIScreen(&CGUI::GetInstance(), NO_HANDLE);
    pkDialog->SetTextKey(TXT_ABOUT);
    pkDialog->SetPosition(4, 3);
    pkDialog->SetSize(32, 7);
    AddLabel(pkDialog, 3, 2, TXT_ABOUT_TEXT, VALUE_NONE);
    AddLabel(pkDialog, 3, 3, TXT_ABOUT_TEXT_2, VALUE_NONE);
    AddButton(pkDialog, 3, 5, BTN_BACK, TXT_BACK);
    return pkDialog;
}

CGUIObject* BuildSavedPopup()
{
    // Attached at once, so that it always has an owner.
    auto* pkPopup = new CGUIPopup(&CGUI::GetInstance(), POP_SAVED);
    pkPopup->SetPosition(11, 8);
    pkPopup->SetSize(18, 3);
    AddLabel(pkPopup, 3, 1, TXT_SAVED, VALUE_NONE);
    return pkPopup;
}

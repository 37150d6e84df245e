// SPDX-License-Identifier: MIT
#include "Application/BuiltDialogs.h"

#include "Application/Handles.h"
#include "Application/Widgets.h"
#include "Core/Control/GUI.h"

namespace
{
void AddLabel(CWindow* pkWindow, eC_Int iX, eC_Int iY, ETextKey eText, EValue eValue)
{
    auto* pkLabel = new CLabel(pkWindow, NO_HANDLE);
    pkLabel->SetPosition(iX, iY);
    pkLabel->SetText(eText);
    pkLabel->SetValue(eValue);
}

void AddButton(CWindow* pkWindow, eC_Int iX, eC_Int iY, ObjectHandle_t eID, ETextKey eText)
{
    auto* pkButton = new CButton(pkWindow, eID);
    pkButton->SetPosition(iX, iY);
    pkButton->SetText(eText);
}
} // namespace

CGUIObject* BuildBrewingDialog()
{
    auto* pkDialog = new CDialog(&CGUI::GetInstance(), DLG_BREWING);
    pkDialog->SetText(TXT_BREWING);
    AddLabel(pkDialog, 3, 3, TXT_NONE, VALUE_CUP);
    AddLabel(pkDialog, 3, 7, TXT_NONE, VALUE_STATUS);

    auto* pkGauge = new CGauge(pkDialog, NO_HANDLE);
    pkGauge->SetPosition(3, 5);
    pkGauge->SetValue(VALUE_PROGRESS);
    pkGauge->SetWidth(20);

    AddButton(pkDialog, 3, 10, BTN_BACK, TXT_BACK);
    AddButton(pkDialog, 18, 10, BTN_STOP, TXT_STOP);
    return pkDialog;
}

CGUIObject* BuildAboutDialog()
{
    auto* pkDialog = new CDialog(&CGUI::GetInstance(), NO_HANDLE);
    pkDialog->SetText(TXT_ABOUT);
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
    auto* pkPopup = new CPopup(&CGUI::GetInstance(), POP_SAVED);
    pkPopup->SetPosition(11, 8);
    pkPopup->SetSize(18, 3);
    AddLabel(pkPopup, 3, 1, TXT_SAVED, VALUE_NONE);
    return pkPopup;
}

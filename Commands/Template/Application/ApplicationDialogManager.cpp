#include "Application/ApplicationDialogManager.h"

#include "Application/Handles.h"
#include "Application/Text.h"

void CApplicationDialogManager::SetBrightness(eC_UInt uiBrightness)
{
    m_uiBrightness = uiBrightness;
    ShowBrightness(GetCurrentDialog());
}

void CApplicationDialogManager::OnDialogActivation(CGUIObject* pDialog)
{
    CGUIDialogManager::OnDialogActivation(pDialog);
    ShowBrightness(pDialog);
}

void CApplicationDialogManager::ShowBrightness(const CGUIObject* pkDialog) const
{
    CGUIObject* pkText = pkDialog != nullptr ? pkDialog->GetObjectByID(TXT_BRIGHTNESS, false) : nullptr;
    if (pkText != nullptr)
    {
        // Dialog files use this identifier only for the element Text.
        static_cast<CText*>(pkText)->SetText("Brightness " + std::to_string(m_uiBrightness) + " %");
    }
}

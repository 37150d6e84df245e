#include "Application/ApplicationDialogManager.h"

#include "Application/Handles.h"
#include "Widgets/GUIWidget.h"

#include <string>

void CApplicationDialogManager::SetBrightness(eC_UInt uiBrightness)
{
    m_uiBrightness = uiBrightness;
    ShowBrightness(GetCurrentDialog());
}

void CApplicationDialogManager::OnDialogActivation(CGUIObject* pDialog)
{
    CGUIObservedDialogManager::OnDialogActivation(pDialog);
    ShowBrightness(pDialog);
}

void CApplicationDialogManager::ShowBrightness(const CGUIObject* pkDialog) const
{
    CGUIWidget* pkLabel =
        pkDialog != nullptr ? CGUIWidget::Find(pkDialog->GetObjectByID(TXT_BRIGHTNESS, false)) : nullptr;
    if (pkLabel != nullptr)
    {
        pkLabel->SetText(("Brightness " + std::to_string(m_uiBrightness) + " %").c_str());
    }
}

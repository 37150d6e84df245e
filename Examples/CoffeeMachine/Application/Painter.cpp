// SPDX-License-Identifier: MIT
#include "Application/Painter.h"

#include "Application/Widgets.h"
#include "Core/Control/GUI.h"

namespace
{
void PaintObject(CScreen& kScreen, const CValueSource& kValues, const CGUIObject& kObject, eC_Int iX,
                 eC_Int iY)
{
    if (kObject.IsInvisible())
    {
        return;
    }

    const CWidget* pkWidget = CWidget::Find(&kObject);
    if (pkWidget != nullptr)
    {
        iX += pkWidget->GetX();
        iY += pkWidget->GetY();
        pkWidget->Paint(kScreen, kValues, iX, iY);
    }

    if (kObject.IsCompositeObject())
    {
        const auto& kComposite = static_cast<const CGUICompositeObject&>(kObject);
        for (const CGUIObject* pkChild = kComposite.GetFirstChild(); pkChild != nullptr;
             pkChild = pkChild->GetNextSibling())
        {
            PaintObject(kScreen, kValues, *pkChild, iX, iY);
        }
    }
}
} // namespace

void PaintScreen(CScreen& kScreen, const CValueSource& kValues)
{
    kScreen.Clear();
    PaintObject(kScreen, kValues, CGUI::GetInstance(), 0, 0);
}

// SPDX-License-Identifier: MIT
#include "Adapters/Mirror/GUINativePart.h"

#include "Widgets/GUIWidgetVisitor.h"

CGUINativePart::CGUINativePart(CGUICompositeObject* pkParent, ObjectHandle_t eID)
    : CGUIWidgetObject(pkParent, eID)
{
    SetFocusable(true);
}

void CGUINativePart::Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const
{
    kVisitor.OnWidget(*this, kArea);
}

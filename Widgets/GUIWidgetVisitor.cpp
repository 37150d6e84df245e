// SPDX-License-Identifier: MIT
#include "Widgets/GUIWidgetVisitor.h"

#include "Widgets/GUIWidgets.h"

void CGUIWidgetVisitor::OnScreen(const CGUIScreen& kScreen, const GUIArea_t& kArea)
{
    OnWidget(kScreen, kArea);
}

void CGUIWidgetVisitor::OnPopup(const CGUIPopup& kPopup, const GUIArea_t& kArea)
{
    OnWidget(kPopup, kArea);
}

void CGUIWidgetVisitor::OnContainer(const CGUIContainer& kContainer, const GUIArea_t& kArea)
{
    OnWidget(kContainer, kArea);
}

void CGUIWidgetVisitor::OnLabel(const CGUILabel& kLabel, const GUIArea_t& kArea)
{
    OnWidget(kLabel, kArea);
}

void CGUIWidgetVisitor::OnImage(const CGUIImage& kImage, const GUIArea_t& kArea)
{
    OnWidget(kImage, kArea);
}

void CGUIWidgetVisitor::OnButton(const CGUIButton& kButton, const GUIArea_t& kArea)
{
    OnWidget(kButton, kArea);
}

void CGUIWidgetVisitor::OnCheckBox(const CGUICheckBox& kCheckBox, const GUIArea_t& kArea)
{
    OnWidget(kCheckBox, kArea);
}

void CGUIWidgetVisitor::OnBar(const CGUIBar& kBar, const GUIArea_t& kArea)
{
    OnWidget(kBar, kArea);
}

void CGUIWidgetVisitor::OnSlider(const CGUISlider& kSlider, const GUIArea_t& kArea)
{
    OnWidget(kSlider, kArea);
}

void CGUIWidgetVisitor::OnList(const CGUIList& kList, const GUIArea_t& kArea)
{
    OnWidget(kList, kArea);
}

void CGUIWidgetVisitor::OnTextField(const CGUITextField& kTextField, const GUIArea_t& kArea)
{
    OnWidget(kTextField, kArea);
}

void CGUIWidgetVisitor::OnEnd(const CGUIWidget&) {}

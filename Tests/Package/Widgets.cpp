// SPDX-License-Identifier: MIT
// An application whose dialog consists of the library's widgets, with its own front end.

#include "Core/Control/GUI.h"
#include "Widgets/GUIWidgetLayout.h"
#include "Widgets/GUIWidgetVisitor.h"
#include "Widgets/GUIWidgets.h"

#include <cstdio>

namespace
{
class CFrontEnd : public CGUIWidgetVisitor
{
public:
    void OnWidget(const CGUIWidget& kWidget, const GUIArea_t& kArea) override
    {
        std::printf("%s at %d,%d\n", kWidget.GetText(), kArea.m_iX, kArea.m_iY);
    }
};
} // namespace

int main()
{
    CGUI kRoot;
    auto* pkScreen = new CGUIScreen(&kRoot);
    pkScreen->SetText("Home");
    auto* pkButton = new CGUIButton(pkScreen);
    pkButton->SetText("Start");
    pkButton->SetPosition(3, 2);

    CFrontEnd kFrontEnd;
    CGUIWidgetLayout(40, 12).Visit(kFrontEnd);
    return 0;
}

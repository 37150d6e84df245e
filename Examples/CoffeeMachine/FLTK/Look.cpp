// SPDX-License-Identifier: MIT
#include "FLTK/Look.h"

#include "Simulation/SimulatedCoffeeMachine.h"

#include <FL/Fl_RGB_Image.H>
#include <FL/Fl_Tiled_Image.H>

namespace
{
constexpr Fl_Color cuiCream = 0xF7F2EA00; // red, green, blue, and no number of a palette
constexpr Fl_Color cuiWhite = 0xFFFFFF00;
constexpr Fl_Color cuiEspresso = 0x35251C00;
constexpr Fl_Color cuiMilk = 0xE6DACB00;
constexpr Fl_Color cuiCopper = 0xB8652B00;

constexpr int ciTitleSize = 18;    ///< of its letters, in pixels
constexpr int ciScreenTitle = 46;  ///< pixels
constexpr int ciWindowTitle = 27;  ///< pixels
constexpr int ciButtonWidth = 152; ///< pixels
constexpr int ciButtonHeight = 24; ///< pixels

void Paint(Fl_Widget& kWidget, Fl_Boxtype eBox, Fl_Color uiColor, Fl_Color uiTextColor)
{
    kWidget.box(eBox);
    kWidget.color(uiColor);
    kWidget.labelcolor(uiTextColor);
}

void PaintScreenTitle(Fl_Widget& kTitle)
{
    Paint(kTitle, FL_FLAT_BOX, cuiEspresso, cuiCream);
    kTitle.align(FL_ALIGN_CENTER | FL_ALIGN_INSIDE | FL_ALIGN_CLIP);
    kTitle.labelsize(ciTitleSize);
}

void PaintWindowTitle(Fl_Widget& kTitle)
{
    Paint(kTitle, FL_FLAT_BOX, cuiCopper, cuiWhite);
    kTitle.align(FL_ALIGN_CENTER | FL_ALIGN_INSIDE | FL_ALIGN_CLIP);
}

void PaintButton(Fl_Widget& kButton)
{
    Paint(kButton, FL_BORDER_BOX, cuiMilk, cuiEspresso);
    kButton.selection_color(cuiCopper);
}

void PaintBar(Fl_Widget& kBar)
{
    Paint(kBar, FL_FLAT_BOX, cuiMilk, cuiEspresso);
    kBar.selection_color(cuiCopper);
}

/** Lets what is below shine through. */
void PaintShade(Fl_Widget& kShade)
{
    static const uchar s_auiPixel[] = {0x35, 0x25, 0x1C, 0x80};
    static Fl_RGB_Image s_kPixel(s_auiPixel, 1, 1, sizeof(s_auiPixel));
    static Fl_RGB_Image* s_pkTile = static_cast<Fl_RGB_Image*>(s_kPixel.copy(32, 32));
    static Fl_Tiled_Image s_kTiles(s_pkTile);
    kShade.image(&s_kTiles);
    kShade.align(FL_ALIGN_CENTER | FL_ALIGN_INSIDE | FL_ALIGN_CLIP);
}
} // namespace

GUIFLTKOptions_t GetFLTKOptions(Fl_Group& kWindow)
{
    GUIFLTKOptions_t kOptions;
    kOptions.m_iWidth = ckCoffeeMachineDevice.m_iWidth;
    kOptions.m_iHeight = ckCoffeeMachineDevice.m_iHeight;
    kOptions.m_iScreenTitle = ciScreenTitle;
    kOptions.m_iWindowTitle = ciWindowTitle;
    kOptions.m_iButtonWidth = ciButtonWidth;
    kOptions.m_iButtonHeight = ciButtonHeight;
    kOptions.m_pkParent = &kWindow;
    return kOptions;
}

void AddFLTKStyles(CGUIFLTK& kFLTK)
{
    kFLTK.AddStyle("WholeScreen",
                   [](Fl_Widget& kScreen) { Paint(kScreen, FL_FLAT_BOX, cuiCream, cuiEspresso); });
    kFLTK.AddStyle("Window",
                   [](Fl_Widget& kWindow) { Paint(kWindow, FL_BORDER_BOX, cuiWhite, cuiEspresso); });
    kFLTK.AddStyle("ScreenTitle", &PaintScreenTitle);
    kFLTK.AddStyle("WindowTitle", &PaintWindowTitle);
    kFLTK.AddStyle("Label", [](Fl_Widget& kLabel) { kLabel.labelcolor(cuiEspresso); });
    kFLTK.AddStyle("Button", &PaintButton);
    kFLTK.AddStyle("Button:focus",
                   [](Fl_Widget& kButton) { Paint(kButton, FL_BORDER_BOX, cuiCopper, cuiWhite); });
    kFLTK.AddStyle("Bar", &PaintBar);
    kFLTK.AddStyle("Shade", &PaintShade);
}

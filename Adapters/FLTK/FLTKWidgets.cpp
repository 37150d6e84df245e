// SPDX-License-Identifier: MIT
#include "Adapters/FLTK/FLTKWidgets.h"

#include "Adapters/Mirror/GUIWidgetLooks.h"
#include "Widgets/GUIWidgetVisitor.h"
#include "Widgets/GUIWidgets.h"

#include <FL/Fl_Button.H>
#include <FL/Fl_Check_Button.H>
#include <FL/Fl_Hold_Browser.H>
#include <FL/Fl_Hor_Nice_Slider.H>
#include <FL/Fl_Input.H>
#include <FL/Fl_Progress.H>
#include <FL/fl_draw.H>

#include <algorithm>
#include <cstring>
#include <string>

// ---- Looks -----------------------------------------------------------------------------------------

void CFLTKWidget::KeepLook(const Fl_Widget& kWidget)
{
    m_eBox = kWidget.box();
    m_uiColor = kWidget.color();
    m_uiSelectionColor = kWidget.selection_color();
    m_uiLabelColor = kWidget.labelcolor();
    m_iFont = kWidget.labelfont();
    m_iFontSize = kWidget.labelsize();
    m_uiAlign = kWidget.align();
}

void CFLTKWidget::ResetLook(Fl_Widget& kWidget) const
{
    kWidget.box(m_eBox);
    kWidget.color(m_uiColor, m_uiSelectionColor);
    kWidget.labelcolor(m_uiLabelColor);
    kWidget.labelfont(m_iFont);
    kWidget.labelsize(m_iFontSize);
    kWidget.align(m_uiAlign);
}

void SetFLTKLabel(Fl_Widget& kNative, const eC_Char* pcText)
{
    // FLTK takes what follows an @ for the name of a symbol.
    std::string kLabel;
    for (; *pcText != '\0'; ++pcText)
    {
        kLabel += *pcText == '@' ? "@@" : std::string(1, *pcText);
    }
    if (kNative.label() == nullptr || kLabel != kNative.label())
    {
        kNative.copy_label(kLabel.c_str());
    }
}

// ---- Windows ---------------------------------------------------------------------------------------

namespace
{
constexpr int ciForwards = 1;
constexpr int ciBackwards = -1;

/** @return where the key of the current event moves the focus, 0 if it does not */
int GetDirection()
{
    switch (Fl::event_key())
    {
    case FL_Tab:
        return Fl::event_state(FL_SHIFT) != 0 ? ciBackwards : ciForwards;
    case FL_Right:
    case FL_Down:
        return ciForwards;
    case FL_Left:
    case FL_Up:
        return ciBackwards;
    default:
        return 0;
    }
}

/** A widget that tells the adapter what happens to it.
 *  @tparam TBase a class of FLTK. @tparam bTakesEnter whether Enter is like a press
 */
template <typename TBase, eC_Bool bTakesEnter>
class CNative : public TBase, public CFLTKWidget
{
public:
    CNative(CGUIMirrored& kMirrored, CFLTKEvents& kEvents)
        : TBase(0, 0, 0, 0), CFLTKWidget(kMirrored, kEvents)
    {
        // An ampersand in a text is an ampersand.
        TBase::clear_flag(Fl_Widget::SHORTCUT_LABEL);
    }
    ~CNative() override { m_kEvents.OnDeleted(m_kMirrored, *this); }

    int handle(int iEvent) override
    {
        if (bTakesEnter && iEvent == FL_KEYBOARD &&
            (Fl::event_key() == FL_Enter || Fl::event_key() == FL_KP_Enter))
        {
            m_kEvents.OnEnter(m_kMirrored);
            return 1;
        }
        const int iIsUsed = TBase::handle(iEvent);
        if (iEvent == FL_UNFOCUS || (iEvent == FL_FOCUS && iIsUsed != 0))
        {
            m_bHasFocus = iEvent == FL_FOCUS;
            m_kEvents.OnFocusChanged(m_kMirrored);
        }
        return iIsUsed;
    }
};

/** A text field that shows what to enter as long as it is empty; that is its label. */
class CTextField : public CNative<Fl_Input, true>
{
public:
    using CNative::CNative;

protected:
    void draw() override
    {
        Fl_Input::draw();
        if (size() == 0 && label() != nullptr)
        {
            fl_font(textfont(), textsize());
            fl_color(fl_inactive(textcolor()));
            fl_draw(label(), x() + textsize() / 2, y(), w(), h(), FL_ALIGN_LEFT | FL_ALIGN_CLIP);
        }
    }
};
} // namespace

CFLTKWindow::CFLTKWindow(CGUIMirrored& kMirrored, CFLTKEvents& kEvents)
    : Fl_Group(0, 0, 0, 0), CFLTKWidget(kMirrored, kEvents)
{
    // A group that moves takes its children with it; without this it would also stretch them.
    resizable(nullptr);
    clip_children(1);
    hide();
    end();
}

CFLTKWindow::~CFLTKWindow()
{
    m_kEvents.OnDeleted(m_kMirrored, *this);
}

int CFLTKWindow::handle(int iEvent)
{
    const int iIsUsed = Fl_Group::handle(iEvent);
    switch (iEvent)
    {
    case FL_PUSH:
    case FL_MOUSEWHEEL:
        // What it covers is not touched.
        return 1;
    case FL_KEYBOARD:
        break;
    default:
        return iIsUsed;
    }
    const int iDirection = GetDirection();
    if (iIsUsed != 0 || iDirection == 0)
    {
        return iIsUsed;
    }
    // The focus goes around, and not on to the window beside.
    for (int iChild = 0; iChild < children(); ++iChild)
    {
        if (child(iDirection == ciForwards ? iChild : children() - 1 - iChild)->take_focus() != 0)
        {
            break;
        }
    }
    return 1;
}

void CFLTKWindow::SetContent(Fl_Widget& kContent)
{
    m_pkContent = std::make_unique<CFLTKPointer>(&kContent);
    if (kContent.parent() == nullptr)
    {
        add(kContent);
    }
}

void CFLTKWindow::AddPart(Fl_Widget& kWidget, CGUIMirrored& kPart)
{
    m_kParts.emplace_back(kWidget, kPart);
}

Fl_Widget* CFLTKWindow::FindPart(const CGUIMirrored& kPart) const
{
    const auto kFound = std::find_if(m_kParts.begin(), m_kParts.end(),
                                     [&kPart](const Part_t& kOne) { return kOne.m_pkMirrored == &kPart; });
    return kFound != m_kParts.end() ? kFound->m_kWidget.Get() : nullptr;
}

CGUIMirrored* CFLTKWindow::FindPart(const Fl_Widget* pkWidget) const
{
    const auto kFound =
        std::find_if(m_kParts.begin(), m_kParts.end(),
                     [pkWidget](const Part_t& kOne) { return kOne.m_kWidget.Get() == pkWidget; });
    return kFound != m_kParts.end() ? kFound->m_pkMirrored : nullptr;
}

void CFLTKWindow::RemovePart(const CGUIMirrored& kPart)
{
    m_kParts.remove_if([&kPart](const Part_t& kOne) { return kOne.m_pkMirrored == &kPart; });
}

// ---- The classes of widgets ------------------------------------------------------------------------

namespace
{
class CMaker : public CGUIWidgetVisitor
{
public:
    CMaker(CGUIMirrored& kMirrored, CFLTKEvents& kEvents, const FLTKLook_t& kLook, Fl_Callback* pfnInput)
        : m_kMirrored(kMirrored), m_kEvents(kEvents), m_kLook(kLook), m_pfnInput(pfnInput)
    {
    }

    Fl_Widget* m_pkMade = nullptr;

    void OnScreen(const CGUIScreen&, const GUIArea_t&) override { MakeWindow(FL_FLAT_BOX); }
    void OnPopup(const CGUIPopup&, const GUIArea_t&) override { MakeWindow(FL_UP_BOX); }
    void OnContainer(const CGUIContainer&, const GUIArea_t&) override
    {
        auto* pkGroup = Make<CNative<Fl_Group, false>>();
        pkGroup->end();
        pkGroup->resizable(nullptr);
        pkGroup->clip_children(1);
        Keep(*pkGroup);
    }
    void OnLabel(const CGUILabel&, const GUIArea_t&) override { MakeBox(); }
    void OnImage(const CGUIImage&, const GUIArea_t&) override { MakeBox(); }
    void OnButton(const CGUIButton&, const GUIArea_t&) override { MakeInput<CNative<Fl_Button, true>>(); }
    void OnCheckBox(const CGUICheckBox&, const GUIArea_t&) override
    {
        MakeInput<CNative<Fl_Check_Button, true>>();
    }
    void OnBar(const CGUIBar&, const GUIArea_t&) override
    {
        auto* pkBar = Make<CNative<Fl_Progress, false>>();
        pkBar->selection_color(FL_SELECTION_COLOR);
        Keep(*pkBar);
    }
    void OnSlider(const CGUISlider&, const GUIArea_t&) override
    {
        MakeInput<CNative<Fl_Hor_Nice_Slider, false>>();
    }
    void OnList(const CGUIList&, const GUIArea_t&) override
    {
        auto* pkList = MakeInput<CNative<Fl_Hold_Browser, true>>();
        pkList->end();
        pkList->textfont(m_kLook.m_iFont);
        pkList->textsize(m_kLook.m_iFontSize);
        // A text has neither commands nor columns.
        pkList->format_char('\0');
        pkList->column_char('\0');
        pkList->when(FL_WHEN_CHANGED);
    }
    void OnTextField(const CGUITextField&, const GUIArea_t&) override
    {
        auto* pkField = MakeInput<CTextField>();
        pkField->textfont(m_kLook.m_iFont);
        pkField->textsize(m_kLook.m_iFontSize);
        pkField->labeltype(FL_NO_LABEL);
        pkField->when(FL_WHEN_CHANGED);
    }
    void OnWidget(const CGUIWidget&, const GUIArea_t&) override {}

private:
    template <typename TNative>
    TNative* Make()
    {
        auto* pkNative = new TNative(m_kMirrored, m_kEvents);
        pkNative->labelfont(m_kLook.m_iFont);
        pkNative->labelsize(m_kLook.m_iFontSize);
        m_kMirrored.m_pExtra = static_cast<CFLTKWidget*>(pkNative);
        m_pkMade = pkNative;
        return pkNative;
    }

    template <typename TNative>
    TNative* MakeInput()
    {
        auto* pkNative = Make<TNative>();
        pkNative->callback(m_pfnInput, &m_kMirrored);
        Keep(*pkNative);
        return pkNative;
    }

    void MakeBox()
    {
        auto* pkBox = Make<CNative<Fl_Box, false>>();
        pkBox->align(FL_ALIGN_LEFT | FL_ALIGN_INSIDE | FL_ALIGN_CLIP);
        Keep(*pkBox);
    }

    void MakeWindow(Fl_Boxtype eBox)
    {
        auto* pkWindow = Make<CFLTKWindow>();
        pkWindow->box(eBox);
        pkWindow->m_pkTitle = new Fl_Box(0, 0, 0, 0);
        pkWindow->m_pkTitle->align(FL_ALIGN_LEFT | FL_ALIGN_INSIDE | FL_ALIGN_CLIP);
        pkWindow->m_pkTitle->labelfont(m_kLook.m_iFont);
        pkWindow->m_pkTitle->labelsize(m_kLook.m_iFontSize);
        pkWindow->add(pkWindow->m_pkTitle);
        Keep(*pkWindow);
    }

    template <typename TNative>
    static void Keep(TNative& kNative)
    {
        kNative.KeepLook(kNative);
    }

    CGUIMirrored& m_kMirrored;
    CFLTKEvents& m_kEvents;
    const FLTKLook_t& m_kLook;
    Fl_Callback* m_pfnInput;
};

class CUpdater : public CGUIWidgetVisitor
{
public:
    CUpdater(Fl_Widget& kNative, const FLTKLook_t& kLook) : m_kNative(kNative), m_kLook(kLook) {}

    const eC_Char* m_pcMissing = nullptr;

    void OnScreen(const CGUIScreen& kScreen, const GUIArea_t&) override { ShowTitle(kScreen); }
    void OnPopup(const CGUIPopup& kPopup, const GUIArea_t&) override { ShowTitle(kPopup); }
    void OnContainer(const CGUIContainer&, const GUIArea_t&) override {}
    void OnLabel(const CGUILabel& kLabel, const GUIArea_t&) override { ShowText(kLabel); }
    void OnImage(const CGUIImage& kImage, const GUIArea_t&) override
    {
        Fl_Image* pkImage = m_kLook.m_pfnImage != nullptr ? m_kLook.m_pfnImage(kImage.GetImage()) : nullptr;
        m_kNative.image(pkImage);
        m_pcMissing = pkImage == nullptr && *kImage.GetImage() != '\0' ? kImage.GetImage() : nullptr;
    }
    void OnButton(const CGUIButton& kButton, const GUIArea_t&) override { ShowText(kButton); }
    void OnCheckBox(const CGUICheckBox& kCheckBox, const GUIArea_t&) override
    {
        ShowText(kCheckBox);
        static_cast<Fl_Check_Button&>(m_kNative).value(kCheckBox.GetValue());
    }
    void OnBar(const CGUIBar& kBar, const GUIArea_t&) override
    {
        auto& kProgress = static_cast<Fl_Progress&>(m_kNative);
        kProgress.minimum(static_cast<float>(kBar.GetMinimum()));
        kProgress.maximum(static_cast<float>(kBar.GetMaximum()));
        kProgress.value(static_cast<float>(kBar.GetValue()));
    }
    void OnSlider(const CGUISlider& kSlider, const GUIArea_t&) override
    {
        auto& kNative = static_cast<Fl_Slider&>(m_kNative);
        kNative.bounds(kSlider.GetMinimum(), kSlider.GetMaximum());
        kNative.step(kSlider.GetStep(), 1);
        kNative.value(kSlider.GetValue());
    }
    void OnList(const CGUIList& kList, const GUIArea_t&) override;
    void OnTextField(const CGUITextField& kTextField, const GUIArea_t&) override
    {
        auto& kInput = static_cast<Fl_Input&>(m_kNative);
        SetFLTKLabel(kInput, kTextField.GetCaption());
        kInput.maximum_size(static_cast<int>(kTextField.GetMostCharacters()));
        if (std::strcmp(kInput.value(), kTextField.GetText()) != 0)
        {
            kInput.value(kTextField.GetText());
        }
    }
    void OnWidget(const CGUIWidget&, const GUIArea_t&) override {}

private:
    void ShowText(const CGUIWidget& kWidget) { SetFLTKLabel(m_kNative, CGUIShownText(kWidget).GetText()); }
    void ShowTitle(const CGUIWidget& kWidget)
    {
        Fl_Box& kTitle = *static_cast<CFLTKWindow&>(m_kNative).m_pkTitle;
        const CGUIShownText kText(kWidget);
        SetFLTKLabel(kTitle, kText.GetText());
        if (*kText.GetText() == '\0')
        {
            kTitle.hide();
        }
        else
        {
            kTitle.show();
        }
    }

    Fl_Widget& m_kNative;
    const FLTKLook_t& m_kLook;
};

void CUpdater::OnList(const CGUIList& kList, const GUIArea_t&)
{
    auto& kBrowser = static_cast<Fl_Hold_Browser&>(m_kNative);
    const auto iEntries = static_cast<int>(kList.GetNOFEntries());
    while (kBrowser.size() > iEntries)
    {
        kBrowser.remove(kBrowser.size());
    }
    for (int iLine = 1; iLine <= iEntries; ++iLine)
    {
        const eC_Char* pcEntry = kList.GetEntry(static_cast<eC_UInt>(iLine - 1));
        if (iLine > kBrowser.size())
        {
            kBrowser.add(pcEntry);
        }
        else if (std::strcmp(kBrowser.text(iLine), pcEntry) != 0)
        {
            kBrowser.text(iLine, pcEntry);
        }
    }
    if (iEntries > 0 && kBrowser.value() != kList.GetValue() + 1)
    {
        kBrowser.value(kList.GetValue() + 1);
        kBrowser.make_visible(kList.GetValue() + 1);
    }
}

class CInputReader : public CGUIWidgetVisitor
{
public:
    explicit CInputReader(const Fl_Widget& kNative) : m_kNative(kNative) {}

    FLTKInput_t m_kInput;

    void OnButton(const CGUIButton&, const GUIArea_t&) override { m_kInput.m_bIsPress = true; }
    void OnCheckBox(const CGUICheckBox&, const GUIArea_t&) override
    {
        m_kInput.m_iValue = static_cast<const Fl_Check_Button&>(m_kNative).value();
    }
    void OnSlider(const CGUISlider&, const GUIArea_t&) override
    {
        m_kInput.m_iValue = static_cast<eC_Int>(static_cast<const Fl_Slider&>(m_kNative).value());
    }
    void OnList(const CGUIList& kList, const GUIArea_t&) override
    {
        // None is selected after a click below the last entry.
        const int iLine = static_cast<const Fl_Hold_Browser&>(m_kNative).value();
        m_kInput.m_iValue = iLine > 0 ? iLine - 1 : kList.GetValue();
    }
    void OnTextField(const CGUITextField&, const GUIArea_t&) override
    {
        m_kInput.m_pcText = static_cast<const Fl_Input&>(m_kNative).value();
    }
    void OnWidget(const CGUIWidget&, const GUIArea_t&) override {}

private:
    const Fl_Widget& m_kNative;
};
} // namespace

Fl_Widget* CreateFLTKWidget(CGUIMirrored& kMirrored, CFLTKEvents& kEvents, const FLTKLook_t& kLook,
                            Fl_Callback* pfnInput)
{
    CMaker kMaker(kMirrored, kEvents, kLook, pfnInput);
    kMirrored.GetWidget()->Accept(kMaker, GUIArea_t());
    return kMaker.m_pkMade;
}

const eC_Char* UpdateFLTKWidget(const CGUIWidget& kWidget, Fl_Widget& kNative, const FLTKLook_t& kLook)
{
    CUpdater kUpdater(kNative, kLook);
    kWidget.Accept(kUpdater, GUIArea_t());
    return kUpdater.m_pcMissing;
}

FLTKInput_t ReadFLTKInput(const CGUIWidget& kWidget, const Fl_Widget& kNative)
{
    CInputReader kReader(kNative);
    kWidget.Accept(kReader, GUIArea_t());
    return kReader.m_kInput;
}

// SPDX-License-Identifier: MIT
#include "Adapters/FLTK/GUIFLTK.h"

#include "Adapters/Mirror/GUIWidgetLooks.h"

#include <FL/fl_draw.H>
#include <FL/x.H>

#include <algorithm>
#include <memory>
#include <string>

CGUIFLTK* CGUIFLTK::ms_pkInstance = nullptr;

namespace
{
constexpr double cdMillisecond = 0.001;
constexpr eC_Int ciLabelEdge = 3; ///< pixels that FLTK leaves free on both sides of a label

/** New widgets go into this group, as long as the scope lasts. */
class CCurrentGroup
{
public:
    explicit CCurrentGroup(Fl_Group* pkGroup) : m_pkBefore(Fl_Group::current())
    {
        Fl_Group::current(pkGroup);
    }
    CCurrentGroup(const CCurrentGroup&) = delete;
    CCurrentGroup& operator=(const CCurrentGroup&) = delete;
    ~CCurrentGroup() { Fl_Group::current(m_pkBefore); }

private:
    Fl_Group* m_pkBefore;
};

eC_Bool FillsParent(const Fl_Widget& kWidget)
{
    const Fl_Group& kParent = *kWidget.parent();
    return kWidget.x() <= kParent.x() && kWidget.y() <= kParent.y() &&
           kWidget.x() + kWidget.w() >= kParent.x() + kParent.w() &&
           kWidget.y() + kWidget.h() >= kParent.y() + kParent.h();
}
} // namespace

/** The parent of all windows. FLTK draws what has changed, and supposes that widgets do not overlap; here
 * they do. So whatever is in the damaged part of the display is drawn again, from the bottom up.
 */
class CGUIFLTK::CStage : public Fl_Group
{
public:
    CStage(CGUIFLTK& kAdapter, Fl_Widget& kParent)
        : Fl_Group(kParent.as_window() != nullptr ? 0 : kParent.x(),
                   kParent.as_window() != nullptr ? 0 : kParent.y(), kParent.w(), kParent.h()),
          m_kAdapter(kAdapter)
    {
        end();
        box(FL_FLAT_BOX);
        resizable(nullptr);
        clip_children(1);
    }
    CStage(const CStage&) = delete;
    CStage& operator=(const CStage&) = delete;
    ~CStage() override;

    int handle(int iEvent) override
    {
        switch (iEvent)
        {
        case FL_KEYBOARD:
            // The window has had it. Nothing moves the focus from one window to another.
            return 0;
        case FL_SHORTCUT:
            return m_pkKeys != nullptr ? m_pkKeys->handle(iEvent) : 0;
        case FL_FOCUS:
            return m_pkKeys != nullptr ? m_pkKeys->take_focus() : 0;
        default:
            return Fl_Group::handle(iEvent);
        }
    }

    Fl_Widget* m_pkKeys = nullptr; ///< the window that gets them

protected:
    void draw() override
    {
        int iFirst = children() - 1;
        while (iFirst >= 0 && !Covers(*child(iFirst)))
        {
            --iFirst;
        }
        if (iFirst < 0)
        {
            draw_box();
            iFirst = 0;
        }
        for (; iFirst < children(); ++iFirst)
        {
            draw_child(*child(iFirst));
        }
    }

private:
    static eC_Bool Covers(const Fl_Widget& kWidget)
    {
        return kWidget.visible() != 0 && kWidget.box() != FL_NO_BOX && FillsParent(kWidget);
    }

    CGUIFLTK& m_kAdapter;
};

/** Catches touches of what is below a modal popup. */
class CGUIFLTK::CShade : public Fl_Box
{
public:
    CShade() : Fl_Box(0, 0, 0, 0) {}
    int handle(int iEvent) override
    {
        return iEvent == FL_PUSH || iEvent == FL_ENTER || iEvent == FL_MOVE || iEvent == FL_MOUSEWHEEL ? 1
                                                                                                       : 0;
    }
};

CGUIFLTK::CStage::~CStage()
{
    m_kAdapter.m_pkStage = nullptr;
    m_kAdapter.m_pkShade = nullptr;
}

CGUIFLTK::CGUIFLTK(const GUIFLTKOptions_t& kOptions, CGUIWidgetListener& kListener)
    : CGUINativeAdapter(kOptions, kOptions.m_pkParent->w(), kOptions.m_pkParent->h(), kListener),
      m_kLook{kOptions.m_iFont, kOptions.m_iFontSize, kOptions.m_iScreenTitle, kOptions.m_iWindowTitle,
              nullptr},
      m_uiPeriod(kOptions.m_uiPeriod),
      m_kParent(kOptions.m_pkParent),
      m_pfnDispatch(Fl::event_dispatch())
{
    fl_open_display();
    eC_Int iWidth = 0;
    eC_Int iHeight = 0;
    const eC_Int iLine = MeasureText("", iWidth, iHeight);
    m_kLook.m_iScreenTitle = m_kLook.m_iScreenTitle != 0 ? m_kLook.m_iScreenTitle : 2 * iLine;
    m_kLook.m_iWindowTitle = m_kLook.m_iWindowTitle != 0 ? m_kLook.m_iWindowTitle : iLine;
    ms_pkInstance = this;
    Fl::event_dispatch(&Dispatch);
    Fl::add_check(&OnCheck, this);
}

CGUIFLTK::~CGUIFLTK()
{
    ms_pkInstance = nullptr;
    m_kMirror.DeleteAll();
    delete m_pkStage;
    Fl::remove_check(&OnCheck, this);
    Fl::remove_timeout(&OnTimeout, this);
    if (Fl::event_dispatch() == &Dispatch)
    {
        Fl::event_dispatch(m_pfnDispatch);
    }
}

// ---- The main loop ---------------------------------------------------------------------------------

void CGUIFLTK::OnCheck(void* pThis)
{
    static_cast<CGUIFLTK*>(pThis)->Turn();
}

void CGUIFLTK::Turn()
{
    if (m_uiEvents > 0)
    {
        return;
    }
    NoteFocus();
    RunTurn(
        [this]
        {
            FindLost();
            m_kMirror.Commit();
            PlaceShade();
        });
    m_pkNoted = Fl::focus();
    WakeUpInTime();
}

void CGUIFLTK::WakeUpInTime()
{
    const eC_UInt uiNext = std::min(GETTIMER.GetTimeUntilNextCallback(), m_uiPeriod);
    Fl::remove_timeout(&OnTimeout, this);
    Fl::add_timeout(uiNext * cdMillisecond, &OnTimeout, this);
}

int CGUIFLTK::Dispatch(int iEvent, Fl_Window* pkWindow)
{
    struct Event_t
    {
        Event_t() { ++ms_pkInstance->m_uiEvents; }
        Event_t(const Event_t&) = delete;
        Event_t& operator=(const Event_t&) = delete;
        ~Event_t()
        {
            // The application may have destroyed the adapter.
            if (ms_pkInstance != nullptr)
            {
                --ms_pkInstance->m_uiEvents;
            }
        }
    };
    if (ms_pkInstance == nullptr)
    {
        return Fl::handle_(iEvent, pkWindow);
    }
    const Event_t kEvent;
    const Fl_Event_Dispatch pfnDispatch = ms_pkInstance->m_pfnDispatch;
    const int iIsUsed =
        pfnDispatch != nullptr ? pfnDispatch(iEvent, pkWindow) : Fl::handle_(iEvent, pkWindow);
    if (ms_pkInstance == nullptr)
    {
        return iIsUsed;
    }
    if (iEvent == FL_FOCUS || iEvent == FL_UNFOCUS)
    {
        // The whole window gets or loses the keys. The focus in it stays as it was.
        ms_pkInstance->m_pkNoted = Fl::focus();
        ms_pkInstance->m_kMirror.RenewInput();
    }
    ms_pkInstance->NoteFocus();
    return iIsUsed;
}

void CGUIFLTK::NoteFocus()
{
    if (Fl::focus() == m_pkNoted)
    {
        return;
    }
    m_pkNoted = Fl::focus();
    CGUIMirrored* pkMirrored = FindMirrored(m_pkNoted);
    if (pkMirrored != nullptr)
    {
        CatchAll([this, pkMirrored] { m_kMirror.OnNativeFocus(*pkMirrored); });
    }
}

void CGUIFLTK::FindLost()
{
    CFLTKWindow** ppkLink = &m_pkBuilt;
    while (CFLTKWindow* pkWindow = *ppkLink)
    {
        if (pkWindow->HasLostContent())
        {
            m_kMirror.OnNativeDeleted(pkWindow->GetMirrored());
            delete pkWindow; // leaves the list
            continue;
        }
        while (CGUIMirrored* pkLost = pkWindow->FindPart(nullptr))
        {
            pkWindow->RemovePart(*pkLost);
            m_kMirror.OnNativeDeleted(*pkLost);
        }
        ppkLink = &pkWindow->m_pkNextBuilt;
    }
}

// ---- Native objects --------------------------------------------------------------------------------

CGUIFLTK::CStage* CGUIFLTK::GetStage()
{
    if (m_pkStage == nullptr && m_kParent.Get() != nullptr)
    {
        const CCurrentGroup kNone(nullptr);
        m_pkStage = new CStage(*this, *m_kParent.Get());
        m_kParent.Get()->as_group()->add(m_pkStage);
        m_pkStage->redraw();
    }
    return m_pkStage;
}

CFLTKWindow* CGUIFLTK::GetWindow(CGUIMirrored& kMirrored)
{
    return static_cast<CFLTKWindow*>(static_cast<CFLTKWidget*>(kMirrored.GetWindow()->m_pExtra));
}

Fl_Widget* CGUIFLTK::Native(CGUIMirrored& kMirrored) const
{
    // A part may be gone, and nobody knows yet.
    return kMirrored.IsPart() ? GetWindow(kMirrored)->FindPart(kMirrored)
                              : static_cast<Fl_Widget*>(kMirrored.GetNative());
}

Fl_Widget* CGUIFLTK::GetNative(const CGUIObject* pkObject) const
{
    CGUIMirrored* pkMirrored = m_kMirror.Find(pkObject);
    return pkMirrored != nullptr && pkMirrored->GetNative() != nullptr ? Native(*pkMirrored) : nullptr;
}

CGUIMirrored* CGUIFLTK::FindMirrored(const Fl_Widget* pkWidget) const
{
    for (; pkWidget != nullptr && pkWidget != m_pkStage; pkWidget = pkWidget->parent())
    {
        if (pkWidget->callback() == &OnInput)
        {
            return static_cast<CGUIMirrored*>(pkWidget->user_data());
        }
        for (const CFLTKWindow* pkWindow = m_pkBuilt; pkWindow != nullptr; pkWindow = pkWindow->m_pkNextBuilt)
        {
            if (CGUIMirrored* pkPart = pkWindow->FindPart(pkWidget))
            {
                return pkPart;
            }
        }
    }
    return nullptr;
}

void* CGUIFLTK::Create(CGUIMirrored& kMirrored)
{
    CGUIMirrored* pkParent = kMirrored.GetParent();
    Fl_Group* pkGroup = pkParent != nullptr ? Native(*pkParent)->as_group() : GetStage();
    if (pkGroup == nullptr)
    {
        return nullptr;
    }
    const CCurrentGroup kNone(nullptr);
    Fl_Widget* pkWidget = CreateFLTKWidget(kMirrored, *this, m_kLook, &OnInput);
    if (pkWidget != nullptr)
    {
        pkWidget->resize(pkGroup->x(), pkGroup->y(), 0, 0);
        pkGroup->add(pkWidget);
    }
    return pkWidget;
}

void* CGUIFLTK::Build(CGUIMirrored& kWindow, CGUIWindowBuilder& kBuilder)
{
    CStage* pkStage = GetStage();
    if (pkStage == nullptr)
    {
        return nullptr;
    }
    const CCurrentGroup kNone(nullptr);
    auto pkWindow = std::unique_ptr<CFLTKWindow>(new CFLTKWindow(kWindow, *this));
    pkWindow->resize(pkStage->x(), pkStage->y(), pkStage->w(), pkStage->h());
    pkStage->add(pkWindow.get());
    kWindow.m_pExtra = static_cast<CFLTKWidget*>(pkWindow.get());
    try
    {
        Fl_Group::current(pkWindow.get());
        auto* pkContent = static_cast<Fl_Widget*>(kBuilder.Build(static_cast<Fl_Group*>(pkWindow.get())));
        if (pkContent == nullptr)
        {
            kWindow.m_pExtra = nullptr;
            return nullptr;
        }
        pkWindow->SetContent(*pkContent);
    }
    catch (...)
    {
        kWindow.m_pExtra = nullptr;
        throw;
    }
    pkWindow->m_pkNextBuilt = m_pkBuilt;
    m_pkBuilt = pkWindow.get();
    return static_cast<Fl_Widget*>(pkWindow.release());
}

eC_Bool CGUIFLTK::Identify(Fl_Widget& kWidget, ObjectHandle_t eID)
{
    CGUIMirrored* pkPart = m_kMirror.AddPart(&kWidget, eID);
    if (pkPart == nullptr)
    {
        return false;
    }
    GetWindow(*pkPart)->AddPart(kWidget, *pkPart);
    return true;
}

void CGUIFLTK::Delete(CGUIMirrored& kMirrored)
{
    Fl_Widget* pkWidget = Native(kMirrored);
    if (kMirrored.IsPart())
    {
        GetWindow(kMirrored)->RemovePart(kMirrored);
    }
    if (m_pkStage != nullptr)
    {
        m_pkStage->redraw();
    }
    delete pkWidget;
}

void CGUIFLTK::OnDeleted(CGUIMirrored& kMirrored, Fl_Widget& kWidget)
{
    CFLTKWindow** ppkLink = &m_pkBuilt;
    while (*ppkLink != nullptr && *ppkLink != &kWidget)
    {
        ppkLink = &(*ppkLink)->m_pkNextBuilt;
    }
    if (*ppkLink != nullptr)
    {
        *ppkLink = (*ppkLink)->m_pkNextBuilt;
    }
    m_pkModal = m_pkModal == &kWidget ? nullptr : m_pkModal;
    if (m_pkStage != nullptr && m_pkStage->m_pkKeys == &kWidget)
    {
        m_pkStage->m_pkKeys = nullptr;
    }
    if (kMirrored.GetNative() == &kWidget)
    {
        m_kMirror.OnNativeDeleted(kMirrored);
    }
}

// ---- Showing and ordering --------------------------------------------------------------------------

void CGUIFLTK::Update(CGUIMirrored& kMirrored, const GUIArea_t& kArea)
{
    const CGUIWidget& kWidget = *kMirrored.GetWidget();
    Fl_Widget& kNative = *Native(kMirrored);
    Place(kMirrored, ToPixels(kWidget, kArea));
    if (const eC_Char* pcMissing = UpdateFLTKWidget(kWidget, kNative, m_kLook))
    {
        ReportMissingPicture(pcMissing);
    }
    if (kNative.callback() == &OnInput)
    {
        if (kWidget.GetObject().IsFocusable())
        {
            kNative.activate();
        }
        else
        {
            kNative.deactivate();
        }
    }
    Style(kMirrored);
    kNative.redraw();
}

void CGUIFLTK::Place(CGUIMirrored& kMirrored, const GUIArea_t& kPixels)
{
    Fl_Widget& kNative = *Native(kMirrored);
    const Fl_Group& kParent = *kNative.parent();
    const GUIArea_t kArea = {kParent.x() + kPixels.m_iX, kParent.y() + kPixels.m_iY, kPixels.m_iWidth,
                             kPixels.m_iHeight};
    if (kNative.x() != kArea.m_iX || kNative.y() != kArea.m_iY || kNative.w() != kArea.m_iWidth ||
        kNative.h() != kArea.m_iHeight)
    {
        kNative.resize(kArea.m_iX, kArea.m_iY, kArea.m_iWidth, kArea.m_iHeight);
        m_pkStage->redraw();
    }
    if (kMirrored.IsWindow())
    {
        GetWindow(kMirrored)->m_pkTitle->resize(kArea.m_iX, kArea.m_iY, kArea.m_iWidth,
                                                FillsParent(kNative) ? m_kLook.m_iScreenTitle
                                                                     : m_kLook.m_iWindowTitle);
    }
}

void CGUIFLTK::Style(CGUIMirrored& kMirrored)
{
    const CGUIWidget& kWidget = *kMirrored.GetWidget();
    Fl_Widget& kNative = *Native(kMirrored);
    const CFLTKWidget& kLook = *static_cast<const CFLTKWidget*>(kMirrored.m_pExtra);
    kLook.ResetLook(kNative);
    ApplyStyles(kNative, GetGUIClassName(kWidget), false);
    if (kMirrored.IsWindow())
    {
        const eC_Bool bIsWholeScreen = FillsParent(kNative);
        ApplyStyles(kNative, bIsWholeScreen ? "WholeScreen" : "Window", false);
        ApplyStyles(*GetWindow(kMirrored)->m_pkTitle, bIsWholeScreen ? "ScreenTitle" : "WindowTitle", false);
    }
    ApplyStyles(kNative, kWidget.GetStyle(), false);
    if (kLook.m_bHasFocus)
    {
        ApplyStyles(kNative, GetGUIClassName(kWidget), true);
        ApplyStyles(kNative, kWidget.GetStyle(), true);
    }
}

void CGUIFLTK::ApplyStyles(Fl_Widget& kWidget, const eC_Char* pcName, eC_Bool bHasFocus) const
{
    const std::string kName = std::string(pcName) + (bHasFocus ? ":focus" : "");
    m_kStyles.ForEach(kName.c_str(), [&kWidget](Style_t pfnStyle) { pfnStyle(kWidget); });
}

void CGUIFLTK::SetShown(CGUIMirrored& kMirrored, eC_Bool bIsShown)
{
    Fl_Widget* pkWidget = Native(kMirrored);
    if (pkWidget == nullptr)
    {
        return;
    }
    if (bIsShown)
    {
        pkWidget->show();
    }
    else
    {
        pkWidget->hide();
    }
    m_pkStage->redraw();
}

void CGUIFLTK::PutBelow(CGUIMirrored& kMirrored, CGUIMirrored* pkAbove)
{
    Fl_Widget& kWidget = *Native(kMirrored);
    Fl_Group& kParent = *kWidget.parent();
    kParent.insert(kWidget, pkAbove != nullptr ? kParent.find(Native(*pkAbove)) : kParent.children());
    m_pkStage->redraw();
}

void CGUIFLTK::PlaceShade()
{
    if (m_pkModal == nullptr || m_pkStage == nullptr)
    {
        if (m_pkShade != nullptr && m_pkShade->visible() != 0)
        {
            m_pkShade->hide();
            m_pkStage->redraw();
        }
        return;
    }
    if (m_pkShade == nullptr)
    {
        const CCurrentGroup kNone(nullptr);
        m_pkShade = new CShade;
        m_pkShade->hide();
        ApplyStyles(*m_pkShade, "Shade", false);
        m_pkStage->add(m_pkShade);
        m_pkShade->resize(m_pkStage->x(), m_pkStage->y(), m_pkStage->w(), m_pkStage->h());
    }
    if (m_pkStage->find(m_pkShade) != m_pkStage->find(m_pkModal) - 1)
    {
        m_pkStage->insert(*m_pkShade, m_pkModal);
        m_pkStage->redraw();
    }
    if (m_pkShade->visible() == 0)
    {
        m_pkShade->show();
    }
    // Nor does what is below it get the rest of a touch, or a shortcut.
    if (Fl::pushed() != nullptr && m_pkStage->contains(Fl::pushed()) &&
        m_pkModal->contains(Fl::pushed()) == 0)
    {
        Fl::pushed(nullptr);
    }
    if (m_pkStage->contains(Fl::belowmouse()) != 0 && m_pkModal->contains(Fl::belowmouse()) == 0)
    {
        Fl::belowmouse(m_pkShade);
    }
}

// ---- Input -----------------------------------------------------------------------------------------

void CGUIFLTK::SetInput(CGUIMirrored* pkModal, CGUIMirrored* pkWindow, CGUIMirrored* pkFocussed)
{
    m_pkModal = pkModal != nullptr ? Native(*pkModal) : nullptr;
    Fl_Widget* pkKeys = pkWindow != nullptr ? Native(*pkWindow) : nullptr;
    if (m_pkStage == nullptr || pkKeys == nullptr)
    {
        return;
    }
    m_pkStage->m_pkKeys = pkKeys;
    Fl_Widget* pkWanted = pkFocussed != nullptr ? Native(*pkFocussed) : nullptr;
    if (pkWanted != nullptr && (pkWanted->contains(Fl::focus()) != 0 || pkWanted->take_focus() != 0))
    {
        return;
    }
    // Nothing has the focus: not what had it before, but an object that the tree does not know may keep it.
    // So does one of the application beside us.
    const eC_Bool bIsElsewhere = Fl::focus() != nullptr && m_pkStage->contains(Fl::focus()) == 0 &&
                                 Fl::focus()->contains(m_pkStage) == 0;
    const eC_Bool bIsUnknown = pkKeys->contains(Fl::focus()) != 0 && FindMirrored(Fl::focus()) == nullptr;
    if (!bIsElsewhere && !bIsUnknown)
    {
        Fl::focus(pkKeys);
    }
}

void CGUIFLTK::OnFocusChanged(CGUIMirrored& kMirrored)
{
    if (kMirrored.GetWidget() != nullptr && kMirrored.GetNative() != nullptr)
    {
        Style(kMirrored);
        Native(kMirrored)->redraw();
    }
}

void CGUIFLTK::OnEnter(CGUIMirrored& kMirrored)
{
    if (kMirrored.GetWidget() != nullptr)
    {
        CatchAll([this, &kMirrored] { m_kInput.Touch(&kMirrored.GetWidget()->GetObject()); });
    }
}

void CGUIFLTK::OnInput(Fl_Widget* pkWidget, void* pMirrored)
{
    CGUIWidget* pkTouched = static_cast<CGUIMirrored*>(pMirrored)->GetWidget();
    if (pkTouched == nullptr || ms_pkInstance == nullptr)
    {
        return;
    }
    CatchAll(
        [pkWidget, pkTouched]
        {
            CGUIWidgetInput& kInput = ms_pkInstance->m_kInput;
            const FLTKInput_t kRead = ReadFLTKInput(*pkTouched, *pkWidget);
            if (kRead.m_bIsPress)
            {
                kInput.Touch(&pkTouched->GetObject());
            }
            else if (kRead.m_pcText != nullptr)
            {
                kInput.ChangeText(*pkTouched, kRead.m_pcText);
            }
            else
            {
                kInput.ChangeValue(*pkTouched, kRead.m_iValue);
            }
        });
}

// ---- Sizes -----------------------------------------------------------------------------------------

eC_Int CGUIFLTK::GetPixels(eC_Bool bIsWidth) const
{
    const Fl_Widget* pkParent = m_kParent.Get();
    return pkParent == nullptr ? 0 : bIsWidth ? pkParent->w() : pkParent->h();
}

eC_Int CGUIFLTK::MeasureText(const eC_Char* pcText, eC_Int& iWidthOUT, eC_Int& iHeightOUT) const
{
    fl_font(m_kLook.m_iFont, m_kLook.m_iFontSize);
    iWidthOUT = 0;
    iHeightOUT = 0;
    fl_measure(pcText, iWidthOUT, iHeightOUT, 0);
    iWidthOUT += 2 * ciLabelEdge;
    iHeightOUT = std::max(iHeightOUT, static_cast<eC_Int>(fl_height()));
    return fl_height();
}

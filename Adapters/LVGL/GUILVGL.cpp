// SPDX-License-Identifier: MIT
#include "Adapters/LVGL/GUILVGL.h"

#include "Adapters/Mirror/GUIRetained.h"
#include "Adapters/Mirror/GUIWidgetLooks.h"

#include <cstdint>
#include <memory>

CGUILVGL* CGUILVGL::ms_pkInstance = nullptr;

namespace
{
eC_UInt ReadTick()
{
    return static_cast<eC_UInt>(lv_tick_get());
}

/** A number made from the name of a style, to notice that it is another one. */
void* Hash(const eC_Char* pcName)
{
    std::uintptr_t uiHash = 0;
    for (; *pcName != '\0'; ++pcName)
    {
        uiHash = uiHash * 31U + static_cast<unsigned char>(*pcName);
    }
    return reinterpret_cast<void*>(uiHash); // NOLINT(performance-no-int-to-ptr): it is never followed
}

/** How many objects a screen may have before hidden dialogs are taken from it: LVGL looks at all of them when
 *  it draws, and each change of one.
 */
constexpr std::uint32_t cuiMostAttached = 16;

/** Whether an object, or something around it, is hidden. */
eC_Bool IsHidden(const lv_obj_t* pkObject)
{
    while (pkObject != nullptr && !lv_obj_has_flag(pkObject, LV_OBJ_FLAG_HIDDEN))
    {
        pkObject = lv_obj_get_parent(pkObject);
    }
    return pkObject != nullptr;
}

/** Deletes what a builder that failed has left. */
void DeleteFrom(lv_obj_t* pkParent, std::uint32_t uiFirst)
{
    while (lv_obj_get_child_count(pkParent) > uiFirst)
    {
        lv_obj_delete(lv_obj_get_child(pkParent, static_cast<std::int32_t>(uiFirst)));
    }
}
} // namespace

void CGUILVGLLog::Write(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
                        const eC_String& kLine)
{
    const eC_String kEntry = FormatTraceEntry(eC_String(), kMessage, kFile, kLine);
    const eC_Char cLevel = kPrefix.GetText()[0];
    const auto iLength = static_cast<eC_Int>(kEntry.GetLength()) - 1; // LVGL adds a line break
    if (cLevel == 'E')
    {
        LV_LOG_ERROR("%.*s", iLength, kEntry.GetText());
    }
    else if (cLevel == 'W')
    {
        LV_LOG_WARN("%.*s", iLength, kEntry.GetText());
    }
    else
    {
        LV_LOG_INFO("%.*s", iLength, kEntry.GetText());
    }
    static_cast<void>(iLength); // LVGL may be built without a log
}

CGUILVGL::CGUILVGL(const GUILVGLOptions_t& kOptions, CGUIWidgetListener& kListener)
    : CGUINativeAdapter(kOptions, lv_display_get_horizontal_resolution(kOptions.m_pkDisplay),
                        lv_display_get_vertical_resolution(kOptions.m_pkDisplay), kListener),
      m_kOptions(kOptions),
      m_kLook{&Style, &FindImage, this, kOptions.m_iScreenTitle, kOptions.m_iWindowTitle},
      m_pkParent(kOptions.m_pkParent)
{
    if (m_kOptions.m_pkDisplay == nullptr)
    {
        m_kOptions.m_pkDisplay = lv_display_get_default();
    }
    if (m_kOptions.m_pkFont == nullptr)
    {
        m_kOptions.m_pkFont = lv_font_get_default();
    }
    const auto iLine = static_cast<eC_Int>(lv_font_get_line_height(m_kOptions.m_pkFont));
    m_kLook.m_iScreenTitle = kOptions.m_iScreenTitle != 0 ? kOptions.m_iScreenTitle : 2 * iLine;
    m_kLook.m_iWindowTitle = kOptions.m_iWindowTitle != 0 ? kOptions.m_iWindowTitle : iLine;
    ms_pkInstance = this;
    m_pkNoGroup = lv_group_create();
    m_pkGroup = m_pkNoGroup;
    if (m_pkParent != nullptr)
    {
        lv_obj_add_event_cb(m_pkParent, &OnParentDelete, LV_EVENT_DELETE, this);
    }
    GETTIMER.SetClock(&ReadTick);
    m_pkTimer = lv_timer_create(&OnTimer, LV_DEF_REFR_PERIOD, this);
}

CGUILVGL::~CGUILVGL()
{
    m_kTransition.Finish();
    m_kMirror.DeleteAll();
    for (lv_obj_t* pkHelper : {m_pkShade, m_pkBlock, m_pkNobody, m_pkWorkshop, m_pkStore})
    {
        if (pkHelper != nullptr)
        {
            lv_obj_delete(pkHelper);
        }
    }
    if (m_pkParent != nullptr)
    {
        lv_obj_remove_event_cb_with_user_data(m_pkParent, &OnParentDelete, this);
    }
    lv_timer_delete(m_pkTimer);
    lv_group_delete(m_pkNoGroup);
    GETTIMER.SetClock(nullptr);
    ms_pkInstance = nullptr;
}

// ---- What applications set -------------------------------------------------------------------------

eC_Bool CGUILVGL::Identify(lv_obj_t* pkObject, ObjectHandle_t eID)
{
    CGUIMirrored* pkPart = m_kMirror.AddPart(pkObject, eID);
    if (pkPart == nullptr)
    {
        return false;
    }
    lv_obj_add_event_cb(pkObject, &OnDelete, LV_EVENT_DELETE, pkPart);
    MakeFocusable(*pkPart, pkObject);
    return true;
}

void CGUILVGL::AddStyle(const eC_Char* pcName, const lv_style_t* pkStyle, lv_style_selector_t uiSelector)
{
    m_kStyles.Add(pcName, {pkStyle, uiSelector});
}

void CGUILVGL::Style(void* pThis, lv_obj_t* pkObject, const eC_Char* pcName)
{
    static_cast<const CGUILVGL*>(pThis)->m_kStyles.ForEach(
        pcName, [pkObject](const Style_t& kStyle)
        { lv_obj_add_style(pkObject, kStyle.m_pkStyle, kStyle.m_uiSelector); });
}

const void* CGUILVGL::FindImage(void* pThis, const eC_Char* pcName)
{
    const CGUILVGL& kThis = *static_cast<const CGUILVGL*>(pThis);
    const void* pSource = kThis.m_pfnImage != nullptr ? kThis.m_pfnImage(pcName) : nullptr;
    if (pSource == nullptr && *pcName != '\0')
    {
        ReportMissingPicture(pcName);
    }
    return pSource;
}

void CGUILVGL::SetTransition(EGUITransition eKind, eC_UInt uiTime, eC_Bool bOnce)
{
    m_kTransition.Set(eKind, uiTime, bOnce);
}

lv_obj_t* CGUILVGL::GetNative(const CGUIObject* pkObject) const
{
    const CGUIMirrored* pkMirrored = m_kMirror.Find(pkObject);
    return pkMirrored != nullptr ? Native(*pkMirrored) : nullptr;
}

void CGUILVGL::Turn()
{
    if (lv_indev_active() != nullptr)
    {
        HurryUp();
        return;
    }
    RunTurn(
        [this]
        {
            if (m_kTransition.FinishIfOver())
            {
                m_kMirror.RenewInput();
            }
            m_kMirror.Commit();
            m_kTransition.Settle();
            PlaceShades();
        });
}

// ---- Making and deleting ---------------------------------------------------------------------------

lv_obj_t* CGUILVGL::GetParent()
{
    return m_pkParent != nullptr ? m_pkParent : lv_display_get_screen_active(m_kOptions.m_pkDisplay);
}

lv_obj_t* CGUILVGL::MakeScreen(lv_obj_t*& pkScreen)
{
    if (pkScreen == nullptr)
    {
        lv_display_t* pkDefault = lv_display_get_default();
        lv_display_set_default(m_kOptions.m_pkDisplay);
        pkScreen = lv_obj_create(nullptr);
        lv_display_set_default(pkDefault);
        lv_obj_add_event_cb(pkScreen, &OnHelperDelete, LV_EVENT_DELETE, this);
    }
    return pkScreen;
}

lv_obj_t* CGUILVGL::GetWorkshop()
{
    // What is made on a screen that is not active need not be drawn again at each change. A parent of the
    // application may have a size and styles that a builder counts on.
    return m_pkParent != nullptr ? m_pkParent : MakeScreen(m_pkWorkshop);
}

void* CGUILVGL::Create(CGUIMirrored& kMirrored)
{
    const CGUIWidget& kWidget = *kMirrored.GetWidget();
    CGUIMirrored* pkParent = kMirrored.GetParent();
    lv_obj_t* pkObject =
        CreateLVGLWidget(kWidget, pkParent != nullptr ? Native(*pkParent) : GetWorkshop(), m_kLook);
    if (pkObject == nullptr)
    {
        return nullptr;
    }
    lv_obj_add_event_cb(pkObject, &OnDelete, LV_EVENT_DELETE, &kMirrored);
    if (pkParent == nullptr)
    {
        lv_obj_add_flag(pkObject, LV_OBJ_FLAG_HIDDEN);
        kMirrored.m_pExtra = MakeWindow(kMirrored);
        return pkObject;
    }
    kMirrored.m_pExtra = Hash(kWidget.GetStyle());
    const lv_event_code_t eInput = GetLVGLInputEvent(kWidget);
    if (eInput != LV_EVENT_ALL)
    {
        lv_obj_add_event_cb(pkObject, &OnInput, eInput, &kMirrored);
        MakeFocusable(kMirrored, pkObject);
    }
    if (eInput == LV_EVENT_CLICKED)
    {
        lv_obj_add_event_cb(pkObject, &OnArrow, LV_EVENT_KEY, &kMirrored);
    }
    else if (eInput == LV_EVENT_VALUE_CHANGED)
    {
        lv_obj_add_event_cb(pkObject, &OnInput, LV_EVENT_READY, &kMirrored);
    }
    return pkObject;
}

void* CGUILVGL::Build(CGUIMirrored& kWindow, CGUIWindowBuilder& kBuilder)
{
    // What LVGL adds to the default group by itself belongs to this window.
    struct DefaultGroup_t
    {
        explicit DefaultGroup_t(lv_group_t* pkGroup) : m_pkBefore(lv_group_get_default())
        {
            lv_group_set_default(pkGroup);
        }
        DefaultGroup_t(const DefaultGroup_t&) = delete;
        DefaultGroup_t& operator=(const DefaultGroup_t&) = delete;
        ~DefaultGroup_t() { lv_group_set_default(m_pkBefore); }
        lv_group_t* m_pkBefore;
    };
    Window_t* pkWindow = MakeWindow(kWindow);
    kWindow.m_pExtra = pkWindow;
    lv_obj_t* const pkParent = GetWorkshop();
    const std::uint32_t uiBefore = lv_obj_get_child_count(pkParent);
    lv_obj_t* pkObject = nullptr;
    try
    {
        const DefaultGroup_t kGroup(pkWindow->m_pkGroup);
        pkObject = static_cast<lv_obj_t*>(kBuilder.Build(pkParent));
    }
    catch (...)
    {
        DeleteFrom(pkParent, uiBefore);
        FreeGroup(kWindow);
        throw;
    }
    if (pkObject == nullptr)
    {
        DeleteFrom(pkParent, uiBefore);
        FreeGroup(kWindow);
        return nullptr;
    }
    lv_obj_add_flag(pkObject, LV_OBJ_FLAG_HIDDEN);
    lv_obj_add_event_cb(pkObject, &OnDelete, LV_EVENT_DELETE, &kWindow);
    return pkObject;
}

CGUILVGL::Window_t* CGUILVGL::MakeWindow(CGUIMirrored& kWindow)
{
    auto* pkWindow = new CGUIRetained<Window_t>;
    pkWindow->m_pkGroup = lv_group_create();
    lv_group_set_focus_cb(pkWindow->m_pkGroup, &OnFocus);
    pkWindow->m_bIsPopup = IsGUIPopup(*kWindow.GetWidget());
    return pkWindow;
}

void CGUILVGL::FreeGroup(CGUIMirrored& kWindow)
{
    const std::unique_ptr<CGUIRetained<Window_t>> pkWindow(
        static_cast<CGUIRetained<Window_t>*>(static_cast<Window_t*>(kWindow.m_pExtra)));
    kWindow.m_pExtra = nullptr;
    if (pkWindow == nullptr)
    {
        return;
    }
    if (pkWindow->m_pkGroup == m_pkGroup)
    {
        m_pkGroup = m_pkNoGroup;
    }
    lv_group_delete(pkWindow->m_pkGroup);
}

void CGUILVGL::MakeFocusable(CGUIMirrored& kMirrored, lv_obj_t* pkObject)
{
    Window_t* pkWindow = GetWindow(kMirrored);
    if (lv_obj_get_group(pkObject) != pkWindow->m_pkGroup)
    {
        lv_group_add_obj(pkWindow->m_pkGroup, pkObject);
    }
    pkWindow->m_bHasFocusable = true;
}

void CGUILVGL::Update(CGUIMirrored& kMirrored, const GUIArea_t& kArea)
{
    const CGUIWidget& kWidget = *kMirrored.GetWidget();
    lv_obj_t* pkObject = Native(kMirrored);
    if (!kMirrored.IsWindow() && kMirrored.m_pExtra != Hash(kWidget.GetStyle()))
    {
        kMirrored.m_pExtra = Hash(kWidget.GetStyle());
        m_kStyles.ForAll([pkObject](const Style_t& kStyle)
                         { lv_obj_remove_style(pkObject, kStyle.m_pkStyle, kStyle.m_uiSelector); });
        AddLVGLStyles(kWidget, pkObject, m_kLook);
    }
    const lv_obj_t* pkParent = kMirrored.IsWindow() ? GetParent() : lv_obj_get_parent(pkObject);
    UpdateLVGLWidget(kWidget, pkObject, pkParent, ToPixels(kWidget, kArea), m_kLook);
    if (lv_obj_get_group(pkObject) != nullptr)
    {
        (kWidget.GetObject().IsFocusable() ? lv_obj_remove_state : lv_obj_add_state)(pkObject,
                                                                                     LV_STATE_DISABLED);
    }
}

void CGUILVGL::Delete(CGUIMirrored& kMirrored)
{
    lv_obj_t* pkObject = Native(kMirrored);
    if (!kMirrored.IsWindow())
    {
        lv_obj_delete(pkObject);
        return;
    }
    const Window_t* pkWindow = static_cast<const Window_t*>(kMirrored.m_pExtra);
    const eC_Bool bLeaves =
        m_kTransition.IsWanted() && !pkWindow->m_bIsPopup && !lv_obj_has_flag(pkObject, LV_OBJ_FLAG_HIDDEN);
    if (!bLeaves)
    {
        // So that it is drawn again once, not for everything in it.
        lv_obj_add_flag(pkObject, LV_OBJ_FLAG_HIDDEN);
    }
    FreeGroup(kMirrored);
    m_kTransition.Finish();
    if (bLeaves)
    {
        RemoveEvents(pkObject);
        m_kTransition.Leave(pkObject, true);
        return;
    }
    lv_obj_delete(pkObject);
}

void CGUILVGL::RemoveEvents(lv_obj_t* pkObject)
{
    for (const lv_event_cb_t pfnEvent : {&OnInput, &OnArrow, &OnDelete})
    {
        lv_obj_remove_event_cb(pkObject, pfnEvent);
    }
    for (std::uint32_t uiChild = 0; uiChild < lv_obj_get_child_count(pkObject); ++uiChild)
    {
        RemoveEvents(lv_obj_get_child(pkObject, static_cast<std::int32_t>(uiChild)));
    }
}

// ---- Showing and ordering --------------------------------------------------------------------------

void CGUILVGL::SetShown(CGUIMirrored& kMirrored, eC_Bool bIsShown)
{
    lv_obj_t* pkObject = Native(kMirrored);
    const eC_Bool bIsDialog =
        kMirrored.IsWindow() && !static_cast<const Window_t*>(kMirrored.m_pExtra)->m_bIsPopup;
    if (bIsDialog && m_kTransition.IsRunning())
    {
        m_kTransition.Finish();
        m_kMirror.RenewInput();
    }
    if (!bIsShown && bIsDialog && m_kTransition.IsWanted())
    {
        m_kTransition.Leave(pkObject, false);
        return;
    }
    if (bIsShown && kMirrored.IsWindow())
    {
        Attach(kMirrored);
        PrepareFocus(kMirrored);
    }
    (bIsShown ? lv_obj_remove_flag : lv_obj_add_flag)(pkObject, LV_OBJ_FLAG_HIDDEN);
    if (!bIsShown && kMirrored.IsWindow() && lv_obj_get_child_count(GetParent()) > cuiMostAttached)
    {
        lv_obj_set_parent(pkObject, MakeScreen(m_pkStore));
    }
    if (bIsShown && bIsDialog && m_kTransition.IsWanted())
    {
        m_kTransition.Enter(pkObject);
    }
}

void CGUILVGL::Attach(CGUIMirrored& kWindow)
{
    lv_obj_t* pkObject = Native(kWindow);
    const lv_obj_t* pkParent = lv_obj_get_parent(pkObject);
    if (pkParent == GetParent() || (pkParent != m_pkWorkshop && pkParent != m_pkStore))
    {
        return;
    }
    PrepareFocus(kWindow);
    if (pkParent == m_pkWorkshop)
    {
        lv_obj_update_layout(m_pkWorkshop);
    }
    const lv_font_t* pkFont = lv_obj_get_style_text_font(pkObject, LV_PART_MAIN);
    lv_obj_set_parent(pkObject, GetParent());
    if (lv_obj_get_style_text_font(pkObject, LV_PART_MAIN) != pkFont)
    {
        lv_obj_refresh_style(pkObject, LV_PART_ANY, LV_STYLE_PROP_ANY);
    }
}

void CGUILVGL::PrepareFocus(CGUIMirrored& kWindow)
{
    const CGUIMirror::Input_t kInput = m_kMirror.GetInput();
    if (kInput.m_pkWindow == &kWindow && kInput.m_pkFocussed != nullptr && !m_kTransition.IsWanted())
    {
        FocusNative(Native(*kInput.m_pkFocussed));
    }
    else
    {
        HideFocus(GetWindow(kWindow)->m_pkGroup);
    }
}

void CGUILVGL::PutBelow(CGUIMirrored& kMirrored, CGUIMirrored* pkAbove)
{
    lv_obj_t* pkObject = Native(kMirrored);
    if (kMirrored.IsWindow() && m_kTransition.IsRunning())
    {
        m_kTransition.Finish();
        m_kMirror.RenewInput();
    }
    if (kMirrored.IsWindow())
    {
        if (pkAbove != nullptr)
        {
            Attach(*pkAbove);
        }
        Attach(kMirrored);
    }
    const auto iNow = static_cast<eC_Int>(lv_obj_get_index(pkObject));
    eC_Int iPlace = static_cast<eC_Int>(lv_obj_get_child_count(lv_obj_get_parent(pkObject))) - 1;
    if (pkAbove != nullptr && lv_obj_get_parent(Native(*pkAbove)) == lv_obj_get_parent(pkObject))
    {
        iPlace = static_cast<eC_Int>(lv_obj_get_index(Native(*pkAbove)));
        iPlace -= iNow < iPlace ? 1 : 0;
    }
    if (iPlace != iNow)
    {
        lv_obj_move_to_index(pkObject, iPlace);
    }
}

lv_obj_t* CGUILVGL::MakeHelper(lv_obj_t*& pkHelper)
{
    if (pkHelper == nullptr)
    {
        pkHelper = lv_obj_create(GetParent());
        lv_obj_remove_style_all(pkHelper);
        lv_obj_set_size(pkHelper, LV_PCT(100), LV_PCT(100));
        lv_obj_add_flag(pkHelper, LV_OBJ_FLAG_HIDDEN);
        lv_obj_remove_flag(pkHelper, LV_OBJ_FLAG_SCROLLABLE);
        lv_obj_remove_flag(pkHelper, LV_OBJ_FLAG_CLICK_FOCUSABLE);
        lv_obj_add_event_cb(pkHelper, &OnHelperDelete, LV_EVENT_DELETE, this);
        if (lv_obj_get_group(pkHelper) != nullptr)
        {
            lv_group_remove_obj(pkHelper);
        }
    }
    return pkHelper;
}

void CGUILVGL::PlaceShades()
{
    if (m_pkModal != nullptr)
    {
        if (m_pkShade == nullptr)
        {
            Style(this, MakeHelper(m_pkShade), "Shade");
        }
        const auto iModal = static_cast<eC_Int>(lv_obj_get_index(m_pkModal));
        const auto iShade = static_cast<eC_Int>(lv_obj_get_index(m_pkShade));
        if (iShade != iModal - 1)
        {
            lv_obj_move_to_index(m_pkShade, iShade < iModal ? iModal - 1 : iModal);
        }
        lv_obj_remove_flag(m_pkShade, LV_OBJ_FLAG_HIDDEN);
    }
    else if (m_pkShade != nullptr)
    {
        lv_obj_add_flag(m_pkShade, LV_OBJ_FLAG_HIDDEN);
    }

    if (m_kTransition.IsRunning())
    {
        lv_obj_move_foreground(MakeHelper(m_pkBlock));
        lv_obj_remove_flag(m_pkBlock, LV_OBJ_FLAG_HIDDEN);
    }
    else if (m_pkBlock != nullptr)
    {
        lv_obj_add_flag(m_pkBlock, LV_OBJ_FLAG_HIDDEN);
    }
}

// ---- Input -----------------------------------------------------------------------------------------

void CGUILVGL::SetInput(CGUIMirrored* pkModal, CGUIMirrored* pkWindow, CGUIMirrored* pkFocussed)
{
    m_pkModal = pkModal != nullptr ? Native(*pkModal) : nullptr;
    const Window_t* pkKeys = pkWindow != nullptr ? GetWindow(*pkWindow) : nullptr;
    GiveGroup(m_kTransition.IsRunning() || pkKeys == nullptr ? m_pkNoGroup : pkKeys->m_pkGroup);
    if (m_kTransition.IsRunning())
    {
        // The keys follow when it is over.
        return;
    }
    if (pkFocussed != nullptr)
    {
        FocusNative(Native(*pkFocussed));
        if (m_pkNobody != nullptr)
        {
            lv_group_remove_obj(m_pkNobody);
        }
    }
    else if (pkKeys != nullptr && pkKeys->m_bHasFocusable)
    {
        FocusNobody(pkKeys->m_pkGroup);
    }
}

void CGUILVGL::FocusNative(lv_obj_t* pkObject)
{
    if (lv_group_get_focused(lv_obj_get_group(pkObject)) != pkObject ||
        !lv_obj_has_state(pkObject, LV_STATE_FOCUSED))
    {
        lv_group_focus_obj(pkObject);
    }
}

void CGUILVGL::HideFocus(lv_group_t* pkGroup)
{
    lv_obj_t* pkFocussed = lv_group_get_focused(pkGroup);
    if (pkFocussed != nullptr)
    {
        lv_obj_remove_state(pkFocussed,
                            static_cast<lv_state_t>(LV_STATE_FOCUSED | LV_STATE_FOCUS_KEY | LV_STATE_EDITED));
    }
}

void CGUILVGL::GiveGroup(lv_group_t* pkGroup)
{
    if (pkGroup != m_pkGroup)
    {
        if (!IsHidden(lv_group_get_focused(m_pkGroup)))
        {
            // Two groups would both show a focus.
            HideFocus(m_pkGroup);
        }
        m_pkGroup = pkGroup;
    }
    for (lv_indev_t* pkDevice = lv_indev_get_next(nullptr); pkDevice != nullptr;
         pkDevice = lv_indev_get_next(pkDevice))
    {
        const lv_indev_type_t eType = lv_indev_get_type(pkDevice);
        if ((eType == LV_INDEV_TYPE_KEYPAD || eType == LV_INDEV_TYPE_ENCODER) &&
            lv_indev_get_display(pkDevice) == m_kOptions.m_pkDisplay &&
            lv_indev_get_group(pkDevice) != pkGroup)
        {
            lv_indev_set_group(pkDevice, pkGroup);
        }
    }
}

void CGUILVGL::FocusNobody(lv_group_t* pkGroup)
{
    // LVGL always focuses something in a group. From here, the next object is the first one.
    if (lv_obj_get_group(MakeHelper(m_pkNobody)) != pkGroup)
    {
        lv_group_add_obj(pkGroup, m_pkNobody);
    }
    lv_group_focus_obj(m_pkNobody);
}

CGUIMirrored& CGUILVGL::GetMirrored(lv_event_t* pkEvent)
{
    return *static_cast<CGUIMirrored*>(lv_event_get_user_data(pkEvent));
}

void CGUILVGL::HurryUp()
{
    lv_timer_ready(m_pkTimer);
}

void CGUILVGL::OnTimer(lv_timer_t* pkTimer)
{
    static_cast<CGUILVGL*>(lv_timer_get_user_data(pkTimer))->Turn();
    const eC_UInt uiNext = GETTIMER.GetTimeUntilNextCallback();
    lv_timer_set_period(pkTimer, uiNext < LV_DEF_REFR_PERIOD ? uiNext + 1 : LV_DEF_REFR_PERIOD);
}

CGUIMirrored* CGUILVGL::FindMirrored(lv_obj_t* pkObject)
{
    for (std::uint32_t uiHandler = 0; uiHandler < lv_obj_get_event_count(pkObject); ++uiHandler)
    {
        lv_event_dsc_t* pkHandler = lv_obj_get_event_dsc(pkObject, uiHandler);
        if (lv_event_dsc_get_cb(pkHandler) == &OnDelete)
        {
            return static_cast<CGUIMirrored*>(lv_event_dsc_get_user_data(pkHandler));
        }
    }
    return nullptr;
}

void CGUILVGL::OnFocus(lv_group_t* pkGroup)
{
    // One handler for the group takes less memory than one for each object in it.
    if (CGUIMirrored* pkMirrored = FindMirrored(lv_group_get_focused(pkGroup)))
    {
        ms_pkInstance->m_kMirror.OnNativeFocus(*pkMirrored);
        ms_pkInstance->HurryUp();
    }
}

void CGUILVGL::OnArrow(lv_event_t* pkEvent)
{
    // Buttons need no arrow keys, so these move the focus.
    lv_group_t* pkGroup = lv_obj_get_group(lv_event_get_target_obj(pkEvent));
    switch (lv_event_get_key(pkEvent))
    {
    case LV_KEY_DOWN:
    case LV_KEY_RIGHT:
        lv_group_focus_next(pkGroup);
        break;
    case LV_KEY_UP:
    case LV_KEY_LEFT:
        lv_group_focus_prev(pkGroup);
        break;
    default:
        break;
    }
}

void CGUILVGL::OnInput(lv_event_t* pkEvent)
{
    CGUIMirrored& kMirrored = GetMirrored(pkEvent);
    CatchAll(
        [&kMirrored, pkEvent]
        { ms_pkInstance->ReactTo(kMirrored, lv_event_get_code(pkEvent), lv_event_get_target_obj(pkEvent)); });
    ms_pkInstance->HurryUp();
}

void CGUILVGL::ReactTo(CGUIMirrored& kMirrored, lv_event_code_t eCode, lv_obj_t* pkObject)
{
    CGUIWidget* pkWidget = kMirrored.GetWidget();
    if (pkWidget == nullptr || m_kTransition.IsRunning())
    {
        return;
    }
    if (eCode != LV_EVENT_VALUE_CHANGED)
    {
        m_kInput.Touch(&pkWidget->GetObject());
        return;
    }
    if (lv_obj_check_type(pkObject, &lv_textarea_class))
    {
        m_kInput.ChangeText(*pkWidget, lv_textarea_get_text(pkObject));
        return;
    }
    eC_Int iValue = 0;
    if (lv_obj_check_type(pkObject, &lv_slider_class))
    {
        iValue = static_cast<eC_Int>(lv_slider_get_value(pkObject));
    }
    else if (lv_obj_check_type(pkObject, &lv_roller_class))
    {
        iValue = static_cast<eC_Int>(lv_roller_get_selected(pkObject));
    }
    else
    {
        iValue = lv_obj_has_state(pkObject, LV_STATE_CHECKED) ? 1 : 0;
    }
    m_kInput.ChangeValue(*pkWidget, iValue);
}

void CGUILVGL::OnDelete(lv_event_t* pkEvent)
{
    CGUIMirrored& kMirrored = GetMirrored(pkEvent);
    if (kMirrored.GetNative() == lv_event_get_target_obj(pkEvent))
    {
        if (kMirrored.GetNative() == ms_pkInstance->m_pkModal)
        {
            ms_pkInstance->m_pkModal = nullptr;
        }
        if (kMirrored.IsWindow())
        {
            ms_pkInstance->FreeGroup(kMirrored);
        }
        ms_pkInstance->m_kMirror.OnNativeDeleted(kMirrored);
        ms_pkInstance->HurryUp();
    }
}

void CGUILVGL::OnParentDelete(lv_event_t* pkEvent)
{
    static_cast<CGUILVGL*>(lv_event_get_user_data(pkEvent))->m_pkParent = nullptr;
}

void CGUILVGL::OnHelperDelete(lv_event_t* pkEvent)
{
    auto& kThis = *static_cast<CGUILVGL*>(lv_event_get_user_data(pkEvent));
    for (lv_obj_t** ppkHelper :
         {&kThis.m_pkShade, &kThis.m_pkBlock, &kThis.m_pkNobody, &kThis.m_pkWorkshop, &kThis.m_pkStore})
    {
        *ppkHelper = *ppkHelper == lv_event_get_target_obj(pkEvent) ? nullptr : *ppkHelper;
    }
}

// ---- Sizes -----------------------------------------------------------------------------------------

eC_Int CGUILVGL::GetPixels(eC_Bool bIsWidth) const
{
    return static_cast<eC_Int>(bIsWidth ? lv_display_get_horizontal_resolution(m_kOptions.m_pkDisplay)
                                        : lv_display_get_vertical_resolution(m_kOptions.m_pkDisplay));
}

eC_Int CGUILVGL::MeasureText(const eC_Char* pcText, eC_Int& iWidthOUT, eC_Int& iHeightOUT) const
{
    lv_point_t kSize;
    lv_text_get_size(&kSize, pcText, m_kOptions.m_pkFont, 0, 0, LV_COORD_MAX, LV_TEXT_FLAG_NONE);
    iWidthOUT = static_cast<eC_Int>(kSize.x);
    iHeightOUT = static_cast<eC_Int>(kSize.y);
    return static_cast<eC_Int>(lv_font_get_line_height(m_kOptions.m_pkFont));
}

// SPDX-License-Identifier: MIT
#ifndef ADAPTERS_LVGL_GUILVGL_H
#define ADAPTERS_LVGL_GUILVGL_H

/** @file
 *  Dialogs and popups on a display of LVGL 9.
 */

#include "Adapters/LVGL/GUILVGLTransition.h"
#include "Adapters/LVGL/LVGLWidgets.h"
#include "Adapters/Mirror/GUINamedStyles.h"
#include "Adapters/Mirror/GUINativeAdapter.h"
#include "Core/GUITrace.h"

#include <lvgl.h>

/** Where and how big dialogs are. */
struct GUILVGLOptions_t : GUIAdapterOptions_t
{
    lv_display_t* m_pkDisplay = nullptr; ///< null: LVGL's default display
    lv_obj_t* m_pkParent = nullptr;      ///< where the dialogs go; null: the display's active screen
    const lv_font_t* m_pkFont = nullptr; ///< measures texts; null: LVGL's default font
};

/** Builds a dialog or popup with LVGL, for CGUIMirror::AddBuilder. What LVGL adds to groups by itself goes
 * into the window's group.
 */
using CGUILVGLBuilder = CGUIFunctionBuilder<lv_obj_t, lv_obj_t>;

/** Writes the trace to LVGL's log: ERROR and WARNING as such, everything else as information. */
class CGUILVGLLog : public CGUITraceSink
{
public:
    void Write(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
               const eC_String& kLine) override;
};

/** Shows the dialogs and popups of the object tree on a display of LVGL.
 *
 *  Construction sets the framework's clock to lv_tick_get and makes a timer of LVGL: from then on
 *  lv_timer_handler runs the framework's callbacks, asks for the values of the widgets and commits (see
 *  CGUIMirror). So nothing that LVGL is working on is deleted under its hands.
 *
 *  Each dialog and popup has a group of its own, made and freed with it. The keypads and encoders of the
 *  display get the group of the window that has the input. A modal popup covers everything below it with an
 *  object that catches touches, in the style "Shade".
 *
 *  Styles have names: that of a class ("Screen", "Popup", "Container", "Label", "Image", "Button",
 * "CheckBox", "Bar", "Slider", "List", "TextField") is for all of its widgets; "WholeScreen" and "Window" for
 * screens and popups that fill the display or do not, "ScreenTitle" and "WindowTitle" for their titles; any
 * other one for the widgets that name it.
 *
 *  It exists after lv_init and is destroyed before lv_deinit. Nothing throws; what the application's code
 * throws inside is logged as ERROR.
 */
class CGUILVGL : public CGUINativeAdapter
{
public:
    /** @param kListener learns what the user does with widgets of dialog files, not owned
     *  @throws std::bad_alloc
     */
    CGUILVGL(const GUILVGLOptions_t& kOptions, CGUIWidgetListener& kListener);
    CGUILVGL(const CGUILVGL&) = delete;
    CGUILVGL& operator=(const CGUILVGL&) = delete;

    /** Deletes all native objects, and restores the framework's own clock. */
    ~CGUILVGL();

    /** Names an object, inside the builder of a dialog or popup; it is added to the window's group.
     *  Logged: what CGUIMirror::AddPart logs. @return false if it was refused
     */
    eC_Bool Identify(lv_obj_t* pkObject, ObjectHandle_t eID);

    /** Adds a style to a name, for objects made from now on.
     *  @param pcName, pkStyle not copied, outlive the adapter. @param uiSelector as of lv_obj_add_style
     *  @throws std::bad_alloc with nothing changed
     */
    void AddStyle(const eC_Char* pcName, const lv_style_t* pkStyle, lv_style_selector_t uiSelector = 0);

    /** Sets what finds the source of a picture by its name, as of lv_image_set_src; null: none is known. */
    void SetImages(const void* (*pfnFind)(const eC_Char* pcName)) { m_pfnImage = pfnFind; }

    /** Sets the transition of the switches from now on, or of the next one alone. While it runs there is no
     *  input; another switch, or anything that deletes one of the two dialogs, ends it at once.
     *  @param uiTime milliseconds
     */
    void SetTransition(EGUITransition eKind, eC_UInt uiTime, eC_Bool bOnce = false);

    /** @return whether a transition runs */
    eC_Bool IsInTransition() const { return m_kTransition.IsRunning(); }

    /** What LVGL's timer does: callbacks of the framework's timer, values, commit. An application that calls
     *  this in its main loop need not wait for the timer. In an event of LVGL it is put off until that is
     * over.
     */
    void Turn();

    /** @return the native object of an object, null if it has none */
    lv_obj_t* GetNative(const CGUIObject* pkObject) const;

private:
    struct Style_t
    {
        const lv_style_t* m_pkStyle;
        lv_style_selector_t m_uiSelector;
    };

    /** Belongs to a window, in CGUIMirrored::m_pExtra. */
    struct Window_t
    {
        lv_group_t* m_pkGroup = nullptr;
        eC_Bool m_bIsPopup = false;
        eC_Bool m_bHasFocusable = false; ///< of our own
    };

    // --- CGUINativeAdapter
    eC_Int GetPixels(eC_Bool bIsWidth) const override;
    eC_Int MeasureText(const eC_Char* pcText, eC_Int& iWidthOUT, eC_Int& iHeightOUT) const override;

    // --- CGUINativeToolkit
    void* Create(CGUIMirrored& kMirrored) override;
    void* Build(CGUIMirrored& kWindow, CGUIWindowBuilder& kBuilder) override;
    void Update(CGUIMirrored& kMirrored, const GUIArea_t& kArea) override;
    void SetShown(CGUIMirrored& kMirrored, eC_Bool bIsShown) override;
    void PutBelow(CGUIMirrored& kMirrored, CGUIMirrored* pkAbove) override;
    void Delete(CGUIMirrored& kMirrored) override;
    void SetInput(CGUIMirrored* pkModal, CGUIMirrored* pkWindow, CGUIMirrored* pkFocussed) override;

    // --- Events of LVGL
    static void OnTimer(lv_timer_t* pkTimer);
    static void OnInput(lv_event_t* pkEvent);
    static void OnFocus(lv_group_t* pkGroup);
    static void OnArrow(lv_event_t* pkEvent);
    static void OnDelete(lv_event_t* pkEvent);
    static void OnParentDelete(lv_event_t* pkEvent);
    static void OnHelperDelete(lv_event_t* pkEvent);
    static CGUIMirrored& GetMirrored(lv_event_t* pkEvent);
    static CGUIMirrored* FindMirrored(lv_obj_t* pkObject);
    void ReactTo(CGUIMirrored& kMirrored, lv_event_code_t eCode, lv_obj_t* pkObject);
    void HurryUp();

    static void Style(void* pThis, lv_obj_t* pkObject, const eC_Char* pcName);
    static const void* FindImage(void* pThis, const eC_Char* pcName);

    static lv_obj_t* Native(const CGUIMirrored& kMirrored)
    {
        return static_cast<lv_obj_t*>(kMirrored.GetNative());
    }
    static Window_t* GetWindow(CGUIMirrored& kMirrored)
    {
        return static_cast<Window_t*>(kMirrored.GetWindow()->m_pExtra);
    }
    lv_obj_t* GetParent();
    lv_obj_t* GetWorkshop();
    lv_obj_t* MakeScreen(lv_obj_t*& pkScreen);
    void Attach(CGUIMirrored& kWindow);
    void PrepareFocus(CGUIMirrored& kWindow);
    static void FocusNative(lv_obj_t* pkObject);
    static void HideFocus(lv_group_t* pkGroup);
    Window_t* MakeWindow(CGUIMirrored& kWindow);
    void FreeGroup(CGUIMirrored& kWindow);
    void MakeFocusable(CGUIMirrored& kMirrored, lv_obj_t* pkObject);
    static void RemoveEvents(lv_obj_t* pkObject);
    lv_obj_t* MakeHelper(lv_obj_t*& pkHelper);
    void PlaceShades();
    void GiveGroup(lv_group_t* pkGroup);
    void FocusNobody(lv_group_t* pkGroup);

    static CGUILVGL* ms_pkInstance; ///< there is one root, and so one adapter

    GUILVGLOptions_t m_kOptions;
    LVGLLook_t m_kLook;
    CGUILVGLTransition m_kTransition;
    const void* (*m_pfnImage)(const eC_Char* pcName) = nullptr;
    CGUINamedStyles<Style_t> m_kStyles;

    lv_timer_t* m_pkTimer = nullptr;
    lv_obj_t* m_pkParent = nullptr;
    lv_obj_t* m_pkShade = nullptr;    ///< below a modal popup
    lv_obj_t* m_pkBlock = nullptr;    ///< above everything during a transition
    lv_obj_t* m_pkWorkshop = nullptr; ///< a screen on which dialogs are made
    lv_obj_t* m_pkStore = nullptr;    ///< a screen for hidden dialogs, if there are many
    lv_obj_t* m_pkNobody = nullptr;   ///< has the native focus when nothing has ours
    lv_group_t* m_pkNoGroup = nullptr;
    lv_group_t* m_pkGroup = nullptr; ///< of the window that has the keys
    lv_obj_t* m_pkModal = nullptr;
};

#endif

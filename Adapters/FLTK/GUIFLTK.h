// SPDX-License-Identifier: MIT
#ifndef ADAPTERS_FLTK_GUIFLTK_H
#define ADAPTERS_FLTK_GUIFLTK_H

/** @file
 *  Dialogs and popups in a window of FLTK 1.3.
 */

#include "Adapters/FLTK/FLTKWidgets.h"
#include "Adapters/Mirror/GUINamedStyles.h"
#include "Adapters/Mirror/GUINativeAdapter.h"

#include <FL/Fl.H>

/** Where and how big dialogs are. */
struct GUIFLTKOptions_t : GUIAdapterOptions_t
{
    Fl_Group* m_pkParent = nullptr; ///< the window, or a group in it, that the dialogs fill; not null
    Fl_Font m_iFont = FL_HELVETICA; ///< of texts without a style, and measures all of them
    Fl_Fontsize m_iFontSize = 14;   ///< likewise, in pixels
    eC_UInt m_uiPeriod = 100;       ///< milliseconds until values are asked for again if nothing else happens
};

/** Builds a dialog or popup with FLTK, for CGUIMirror::AddBuilder. The parent is FLTK's current group
 *  meanwhile, so new widgets are in it.
 */
using CGUIFLTKBuilder = CGUIFunctionBuilder<Fl_Widget, Fl_Group>;

/** Shows the dialogs and popups of the object tree in a window of FLTK.
 *
 *  Each time when FLTK is about to draw and to wait (see Fl::add_check) this runs the framework's callbacks,
 *  asks for the values of the widgets and commits (see CGUIMirror). FLTK also wakes up for the next callback
 *  of the framework's timer (see Fl::add_timeout). While FLTK handles an event nothing is committed, so no
 *  widget is deleted in its own callback, nor under a menu or message that waits in it.
 *
 *  Each dialog and popup is a group. The keys of FLTK move the focus within it, around from the last widget
 *  to the first. A modal popup covers everything below it with a widget that catches touches, in the style
 *  "Shade". Groups may overlap, which FLTK by itself does not draw correctly.
 *
 *  Styles have names: that of a class ("Screen", "Popup", "Container", "Label", "Image", "Button",
 *  "CheckBox", "Bar", "Slider", "List", "TextField") is for all of its widgets; "WholeScreen" and "Window"
 *  for screens and popups that fill the display or do not, "ScreenTitle" and "WindowTitle" for their titles;
 *  any other one for the widgets that name it. With ":focus" behind it a style is for as long as the widget
 *  has the focus, as in "Button:focus".
 *
 *  It needs a display, and is destroyed before the parent. Nothing throws; what the application's code throws
 *  inside is logged as ERROR.
 */
class CGUIFLTK : public CGUINativeAdapter, private CFLTKEvents
{
public:
    /** Sets what a widget looks like, such as its box, colours and font. */
    using Style_t = void (*)(Fl_Widget& kWidget);

    /** Opens the display, which ends the program if there is none.
     *  @param kListener learns what the user does with widgets of dialog files, not owned
     *  @throws std::bad_alloc
     */
    CGUIFLTK(const GUIFLTKOptions_t& kOptions, CGUIWidgetListener& kListener);

    /** Deletes all native objects. */
    ~CGUIFLTK();

    /** Names an object, inside the builder of a dialog or popup.
     *  Logged: what CGUIMirror::AddPart logs. @return false if it was refused
     *  @throws std::bad_alloc with nothing changed
     */
    eC_Bool Identify(Fl_Widget& kWidget, ObjectHandle_t eID);

    /** Adds a style to a name, for objects that are made or change from now on.
     *  @param pcName not copied, outlives the adapter. @param pfnStyle not null
     *  @throws std::bad_alloc with nothing changed
     */
    void AddStyle(const eC_Char* pcName, Style_t pfnStyle) { m_kStyles.Add(pcName, pfnStyle); }

    /** Sets what finds a picture by its name; null: none is known. */
    void SetImages(Fl_Image* (*pfnFind)(const eC_Char* pcName)) { m_kLook.m_pfnImage = pfnFind; }

    /** What FLTK calls in each turn of its main loop. Does nothing while FLTK handles an event. */
    void Turn();

    /** @return the native object of an object, null if it has none; of a dialog or popup its group */
    Fl_Widget* GetNative(const CGUIObject* pkObject) const;

private:
    class CStage;
    class CShade;

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

    // --- CFLTKEvents
    void OnDeleted(CGUIMirrored& kMirrored, Fl_Widget& kWidget) override;
    void OnFocusChanged(CGUIMirrored& kMirrored) override;
    void OnEnter(CGUIMirrored& kMirrored) override;

    // --- What FLTK calls
    static int Dispatch(int iEvent, Fl_Window* pkWindow);
    static void OnCheck(void* pThis);
    static void OnTimeout(void*) {}
    static void OnInput(Fl_Widget* pkWidget, void* pMirrored);
    void NoteFocus();
    void FindLost();
    void WakeUpInTime();

    static CFLTKWindow* GetWindow(CGUIMirrored& kMirrored);
    CStage* GetStage();
    Fl_Widget* Native(CGUIMirrored& kMirrored) const;
    CGUIMirrored* FindMirrored(const Fl_Widget* pkWidget) const;
    void Place(CGUIMirrored& kMirrored, const GUIArea_t& kPixels);
    void Style(CGUIMirrored& kMirrored);
    void ApplyStyles(Fl_Widget& kWidget, const eC_Char* pcName, eC_Bool bHasFocus) const;
    void PlaceShade();

    static CGUIFLTK* ms_pkInstance; ///< there is one root, and so one adapter

    FLTKLook_t m_kLook;
    eC_UInt m_uiPeriod;
    CGUINamedStyles<Style_t> m_kStyles;
    CFLTKPointer m_kParent;
    CStage* m_pkStage = nullptr;
    CShade* m_pkShade = nullptr;
    CFLTKWindow* m_pkBuilt = nullptr; ///< the windows that builders have made
    Fl_Widget* m_pkModal = nullptr;
    const Fl_Widget* m_pkNoted = nullptr; ///< the native focus that the tree knows of
    Fl_Event_Dispatch m_pfnDispatch;      ///< the application's own, or null
    eC_UInt m_uiEvents = 0;               ///< that FLTK is handling
};

#endif

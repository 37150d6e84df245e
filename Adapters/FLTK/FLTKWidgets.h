// SPDX-License-Identifier: MIT
#ifndef ADAPTERS_FLTK_FLTKWIDGETS_H
#define ADAPTERS_FLTK_FLTKWIDGETS_H

/** @file
 *  The native widget of each class of Widgets/, for CGUIFLTK.
 */

#include "Adapters/Mirror/GUINativeToolkit.h"

#include <FL/Fl.H>
#include <FL/Fl_Box.H>
#include <FL/Fl_Group.H>
#include <FL/Fl_Image.H>

#include <list>
#include <memory>

/** A pointer to a widget that FLTK sets to null when the widget is deleted. */
class CFLTKPointer
{
public:
    /** Points to a widget, or to none. */
    explicit CFLTKPointer(Fl_Widget* pkWidget) : m_pkWidget(pkWidget)
    {
        Fl::watch_widget_pointer(m_pkWidget);
    }
    CFLTKPointer(const CFLTKPointer&) = delete;
    CFLTKPointer& operator=(const CFLTKPointer&) = delete;
    ~CFLTKPointer() { Fl::release_widget_pointer(m_pkWidget); }

    /** @return the widget, null if it is gone */
    Fl_Widget* Get() const { return m_pkWidget; }

private:
    Fl_Widget* m_pkWidget;
};

/** What the widgets tell their adapter. */
class CFLTKEvents
{
public:
    /** A widget is being deleted, with everything in it. */
    virtual void OnDeleted(CGUIMirrored& kMirrored, Fl_Widget& kWidget) = 0;

    /** A widget gets or loses the native focus. */
    virtual void OnFocusChanged(CGUIMirrored& kMirrored) = 0;

    /** The user presses Enter in a widget. */
    virtual void OnEnter(CGUIMirrored& kMirrored) = 0;

protected:
    ~CFLTKEvents() = default;
};

/** The counterpart of a widget, in CGUIMirrored::m_pExtra: what its class looks like without styles. */
class CFLTKWidget
{
public:
    /** Makes the counterpart of a widget, which tells the adapter of its events. */
    CFLTKWidget(CGUIMirrored& kMirrored, CFLTKEvents& kEvents) : m_kMirrored(kMirrored), m_kEvents(kEvents) {}
    CFLTKWidget(const CFLTKWidget&) = delete;
    CFLTKWidget& operator=(const CFLTKWidget&) = delete;

    /** Keeps the look that a widget has now. */
    void KeepLook(const Fl_Widget& kWidget);

    /** Gives a widget the look that was kept. */
    void ResetLook(Fl_Widget& kWidget) const;

    eC_Bool m_bHasFocus = false; ///< whether it has the native focus

protected:
    ~CFLTKWidget() = default;

    CGUIMirrored& m_kMirrored; ///< what the mirror knows of it
    CFLTKEvents& m_kEvents;    ///< whom it tells of its events

private:
    Fl_Boxtype m_eBox = FL_NO_BOX;
    Fl_Color m_uiColor = 0;
    Fl_Color m_uiSelectionColor = 0;
    Fl_Color m_uiLabelColor = 0;
    Fl_Font m_iFont = 0;
    Fl_Fontsize m_iFontSize = 0;
    Fl_Align m_uiAlign = 0;
};

/** The group of a dialog or popup. It keeps the focus and touches to itself. */
class CFLTKWindow : public Fl_Group, public CFLTKWidget
{
public:
    /** Makes an empty group, which the adapter fills. */
    CFLTKWindow(CGUIMirrored& kMirrored, CFLTKEvents& kEvents);
    ~CFLTKWindow() override;

    /** Handles an event as FLTK asks for it. @return 1 if it is used, 0 if not */
    int handle(int iEvent) override;

    /** Sets what the application's builder has made; it may disappear. */
    void SetContent(Fl_Widget& kContent);

    /** @return whether a builder has made it and it is gone */
    eC_Bool HasLostContent() const { return m_pkContent != nullptr && m_pkContent->Get() == nullptr; }

    /** Adds an object that the builder has named. @throws std::bad_alloc with nothing changed */
    void AddPart(Fl_Widget& kWidget, CGUIMirrored& kPart);

    /** @return the native object of a part, null if it is gone */
    Fl_Widget* FindPart(const CGUIMirrored& kPart) const;

    /** @param pkWidget a native object; null: one that is gone
     *  @return the part that it is, null if it is none
     */
    CGUIMirrored* FindPart(const Fl_Widget* pkWidget) const;

    /** Forgets a part. */
    void RemovePart(const CGUIMirrored& kPart);

    /** @return what the mirror knows of the dialog or popup */
    CGUIMirrored& GetMirrored() const { return m_kMirrored; }

    Fl_Box* m_pkTitle = nullptr;          ///< null: a builder has made the window
    CFLTKWindow* m_pkNextBuilt = nullptr; ///< of the adapter's list

private:
    struct Part_t
    {
        Part_t(Fl_Widget& kWidget, CGUIMirrored& kMirrored) : m_kWidget(&kWidget), m_pkMirrored(&kMirrored) {}

        CFLTKPointer m_kWidget;
        CGUIMirrored* m_pkMirrored;
    };

    std::list<Part_t> m_kParts;
    std::unique_ptr<CFLTKPointer> m_pkContent; ///< null: no builder has made the window
};

/** What an application tells about styles, pictures and places. */
struct FLTKLook_t
{
    Fl_Font m_iFont;         ///< of all texts without a style
    Fl_Fontsize m_iFontSize; ///< of these texts, in pixels
    eC_Int m_iScreenTitle;   ///< the height of the title of a screen, in pixels
    eC_Int m_iWindowTitle;   ///< the height of the title of anything smaller, in pixels
    /** @return a picture, null if there is none of that name */
    Fl_Image* (*m_pfnImage)(const eC_Char* pcName);
};

/** Makes the native widget of a widget, without a parent, and sets CGUIMirrored::m_pExtra.
 *  @param pfnInput is called when the user presses or changes it, with kMirrored
 *  @return null for a class that it does not know
 */
Fl_Widget* CreateFLTKWidget(CGUIMirrored& kMirrored, CFLTKEvents& kEvents, const FLTKLook_t& kLook,
                            Fl_Callback* pfnInput);

/** Shows contents. @return the name of a picture that is missing, or null */
const eC_Char* UpdateFLTKWidget(const CGUIWidget& kWidget, Fl_Widget& kNative, const FLTKLook_t& kLook);

/** What the user has done with a native widget. */
struct FLTKInput_t
{
    eC_Bool m_bIsPress = false;        ///< of a button
    const eC_Char* m_pcText = nullptr; ///< of a text field
    eC_Int m_iValue = 0;               ///< of anything else
};

/** @return what the callback of a native widget means */
FLTKInput_t ReadFLTKInput(const CGUIWidget& kWidget, const Fl_Widget& kNative);

/** Sets a label, in which no character has a meaning of its own. */
void SetFLTKLabel(Fl_Widget& kNative, const eC_Char* pcText);

#endif

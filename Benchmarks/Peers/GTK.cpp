// SPDX-License-Identifier: MIT
// The work of the benchmarks with GTK 4, whose stack shows one of its pages.

#include "Benchmarks/Peers/PeerWork.h"

#include <gtk/gtk.h>

namespace
{
class CGTK
{
public:
    using Screen_t = GtkWidget;

    static const char* GetName() { return "gtk"; }

    CGTK() : m_pkWindow(gtk_window_new()), m_pkStack(gtk_stack_new())
    {
        gtk_window_set_child(GTK_WINDOW(m_pkWindow), m_pkStack);
        gtk_stack_add_child(GTK_STACK(m_pkStack), gtk_label_new(""));
        gtk_window_present(GTK_WINDOW(m_pkWindow));
    }
    CGTK(const CGTK&) = delete;
    CGTK& operator=(const CGTK&) = delete;
    ~CGTK() { gtk_window_destroy(GTK_WINDOW(m_pkWindow)); }

    GtkWidget* Build()
    {
        GtkWidget* pkScreen = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
        for (unsigned uiObject = 1; uiObject < cuiObjectsPerScreen; ++uiObject)
        {
            gtk_box_append(GTK_BOX(pkScreen),
                           uiObject <= cuiButtonsPerScreen ? gtk_button_new() : gtk_label_new(nullptr));
        }
        gtk_stack_add_child(GTK_STACK(m_pkStack), pkScreen);
        return pkScreen;
    }

    void Destroy(GtkWidget* pkScreen) { gtk_stack_remove(GTK_STACK(m_pkStack), pkScreen); }

    void Show(GtkWidget* pkScreen) { gtk_stack_set_visible_child(GTK_STACK(m_pkStack), pkScreen); }

    // Nothing to do: another page is shown instead.
    void Hide(GtkWidget* pkScreen) { static_cast<void>(pkScreen); }

    void Focus(GtkWidget* pkScreen, unsigned uiButton)
    {
        GtkWidget* pkButton = gtk_widget_get_first_child(pkScreen);
        for (; uiButton > 0; --uiButton)
        {
            pkButton = gtk_widget_get_next_sibling(pkButton);
        }
        gtk_widget_grab_focus(pkButton);
    }

    unsigned GetFocussed(GtkWidget* pkScreen)
    {
        const GtkWidget* pkFocussed = gtk_window_get_focus(GTK_WINDOW(m_pkWindow));
        unsigned uiButton = 0;
        for (GtkWidget* pkButton = gtk_widget_get_first_child(pkScreen);
             pkButton != nullptr && pkButton != pkFocussed; pkButton = gtk_widget_get_next_sibling(pkButton))
        {
            ++uiButton;
        }
        return uiButton;
    }

private:
    GtkWidget* m_pkWindow;
    GtkWidget* m_pkStack;
};

/** Shows a popup over a screen, as a child of an overlay, and closes it. */
class CPopup
{
public:
    CPopup() : m_pkWindow(gtk_window_new()), m_pkPopup(gtk_box_new(GTK_ORIENTATION_VERTICAL, 0))
    {
        GtkWidget* pkOverlay = gtk_overlay_new();
        gtk_window_set_child(GTK_WINDOW(m_pkWindow), pkOverlay);
        for (unsigned uiObject = 1; uiObject < cuiObjectsPerScreen; ++uiObject)
        {
            gtk_box_append(GTK_BOX(m_pkPopup), gtk_label_new(nullptr));
        }
        gtk_overlay_add_overlay(GTK_OVERLAY(pkOverlay), m_pkPopup);
        gtk_widget_set_visible(m_pkPopup, FALSE);
        gtk_window_present(GTK_WINDOW(m_pkWindow));
    }
    CPopup(const CPopup&) = delete;
    CPopup& operator=(const CPopup&) = delete;
    ~CPopup() { gtk_window_destroy(GTK_WINDOW(m_pkWindow)); }

    void Do()
    {
        gtk_widget_set_visible(m_pkPopup, TRUE);
        gtk_widget_set_visible(m_pkPopup, FALSE);
    }

private:
    GtkWidget* m_pkWindow;
    GtkWidget* m_pkPopup;
};
} // namespace

int main(int iArguments, char** ppcArguments)
{
    gtk_init();
    std::vector<Measured_t> kMeasured = GetPeerWork<CGTK>();
    kMeasured.pop_back();
    AddPeerWork(kMeasured, CGTK::GetName(), "popup/shown-and-closed/0", MakerOf<CPopup>());
    return MeasureAll(iArguments, ppcArguments, kMeasured);
}

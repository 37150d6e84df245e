// SPDX-License-Identifier: MIT
// The work of the benchmarks with FLTK.

#include "Benchmarks/Peers/PeerWork.h"

#include <FL/Fl.H>
#include <FL/Fl_Box.H>
#include <FL/Fl_Button.H>
#include <FL/Fl_Double_Window.H>
#include <FL/Fl_Group.H>

namespace
{
constexpr int ciWidth = 320;
constexpr int ciHeight = 240;

class CFLTK
{
public:
    using Screen_t = Fl_Group;

    static const char* GetName() { return "fltk"; }

    CFLTK() : m_kWindow(ciWidth, ciHeight)
    {
        m_kWindow.end();
        m_kWindow.show();
    }

    Fl_Group* Build()
    {
        Fl_Group* pkScreen = new Fl_Group(0, 0, ciWidth, ciHeight);
        for (unsigned uiObject = 1; uiObject < cuiObjectsPerScreen; ++uiObject)
        {
            const int iTop = static_cast<int>(uiObject) * 10;
            if (uiObject <= cuiButtonsPerScreen)
            {
                new Fl_Button(0, iTop, 100, 10);
            }
            else
            {
                new Fl_Box(0, iTop, 100, 10);
            }
        }
        pkScreen->end();
        pkScreen->hide();
        m_kWindow.add(pkScreen);
        return pkScreen;
    }

    void Destroy(Fl_Group* pkScreen)
    {
        m_kWindow.remove(pkScreen);
        delete pkScreen;
    }

    void Show(Fl_Group* pkScreen)
    {
        // Adding a child again moves it to the end, so that it is drawn last.
        m_kWindow.add(pkScreen);
        pkScreen->show();
    }

    void Hide(Fl_Group* pkScreen) { pkScreen->hide(); }

    void Focus(Fl_Group* pkScreen, unsigned uiButton)
    {
        pkScreen->child(static_cast<int>(uiButton))->take_focus();
    }

    unsigned GetFocussed(Fl_Group* pkScreen) { return static_cast<unsigned>(pkScreen->find(Fl::focus())); }

private:
    Fl_Double_Window m_kWindow;
};
} // namespace

int main(int iArguments, char** ppcArguments)
{
    return MeasureAll(iArguments, ppcArguments, GetPeerWork<CFLTK>());
}

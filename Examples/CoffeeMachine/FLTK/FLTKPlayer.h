// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_FLTK_FLTKPLAYER_H
#define EXAMPLES_COFFEEMACHINE_FLTK_FLTKPLAYER_H

/** @file
 *  Plays a scenario on the coffee machine with the mouse and the keys of the display.
 */

#include "Adapters/FLTK/GUIFLTK.h"
#include "Drawn/DrawnPlayer.h"
#include "Drawn/Picture.h"
#include "FLTK/Window.h"

/** A player that moves the mouse and presses keys with the program xdotool, so events come from the display.
 */
class CFLTKPlayer : public CDrawnPlayer
{
public:
    /** @param kWindow, kFLTK, kPresses what is shown and what happens on it, not owned; must outlive the
     * player
     *  @param kPictures the folder of pictures
     *  @throws std::runtime_error if xdotool does not work
     */
    CFLTKPlayer(CSimulatedCoffeeMachine& kCoffeeMachine, CSteppedClock& kClock, CEventLog& kEventLog,
                LineWriter_t kWriter, CMachineWindow& kWindow, CGUIFLTK& kFLTK, CPresses& kPresses,
                const std::string& kPictures);

    /** Counts the events of the display, for Fl::event_dispatch; set before the adapter exists. */
    static int CountEvents(int iEvent, Fl_Window* pkWindow);

protected:
    void Draw() override;
    eC_Bool HasNative(const CGUIObject& kObject) override;
    void TouchNative(const CGUIObject& kObject) override;
    void PressNative(EKey eKey) override;

private:
    static Picture_t TakePicture(CMachineWindow& kWindow);
    static void Operate(const std::string& kCommand, int iLastEvent);

    CGUIFLTK& m_kFLTK;
    std::string m_kNumber; ///< of the window
};

#endif

// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_SIMULATORDESK_H
#define SIMULATOR_SIMULATORDESK_H

/** @file
 *  What a person at a simulated device sees and does, without any terminal.
 */

#include "Simulator/LineEditor.h"
#include "Simulator/OperationForm.h"
#include "Simulator/SimulatedSource.h"
#include "Simulator/TourScript.h"
#include "Simulator/TracePane.h"

#include <memory>
#include <string>
#include <vector>

/** A key or a place that somebody has pressed. */
struct DeskKey_t
{
    const eC_Char* m_pcKey;  ///< "p"
    const eC_Char* m_pcText; ///< what it does, in a few words
};

/** Drives a simulation the way people do: in real time, with keys, a mouse and forms, or with a tour that
 * plays by itself. It draws nothing: CSimulatorView does.
 *
 *  Time passes on the device while nothing is open and the desk is not paused. A tour stops it: then only the
 *  tour's own lines let time pass. Anything that the user does to the device ends the tour.
 */
class CSimulatorDesk
{
public:
    /** What has the keys. */
    enum EMode : unsigned char
    {
        MODE_DEVICE, ///< the device, and the keys of the simulator
        MODE_HELP,
        MODE_MENU,  ///< the list of all commands
        MODE_FORM,  ///< the arguments of a command
        MODE_PROMPT ///< one line of text
    };

    /** What a prompt asks for. */
    enum EPrompt : unsigned char
    {
        PROMPT_LINE,
        PROMPT_FILTER,
        PROMPT_RECORD,
        PROMPT_SHOT
    };

    /** @param kSimulation not owned
     *  @param kTour a scenario, empty for none
     */
    CSimulatorDesk(CSimulation& kSimulation, const std::string& kTour);

    /** Starts the application again and plays the tour from its beginning. Nothing happens without a tour. */
    void PlayTour();

    /** Looks whether what the application is made of has changed. If it is another one now, a tour ends, and
     *  what is open stays open. A mistake is shown until it is put right.
     */
    void LookForChange(CSimulatedSource& kSource);

    /** Lets real time pass. @param uiMilliseconds since the last call */
    void PassTime(eC_UInt uiMilliseconds);

    /** Presses a key of the computer: a character in UTF-8, or the name of a key as in DeviceKey_t,
     * "BackTab", "PageUp", "PageDown" or "Ctrl+T".
     */
    void PressKey(const std::string& kKey);

    /** Touches a point of the device's screen. @param iX, iY in units of the device */
    void TouchDevice(eC_Int iX, eC_Int iY);

    /** Presses a key of the device. @param uiKey its index */
    void PressDeviceKey(eC_UInt uiKey);

    void ScrollTrace(eC_Int iLines);     ///< @param iLines to older entries; negative: to newer ones
    void ScrollInspector(eC_Int iLines); ///< @param iLines down; negative: up

    /** Asks to write a picture: the front end calls this with a file name when its user has entered one.
     *  @return the file to write a picture to, once; then empty
     */
    std::string TakeShotRequest();

    /** Shows a message in the last line until something else happens. */
    void Say(const std::string& kText, ETextStyle eStyle = STYLE_PLAIN);

    /** @return whether the user wants to leave */
    eC_Bool IsOver() const { return m_bIsOver; }

    // What there is to see.

    EMode GetMode() const { return m_eMode; }
    const CSimulation& GetSimulation() const { return m_kSimulation; }
    const Device_t& GetDevice() const { return m_kSimulation.GetApplication().GetDevice(); }
    eC_Bool IsPaused() const { return m_bIsPaused; }
    eC_Bool IsTouring() const { return m_bIsTouring; }
    std::string GetSpeed() const; ///< @return "x2"

    /** @return the chapter of the tour that is shown, empty without a tour */
    std::string GetTourChapter() const;

    /** @return what the tour says about the line that comes next or has just been executed: its own caption,
     * or the last one of the chapter; empty without a tour
     */
    std::string GetTourCaption() const;

    eC_Bool IsTyping() const; ///< @return whether characters go to the device, whose text field has the focus
    const CTracePane& GetTracePane() const { return m_kTracePane; }
    eC_Int GetInspectorScroll() const { return m_iInspectorScroll; }
    const std::vector<std::string>& GetMenu() const { return m_kMenu; }
    std::size_t GetMenuSelected() const { return m_uiMenuSelected; }
    const COperationForm* GetForm() const { return m_pkForm.get(); }
    EPrompt GetPrompt() const { return m_ePrompt; }
    const CLineEditor& GetEditor() const { return m_kEditor; }
    const std::string& GetMessage() const { return m_kMessage; }

    /** @return the mistake in what the application is made of, empty if there is none */
    const std::string& GetMistake() const { return m_kMistake; }
    ETextStyle GetMessageStyle() const { return m_eMessageStyle; }

    /** @return the letter that selects an entry of the menu, 0 for none */
    static eC_Char GetMenuLetter(std::size_t uiEntry);

    /** @return the keys of the simulator, as the help lists them */
    static const std::vector<DeskKey_t>& GetKeys();

private:
    struct Command_t
    {
        const eC_Char* m_pcKey;
        void (CSimulatorDesk::*m_pfnRun)();
    };

    eC_Bool PressCommandKey(const std::string& kKey);
    eC_Bool PressShortcut(const std::string& kKey);
    eC_Bool PressKeyOfDevice(const std::string& kKey);
    void PressKeyInMenu(const std::string& kKey);
    void PressKeyInForm(const std::string& kKey);
    void PressKeyInPrompt(const std::string& kKey);
    void FinishPrompt();
    SimulatedResult_t Execute(const std::string& kLine);
    void TakeOver();
    void OpenForm(const std::string& kUsage);
    void Ask(EPrompt ePrompt, const std::string& kText);
    void Record(const std::string& kFile);

    void Quit() { m_bIsOver = true; }
    void ShowHelp() { m_eMode = MODE_HELP; }
    void TogglePause();
    void Step();
    void Faster();
    void Slower();
    void GoBack();
    void GoForth();
    void GoToBeginning();
    void GoToEnd();
    void OpenMenu();
    void AskForLine();
    void AskForFilter();
    void ChangeTraceLevel() { m_kTracePane.ChangeLevel(); }
    void ScrollInspectorDown();
    void ScrollInspectorUp();
    void AskForRecord();
    void AskForShot();
    void StartAgain();

    void PassTimeOfTour(eC_UInt uiMilliseconds);
    void PlayTourLine();
    void PrepareTourStep(std::size_t uiStep);
    void GoToTourStep(std::size_t uiStep);
    void SayWhere();

    CSimulation& m_kSimulation;
    std::vector<TourStep_t> m_kTour;
    EMode m_eMode = MODE_DEVICE;
    eC_Bool m_bIsOver = false;
    eC_Bool m_bIsPaused = false;
    eC_Bool m_bNextIsCommand = false; ///< Ctrl+T was pressed
    std::size_t m_uiSpeed;            ///< index of the table of speeds
    eC_UInt m_uiRest = 0;             ///< of real time that was too short for a millisecond of the device

    eC_Bool m_bIsTouring = false;
    std::size_t m_uiStep = 0;               ///< of the tour, which is shown or executed
    eC_UInt m_uiWait = 0;                   ///< milliseconds until the tour goes on
    eC_UInt m_uiLeftToAdvance = 0;          ///< milliseconds of the tour's line that lets time pass
    eC_Bool m_bIsStepDone = false;          ///< its command is executed
    std::vector<std::size_t> m_kStepStarts; ///< the number of lines before each step so far

    CTracePane m_kTracePane;
    eC_Int m_iInspectorScroll = 0;
    std::vector<std::string> m_kMenu;
    std::size_t m_uiMenuSelected = 0;
    std::unique_ptr<COperationForm> m_pkForm;
    EPrompt m_ePrompt = PROMPT_LINE;
    CLineEditor m_kEditor;
    std::string m_kMessage;
    ETextStyle m_eMessageStyle = STYLE_PLAIN;
    std::string m_kMistake;
    std::string m_kShotFile;
};

#endif

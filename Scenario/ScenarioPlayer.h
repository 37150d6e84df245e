// SPDX-License-Identifier: MIT
#ifndef SCENARIO_SCENARIOPLAYER_H
#define SCENARIO_SCENARIOPLAYER_H

/** @file
 *  Plays text scripts against a dialog manager and writes a transcript.
 */

#include "Core/GUIDialogManager.h"
#include "Core/Utils/SafeGUIObjectPtr.h"
#include "Scenario/EventLog.h"
#include "Scenario/ScenarioArguments.h"
#include "Scenario/SteppedClock.h"

#include <functional>
#include <string>
#include <vector>

/** Plays a scenario: a text with one command on each line. Empty lines are skipped; lines that begin with
 *  # are comments and go into the transcript.
 *
 *  Every public operation of CGUIDialogManager is a command of the same name, with its arguments in order and
 *  handles and enumerators by name. AddDialog takes a handle, "attached" for what the last attach built, or
 *  "null". Further commands:
 *
 *  | Command | Effect |
 *  |---|---|
 *  | advance milliseconds | time passes, callbacks run when they are due |
 *  | attach tree | builds a tree (see CObjectTree) and attaches it to the root |
 *  | focus object | asks the object to take the focus |
 *  | focus-any object | asks the object and then those below it to take the focus |
 *  | focusable object true/false | sets whether the object can have the focus |
 *  | hide object, show object | sets the object's invisible flag |
 *  | delete object | destroys the object, without the manager |
 *  | state | writes the whole state, definitions included |
 *
 *  An application adds or replaces commands with AddCommand, and may replace what is written as the state and
 *  where the transcript goes.
 *
 *  The transcript has, for each command,
 *
 *      > CreateDialog DLG_B ODA_INVISIBLE
 *      = DLG_B
 *        INFO: Time for loading code:DLG_B: 0.
 *        OnDialogDeactivation(DLG_A)
 *      | current: DLG_B after ODA_INVISIBLE
 *      | history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
 *
 *  the line, the result if there is one (an exception counts as one: "throws int 0"), the events of the log
 *  in order, and the state, or "unchanged" if it is the same as after the last command. Commands such as
 *  registering and unregistering have no state, because they change nothing that it shows.
 *
 *  The line break at the end of a trace entry is not shown. One inside the text begins another line, marked
 *  with a colon; a text that ends in two line breaks has one inside:
 *
 *        ERROR: CGUIDialogManager::CreateDialog: Createing dialog with ID 9 failed!
 *        : The current dialog stays active. @Source/Core/GUIDialogManager.cpp:#
 */
class CScenarioPlayer
{
public:
    /** @param kManager the manager that the script uses
     *  @param kClock the clock that advance moves
     *  @param kEventLog where trace and hook calls are collected
     *  None is owned; all must outlive the player.
     */
    CScenarioPlayer(CGUIDialogManager& kManager, CSteppedClock& kClock, CEventLog& kEventLog);

    CScenarioPlayer(const CScenarioPlayer&) = delete;
    CScenarioPlayer& operator=(const CScenarioPlayer&) = delete;
    virtual ~CScenarioPlayer() = default;

    /** Plays a script to its end or to the first wrong line.
     *  @param kName the script's name, for messages
     *  @param kScript its text
     *  @return false if a line was wrong; GetError then says which one and why, and the transcript ends with
     *          that message
     */
    eC_Bool Play(const std::string& kName, const std::string& kScript);

    /** Executes one line as Play does, without writing a transcript.
     *  @return the result, empty for none; an exception is one: "throws int 0"
     *  @throws ScenarioError_t when the line is wrong
     */
    std::string Run(const std::string& kLine);

    /** @return the commands with their arguments, in the order in which they were added */
    std::vector<std::string> GetUsages() const;

    /** @return "name:line: command: expected ..., found ..." for the wrong line, otherwise empty */
    const std::string& GetError() const { return m_kError; }

    /** @return the lines that the default WriteLine has collected */
    const std::string& GetTranscript() const { return m_kTranscript; }

protected:
    /** Executes a command. @return the text of the result, empty for none
     *  @throws ScenarioError_t if the arguments are wrong, and everything that the operation throws
     */
    using Handler_t = std::function<std::string(const CScenarioArguments&)>;

    /** Whether the state is written after a command. */
    enum ECommandKind : unsigned char
    {
        COMMAND_ACT,        ///< it is
        COMMAND_PREPARATION ///< it is not, because the command changes nothing that GetState shows
    };

    /** Adds a command, or replaces the one of the same name.
     *  @param kUsage the name and the arguments in angle brackets: "press <object>". An argument in square
     *         brackets is optional; one that ends in three dots takes the rest of the line.
     *  @param kHandler called with a line that has as many arguments as the usage
     */
    void AddCommand(const std::string& kUsage, Handler_t kHandler, ECommandKind eKind = COMMAND_ACT);

    /** Executes a line inside a hook. It appears among the events, with its result. A wrong line ends the
     *  script after the command that called the hook.
     */
    void PlayNested(const std::string& kLine);

    /** Runs the handler of a command, in the script or inside a hook. Override it to do something around
     *  every command.
     */
    virtual std::string RunHandler(const Handler_t& kHandler, const CScenarioArguments& kArguments);

    /** Finds the command of a line and checks the number of its arguments, without executing it.
     *  @throws ScenarioError_t
     */
    void CheckLine(const std::string& kLine) const;

    /** @return what is written after a command as the state; by default PrintState without the definitions
     */
    virtual std::string GetState();

    /** Takes one line of the transcript, without line break. The default collects the lines. */
    virtual void WriteLine(const std::string& kLine);

    /** @return the manager that the script uses */
    CGUIDialogManager& GetManager() { return m_kManager; }

    /** @return the clock that the script moves */
    CSteppedClock& GetClock() { return m_kClock; }

    /** @return where trace and hook calls are collected */
    CEventLog& GetEventLog() { return m_kEventLog; }

private:
    struct Command_t
    {
        std::string m_kName;
        std::string m_kUsage;
        eC_UInt m_uiFewestArguments;
        eC_UInt m_uiMostArguments;
        Handler_t m_kHandler;
        ECommandKind m_eKind;
    };

    void AddManagerCommands();
    void AddApplicationActs();

    const Command_t& FindCommand(const CScenarioArguments& kArguments) const;
    void PlayLine(const std::string& kLine);
    std::string Execute(const Command_t& kCommand, const CScenarioArguments& kArguments);
    void WriteEvents();
    void WriteState();
    CGUIObject* GetDialogToAdd(const CScenarioArguments& kArguments);

    CGUIDialogManager& m_kManager;
    CSteppedClock& m_kClock;
    CEventLog& m_kEventLog;
    std::vector<Command_t> m_kCommands;
    CSafeGUIObjectPtr m_pkAttached;
    std::string m_kLastState; ///< the state written last, empty at the beginning
    std::string m_kNestedError;
    std::string m_kError;
    std::string m_kTranscript;
};

#endif

// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_SIMULATEDAPPLICATION_H
#define SIMULATOR_SIMULATEDAPPLICATION_H

/** @file
 *  What an application implements so that every front end of the simulator can run it.
 */

#include "Core/GUIDialogManager.h"
#include "Scenario/ScenarioArguments.h"
#include "Widgets/GUIWidgetInput.h"

#include <functional>
#include <string>

/** A key of the device, beside its screen. */
struct DeviceKey_t
{
    const eC_Char* m_pcName;  ///< its name in scenarios: "next"
    const eC_Char* m_pcLabel; ///< what is printed on it: "Next"
    /** The key of a computer's keyboard that presses it: "Tab", "Enter", "Escape", "Backspace", "Delete",
     *  "Home", "End", "ArrowUp", "ArrowDown", "ArrowLeft", "ArrowRight" or "F1" to "F12"; empty for none.
     */
    const eC_Char* m_pcKeyboard;
};

/** The device as front ends show it. */
struct Device_t
{
    const eC_Char* m_pcName;     ///< "Coffee machine"
    eC_Int m_iWidth;             ///< of the screen, in the units of the dialog files
    eC_Int m_iHeight;            ///< of the screen, likewise
    eC_Int m_iColumnWidth;       ///< how many units a character is wide; 1 if the units are characters
    eC_Int m_iRowHeight;         ///< how many units a line of text is high; 1 if the units are characters
    const DeviceKey_t* m_pkKeys; ///< its keys
    eC_UInt m_uiKeys;            ///< how many keys it has
};

/** Takes the commands that an application adds to the scenario language. */
class CSimulatedCommands
{
public:
    /** Executes a command. @return the text of the result, empty for none
     *  @throws ScenarioError_t if the arguments are wrong, with nothing changed
     */
    using Handler_t = std::function<std::string(const CScenarioArguments&)>;

    /** Adds a command, or replaces the one of the same name.
     *  @param kUsage the name and the arguments, as CScenarioPlayer::AddCommand takes them: "water <amount>"
     */
    virtual void Add(const std::string& kUsage, Handler_t kHandler) = 0;

protected:
    ~CSimulatedCommands() = default;
};

/** An application with a screen and keys. What it shows are the widgets under the root.
 *
 *  It is started and stopped many times: going back in time starts it again and repeats the input. So it must
 *  do the same after each start, and take the time from the framework's timer only.
 */
class CSimulatedApplication
{
public:
    virtual ~CSimulatedApplication() = default;

    /** @return the device; the same at any time */
    virtual const Device_t& GetDevice() const = 0;

    /** Creates the factory, the root, the manager and everything else, and shows nothing yet. */
    virtual void Start() = 0;

    /** Destroys what Start has created, also when Start has thrown in the middle. */
    virtual void Stop() = 0;

    // The others are called between Start and Stop only.

    /** Loads once what will be loaded later, so that a session does not stop in the middle. Does nothing
     * here.
     *  @return empty, or what cannot be loaded and why
     */
    virtual std::string CheckFiles() { return std::string(); }

    /** Registers the definitions and shows the first dialog, as when the device is switched on.
     *  @return false if it cannot be shown; the trace says why
     */
    virtual eC_Bool PowerOn() = 0;

    /** Does what the application's main loop does before it draws. Called after each line, and before a
     *  transcript has its screen. Does nothing here.
     */
    virtual void Settle() {}

    /** @return its manager, between Start and Stop */
    virtual CGUIDialogManager& GetManager() = 0;

    /** @return what receives touches, typed text and the keys of a keyboard that the device does not have */
    virtual CGUIWidgetInput& GetInput() = 0;

    /** Presses a key of the device. @param uiKey its index in GetDevice
     *  @return false if it had no effect at all
     */
    virtual eC_Bool PressKey(eC_UInt uiKey) = 0;

    /** Touches an object. Here that is the visible object with this identifier in the topmost window that has
     *  one.
     *  @return false, with nothing done, if there is none or it cannot be touched
     */
    virtual eC_Bool Touch(ObjectHandle_t eObject);

    /** Adds commands for what users do besides touches and keys: "water 60". Adds none here. */
    virtual void AddCommands(CSimulatedCommands& kCommands);

protected:
    CSimulatedApplication() = default;
    CSimulatedApplication(const CSimulatedApplication&) = default;            ///< for derived classes
    CSimulatedApplication& operator=(const CSimulatedApplication&) = default; ///< for derived classes
};

#endif

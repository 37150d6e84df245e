// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_TERMINAL_TERMINAL_H
#define SIMULATOR_TERMINAL_TERMINAL_H

/** @file
 *  The terminal that a program runs in.
 */

#include "Simulator/TextScreen.h"

#include <functional>
#include <memory>
#include <string>

/** What somebody has done at a terminal. */
struct TerminalInput_t
{
    enum EKind : unsigned char
    {
        INPUT_NONE,  ///< nothing in the given time, or the terminal has another size
        INPUT_KEY,   ///< m_kKey is as CSimulatorDesk::PressKey takes it
        INPUT_CLICK, ///< at m_iX, m_iY
        INPUT_WHEEL  ///< at m_iX, m_iY, by m_iLines
    };

    EKind m_eKind = INPUT_NONE;
    std::string m_kKey;
    eC_Int m_iX = 0;
    eC_Int m_iY = 0;
    eC_Int m_iLines = 0;
};

/** Takes the terminal over as long as it exists: shows screens, and reads keys and the mouse. There is one at
 * a time.
 *
 *  The terminal is given back as it was when this object is destroyed, and before the program dies of a
 * signal that a fault in it causes (SIGSEGV, SIGABRT and the like). SIGINT, SIGTERM and SIGHUP are only noted
 * the first time, so that the program can end in order; a second one ends it at once.
 */
class CTerminal
{
public:
    CTerminal();
    CTerminal(const CTerminal&) = delete;
    CTerminal& operator=(const CTerminal&) = delete;
    ~CTerminal();

    /** @return false if the terminal cannot be used, because its kind is unknown or it cannot move the cursor
     */
    eC_Bool IsUsable() const;

    eC_Int GetWidth() const;
    eC_Int GetHeight() const;

    /** Shows a screen, with its upper left corner in that of the terminal. */
    void Show(const CTextScreen& kScreen);

    /** @param uiMilliseconds how long to wait for input */
    TerminalInput_t Read(eC_UInt uiMilliseconds);

    /** @return the signal that asks the program to end, 0 for none */
    static int GetSignal();

    /** @return whether standard input and standard output are a terminal */
    static eC_Bool IsThere();

private:
    class CParts;

    std::unique_ptr<CParts> m_pkParts;
};

/** Takes what has arrived at a terminal, and waits for something only once.
 *  @param uiMilliseconds how long to wait
 *  @param fnTake takes an input; returns false if it wants no more of them now
 */
void TakeTerminalInput(CTerminal& kTerminal, eC_UInt uiMilliseconds,
                       const std::function<eC_Bool(const TerminalInput_t&)>& fnTake);

#endif

// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_BROWSER_BROWSERSESSION_H
#define SIMULATOR_BROWSER_BROWSERSESSION_H

/** @file
 *  A simulation as a page in a browser uses it: every operation answers with lines of JSON.
 */

#include "Simulator/SimulatedSource.h"
#include "Simulator/Simulation.h"
#include "Widgets/GUIWidgetChanges.h"

class CInspectionLine;

/** A line of the scenario language that the page offers as a button. */
struct OfferedLine_t
{
    const eC_Char* m_pcLabel; ///< "Empty the tank"
    const eC_Char* m_pcLine;  ///< "water 60"
};

/** Lines that the page offers, in this order. */
struct OfferedLines_t
{
    const OfferedLine_t* m_pkLines; ///< not owned
    eC_UInt m_uiNumber;             ///< how many there are
};

/** Runs an application line by line. The answer of each operation is what the inspection sends (see
 *  Docs/Inspection.md) and, each with a "type" and the "time",
 *
 *  - "screen" when what the device shows has changed: "widgets" (see WriteScreen)
 *  - "result", for a line: whether it was "executed", and the "text" of its result, or what was wrong with it
 *  - "source", for a look at the files: the "news", one of "none", "changed" and "mistake", and their "text"
 *  - "session" at the end: how many "lines" there are, the "position" among them, and the last executed
 * "line"
 */
class CBrowserSession
{
public:
    /** Time that passes makes lines of at most this many milliseconds, so that one can go back by that much.
     */
    static constexpr eC_UInt cuiLongestAdvance = 1000;

    /** Starts the application, which is not powered on yet.
     *  @param kApplication not owned. @param kOffered not owned
     *  @throws what the application's Start throws
     */
    CBrowserSession(CSimulatedApplication& kApplication, const OfferedLines_t& kOffered);

    CBrowserSession(const CBrowserSession&) = delete;
    CBrowserSession& operator=(const CBrowserSession&) = delete;

    // The answers are good until the next operation.

    /** @return a line with the type "device": the "title", the size of the screen ("width", "height") and of
     * a character ("columnwidth", "rowheight"), "keys", "commands", "offered" lines; then, the first time,
     * the state
     */
    const std::string& Describe();

    /** Executes a line. The lines that were gone back over are forgotten first. */
    const std::string& Run(const std::string& kLine);

    /** Lets time pass. @param uiMilliseconds up to cuiLongestAdvance */
    const std::string& Advance(eC_UInt uiMilliseconds);

    /** Goes to the state after that many lines. @param uiPosition more lines than there are count as all of
     * them
     *  @throws what the application's Start throws
     */
    const std::string& GoTo(eC_UInt uiPosition);

    /** Starts the application again and forgets all lines. @throws what the application's Start throws */
    const std::string& Restart();

    /** Looks whether what the application is made of has changed, and if so makes it again
     *  (CSimulatedSource::Look). After a change the device and all steps may be others: a page asks for
     *  Describe and GetLines.
     *  @throws what the application's Start throws
     */
    const std::string& Look(CSimulatedSource& kSource);

    /** @return all lines, each with a line break */
    const std::string& GetLines();

private:
    template <typename Write_t>
    void WriteLine(const eC_Char* pcType, Write_t fnWrite);
    void Begin() { m_kAnswer.clear(); }
    const std::string& End();
    const std::string& End(const SimulatedResult_t& kResult);

    OfferedLines_t m_kOffered;
    std::string m_kAnswer;
    std::string m_kFirstState; ///< until it is described
    std::string m_kMemory;     ///< for one line
    CGUIWidgetChanges m_kChanges;
    CSimulation m_kSimulation;
};

#endif

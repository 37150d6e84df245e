// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_SIMULATION_H
#define SIMULATOR_SIMULATION_H

/** @file
 *  Runs a simulated application, line by line, forwards and back in time.
 */

#include "Scenario/TraceRecorder.h"
#include "Simulator/SimulatedApplication.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

class CGUIInspector;

/** What became of a line. */
struct SimulatedResult_t
{
    eC_Bool m_bIsExecuted; ///< false: the line is wrong, and nothing has changed
    std::string m_kText;   ///< the result, empty for none; of a wrong line, what was expected and found
};

/** An entry of the trace. */
struct SimulatedTrace_t
{
    TraceEntry_t m_kEntry; ///< as the sink received it
    std::size_t m_uiLine;  ///< the number of lines before the one that caused it
    eC_UInt m_uiTime;      ///< by the application's clock, in milliseconds
};

/** Drives an application by lines of the scenario language (see CSimulationPlayer), on a clock that moves
 * only when a line says so.
 *
 *      CSimulation kSimulation(kApplication);
 *      kSimulation.Run("power-on");
 *      kSimulation.Run("key ok");
 *      kSimulation.Advance(500);
 *      kSimulation.GoTo(1); // the application is as it was before "key ok"
 *      kSimulation.GoTo(3); // and as it was just now
 *
 *  It keeps the executed lines. They are the whole session: played again on a new simulation they give the
 *  same states and the same trace. There is one simulation at a time, because there is one root.
 *
 *  When the application's Start throws, it stays stopped: every line is wrong, and only Restart, GoTo and the
 *  lines may be used until a start succeeds.
 */
class CSimulation
{
public:
    /** Receives one line of JSON without its line break. It must not use the simulation. */
    using Writer_t = std::function<void(const std::string&)>;

    static constexpr std::size_t cuiLongestLine = 1000; ///< in bytes; a longer line is wrong

    /** Starts the application, which is not powered on yet.
     *  @param kApplication stopped, and not owned
     *  @param fnWriter receives trace, states and replies as Docs/Inspection.md describes them. After going
     *         back and after a new start it receives the whole state; what happened on the way is not
     *         repeated, and the lines of input are counted from 1 again. Null: nothing is written.
     *  @throws what the application's Start throws
     */
    explicit CSimulation(CSimulatedApplication& kApplication, Writer_t fnWriter = nullptr);

    CSimulation(const CSimulation&) = delete;
    CSimulation& operator=(const CSimulation&) = delete;

    /** Stops the application. */
    ~CSimulation();

    /** Executes a line and keeps it. The lines that were gone back over are forgotten first. An empty line
     *  is not kept. A comment is kept and does nothing. An exception of the application is the result
     *  ("throws int 0").
     */
    SimulatedResult_t Run(const std::string& kLine);

    /** Lets time pass, as Run("advance ...") does. Time that passes bit by bit becomes one line, until
     *  something happens: an entry of the trace, a change of the manager's state or another line.
     *  @param uiLongest the line gets no longer than that many milliseconds, so that one can go back into a
     *         long silence
     */
    SimulatedResult_t Advance(eC_UInt uiMilliseconds, eC_UInt uiLongest = 0xFFFFFFFFU);

    /** Starts the application again and forgets all lines. @throws what the application's Start throws */
    void Restart();

    /** Goes to the state after that many lines. Later lines are kept, so that one can go forth again.
     *  @param uiPosition a number beyond the last line means the last one
     *  @throws what the application's Start throws
     */
    void GoTo(std::size_t uiPosition);

    /** Stops the application, lets somebody make another one of it, starts it again and executes all lines.
     *  Those that are wrong now are left out. It stays at the line where it is, or at the one before if that
     *  is left out.
     *  @param fnChange is called while the application is stopped. If it throws, the application stays
     *         stopped, and the lines are kept
     *  @return how many lines are left out
     *  @throws what fnChange and the application's Start throw
     */
    std::size_t Change(const std::function<void()>& fnChange);

    /** @return all lines, including those that were gone back over */
    const std::vector<std::string>& GetLines() const { return m_kLines; }

    /** @return how many of the lines are executed */
    std::size_t GetPosition() const { return m_uiPosition; }

    /** @return the entries logged since the start, by the lines up to the position */
    const std::vector<SimulatedTrace_t>& GetTrace() const { return m_kTrace; }

    /** @return the application's clock, in milliseconds since the start */
    eC_UInt GetTime() const;

    /** @return the commands that Run knows, with their arguments: "CreateDialog <dialog> <action>"; none
     * while the application is stopped
     */
    std::vector<std::string> GetUsages() const;

    /** @return the application that it drives */
    CSimulatedApplication& GetApplication() const { return m_kApplication; }

    /** @return reads the state of the application; another one after Restart and GoTo */
    const CGUIInspector& GetInspector() const;

private:
    class CParts;
    class CTraceKeeper;

    void Start();
    void BeginToWrite();
    SimulatedResult_t Execute(const std::string& kLine);
    void Keep(const std::string& kLine);

    CSimulatedApplication& m_kApplication;
    Writer_t m_fnWriter;
    std::vector<std::string> m_kLines;
    std::size_t m_uiPosition = 0;
    eC_Bool m_bMayExtend = false; ///< the last line is an advance during which nothing happened
    std::vector<SimulatedTrace_t> m_kTrace;
    std::unique_ptr<CParts> m_pkParts; ///< what lives as long as the application runs
};

#endif

// SPDX-License-Identifier: MIT
#ifndef FLOW_FLOWRELOAD_H
#define FLOW_FLOWRELOAD_H

/** @file
 *  Follows the file of a running flow.
 */

#include "Flow/FlowApplication.h"
#include "Simulator/SimulatedSource.h"

#include <memory>
#include <string>
#include <vector>

/** The files of a flow that runs: its own, and those with its dialogs.
 *
 *  When one has changed, all lines of the session are executed again on the new flow, from the start. What a
 *  line does not find any more (a key or an object with another name) makes it a wrong line, which is left
 *  out. If this leads to other dialogs than those that the user had, because a key now means something else,
 *  further lines build the history again: every dialog in it that the new flow still defines, in the same
 *  order and with the same actions, then the flags, timers and popups that it still has, and the focus. So
 *  the lines remain a scenario that can be recorded, and one can go back in time.
 *
 *  A mistake in the flow, or in a dialog file that was right before, changes nothing.
 */
class CFlowReload : public CSimulatedSource
{
public:
    /** @param kApplication runs a flow that was read from a file; not owned */
    explicit CFlowReload(CFlowApplication& kApplication);

    /** Compares the contents of the files.
     *  @param kSimulation runs the application
     *  @param kTextOUT receives how the session goes on, or the mistake: "path:line:column: found; expected
     *         what"
     */
    ENews Look(CSimulation& kSimulation, std::string& kTextOUT) override;

private:
    std::string ReadFiles() const;
    std::string ChangeTo(const std::shared_ptr<const FlowModel_t>& pkFlow, CSimulation& kSimulation);

    CFlowApplication& m_kApplication;
    std::vector<std::string> m_kFiles;
    std::string m_kContents;
};

#endif

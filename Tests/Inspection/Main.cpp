// SPDX-License-Identifier: MIT
/** @file
 *  Plays scenarios with an inspection attached.
 *
 *      InspectScenarios <scenario> ...
 *
 *  Prints what the inspection sends and, after every command, the state as the scenario's transcript shows
 *  it: a line of "= ", the time, and the text with \n for every line break. A line "# <scenario>" precedes
 *  each scenario.
 */

#include "Core/Control/GUI.h"
#include "Core/GUIFactoryManager.h"
#include "Inspection/InspectionLink.h"
#include "Scenario/StatePrinter.h"
#include "Scenario/TextLines.h"
#include "Scenario/TraceRecorder.h"
#include "TestSupport/RecordingScenarioPlayer.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace
{
/** Prints the lines that it receives. */
class CPrintingChannel : public CInspectionChannel
{
public:
    eC_Bool WriteLine(const eC_Char* pcLine, eC_UInt uiLength) override
    {
        return std::fwrite(pcLine, 1, uiLength, stdout) == uiLength;
    }

    eC_UInt Read(eC_Char*, eC_UInt) override { return 0; }
};

/** Runs the inspection whenever the state is requested, and prints the state as text. */
class CInspectedPlayer : public CRecordingScenarioPlayer
{
public:
    CInspectedPlayer(CRecordingDialogManager& kManager, CSteppedClock& kClock, CEventLog& kEventLog,
                     CCodeFactory& kCodeFactory)
        : CRecordingScenarioPlayer(kManager, kClock, kEventLog, kCodeFactory),
          m_kLink(kManager, m_kChannel, m_acLine, sizeof(m_acLine))
    {
    }

protected:
    std::string GetState() override
    {
        m_kLink.Run();
        std::string kState = PrintState(GetManager(), STATE_ALL | STATE_TIMERS);
        std::printf("= %u %s\n", GetClock().GetTime(), EscapeLineBreaks(kState).c_str());
        return kState;
    }

private:
    CPrintingChannel m_kChannel;
    eC_Char m_acLine[512] = {};
    CInspectionLink m_kLink;
};

/** Plays a scenario. @return whether all its lines are valid */
bool Play(const std::string& kFile)
{
    const std::ifstream kStream(kFile, std::ios::binary);
    std::ostringstream kScript;
    kScript << kStream.rdbuf();
    std::printf("# %s\n", kFile.c_str());

    CEventLog kEvents;
    const CTraceRecorder kRecorder(kEvents);
    CSteppedClock kClock;
    CCodeFactory kFactory;
    CGUI kRoot;
    CGUIFactoryManager::GetInstance().RegisterReaderForPathPrefix(CCodeFactory::cpcPrefix, &kFactory);
    CRecordingDialogManager kManager(kEvents);
    CInspectedPlayer kPlayer(kManager, kClock, kEvents, kFactory);
    return kStream.good() && kPlayer.Play(kFile, kScript.str());
}
} // namespace

int main(int iArguments, char** ppcArguments)
{
    for (int iArgument = 1; iArgument < iArguments; ++iArgument)
    {
        if (!Play(ppcArguments[iArgument]))
        {
            std::fprintf(stderr, "%s cannot be played\n", ppcArguments[iArgument]);
            return EXIT_FAILURE;
        }
    }
    return iArguments > 1 ? EXIT_SUCCESS : EXIT_FAILURE;
}

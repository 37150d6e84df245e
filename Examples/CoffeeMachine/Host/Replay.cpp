// SPDX-License-Identifier: MIT
// Replays on the host what CoffeeMachineInspected has recorded on a device.

#include "Loader/GUIDialogXMLReader.h"
#include "Simulation/SimulatedCoffeeMachine.h"
#include "Simulator/Replay/FieldReplay.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>

namespace
{
constexpr int ciFailure = 1;
constexpr int ciWrongUsage = 2;

int Fail(int iStatus, const std::string& kMessage)
{
    std::fprintf(stderr, "ReplayCoffeeMachine: %s\n", kMessage.c_str());
    return iStatus;
}
} // namespace

int main(int iArguments, char** ppcArguments)
{
    if (iArguments != 2)
    {
        return Fail(ciWrongUsage, "expected one argument, the log of a device");
    }
    const std::string kName = ppcArguments[1];
    const std::ifstream kFile(kName, std::ios::binary);
    std::ostringstream kLog;
    if (!kFile || !(kLog << kFile.rdbuf()))
    {
        return Fail(ciFailure, kName + ": cannot read (" + std::strerror(errno) + ")");
    }
    CGUIDialogXMLReader kReader(COFFEE_MACHINE_DIRECTORY);
    CSimulatedCoffeeMachine kCoffeeMachine(kReader);
    const FieldReplay_t kReplay = ReplayFieldLog(kLog.str(), kCoffeeMachine);
    if (!kReplay.m_kError.empty())
    {
        return Fail(ciFailure, kName + ": " + kReplay.m_kError);
    }
    std::printf("%u inputs give the same %u lines of trace and state\n", kReplay.m_uiInputs,
                kReplay.m_uiCompared);
    return 0;
}

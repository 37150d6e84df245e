// SPDX-License-Identifier: MIT
// A program that runs in real time and can be looked into over TCP. It prints its port.

#include "Inspection/Host/ScenarioCommands.h"
#include "Inspection/Host/TCPChannel.h"
#include "Inspection/InspectionLink.h"
#include "Simulator/SimulationPlayer.h"
#include "Tests/Unit/Simulator/SampleDevice.h"

#include <chrono>
#include <cstdio>
#include <thread>

int main()
{
    CSampleDevice kDevice;
    kDevice.Start();
    CSteppedClock kClock;
    CEventLog kLog;
    CSimulationPlayer kPlayer(kDevice, kClock, kLog);
    kPlayer.Run("power-on");
    CInspectionTCPChannel kChannel;
    std::string kError;
    if (!kChannel.Listen(0, kError))
    {
        std::fprintf(stderr, "%s\n", kError.c_str());
        return 1;
    }
    std::printf("%u\n", kChannel.GetPort());
    std::fflush(stdout);
    static eC_Char s_acOut[512];
    static eC_Char s_acIn[256];
    CInspectionLink kLink(kDevice.GetManager(), kChannel, s_acOut, sizeof(s_acOut));
    CScenarioCommands kCommands(kPlayer);
    kLink.AllowInput(kCommands, s_acIn, sizeof(s_acIn));
    while (true)
    {
        kLink.Run();
        kPlayer.Run("advance 10");
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

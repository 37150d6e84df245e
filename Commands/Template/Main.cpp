// MyApplication on a simulated device. --help lists what else the program can do.

#include "Application/SimulatedDevice.h"
#include "Simulator/Terminal/RunSimulator.h"

int main(int iArguments, char** ppcArguments)
{
    CSimulatedDevice kDevice;
    return RunSimulator(iArguments, ppcArguments, kDevice,
                        {"MyApplication", APPLICATION_DIRECTORY "/Tests/Application.scenario"});
}

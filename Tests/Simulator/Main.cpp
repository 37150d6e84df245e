// SPDX-License-Identifier: MIT
// A simulator whose application can be told to fail: the terminal must be given back whatever happens.

#include "Simulator/Terminal/RunSimulator.h"
#include "Tests/Unit/Simulator/SampleDevice.h"

#include <csignal>
#include <stdexcept>

namespace
{
/** Uses up the stack. */
eC_UInt Recurse(const volatile eC_UInt* puiBefore)
{
    volatile eC_UInt auiBlock[256] = {*puiBefore};
    // The compiler does not know that it never ends.
    return auiBlock[0] == 1 ? 0 : Recurse(auiBlock) + auiBlock[0];
}

class CFaultyDevice : public CSampleDevice
{
public:
    void Start() override
    {
        CSampleDevice::Start();
        if (m_bStartsBadly)
        {
            throw std::runtime_error("deliberate");
        }
    }

    void AddCommands(CSimulatedCommands& kCommands) override
    {
        CSampleDevice::AddCommands(kCommands);
        kCommands.Add("start-badly",
                      [this](const CScenarioArguments&)
                      {
                          m_bStartsBadly = true;
                          return std::string();
                      });
        kCommands.Add("raise <signal>",
                      [](const CScenarioArguments& kArguments)
                      {
                          std::raise(static_cast<int>(kArguments.GetNumber(0)));
                          return std::string();
                      });
        kCommands.Add("recurse",
                      [](const CScenarioArguments&)
                      {
                          volatile eC_UInt uiNothing = 0;
                          return std::to_string(Recurse(&uiNothing));
                      });
        kCommands.Add("hang",
                      [](const CScenarioArguments&) -> std::string
                      {
                          volatile eC_Bool bGoesOn = true;
                          while (bGoesOn)
                          {
                          }
                          return std::string();
                      });
    }

private:
    eC_Bool m_bStartsBadly = false;
};
} // namespace

int main(int iArguments, char** ppcArguments)
{
    CFaultyDevice kDevice;
    return RunSimulator(iArguments, ppcArguments, kDevice, {"FaultySimulator", ""});
}

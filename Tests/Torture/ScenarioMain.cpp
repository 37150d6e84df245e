// SPDX-License-Identifier: MIT
/** @file
 *  Runs the manager's scenarios with failures.
 */

#include "Scenario/TextLines.h"
#include "Tests/Torture/ScenarioTortureSetup.h"
#include "Tests/Torture/Torture.h"

#include <algorithm>
#include <filesystem>

namespace
{
std::vector<Scenario_t> ReadScenarios()
{
    std::vector<Scenario_t> kScenarios;
    for (const auto& kFile :
         std::filesystem::directory_iterator(DIALOGMANAGER_SOURCE_DIRECTORY "/Tests/Scenario"))
    {
        if (kFile.path().extension() == ".scenario")
        {
            const std::string kName = kFile.path().stem().string();
            const std::string kPath = "Tests/Scenario/" + kName;
            kScenarios.push_back(
                {kName, SplitLines(ReadSourceFile(kPath + ".scenario")), ReadSourceFile(kPath + ".golden")});
        }
    }
    std::sort(kScenarios.begin(), kScenarios.end(),
              [](const Scenario_t& kLeft, const Scenario_t& kRight)
              { return kLeft.m_kName < kRight.m_kName; });
    return kScenarios;
}
} // namespace

int main(int iArguments, char** ppcArguments)
{
    const Torture_t kTorture = {"TortureTests",
                                ReadScenarios(),
                                &MakeScenarioTortureSetup,
                                {INJECTION_ALLOCATION, INJECTION_ALLOCATIONS, INJECTION_LOAD_NULL,
                                 INJECTION_LOAD_INT, INJECTION_LOAD_EXCEPTION, INJECTION_HOOK_INT,
                                 INJECTION_HOOK_EXCEPTION},
                                ReadSourceFile("Tests/Torture/Usable.scenario"),
                                ReadSourceFile("Tests/Torture/Usable.golden")};
    return RunTorture(kTorture, iArguments, ppcArguments);
}

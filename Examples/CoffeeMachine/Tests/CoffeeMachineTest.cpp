// SPDX-License-Identifier: MIT
#include "Tests/CoffeeMachineTest.h"

#include "Scenario/Names.h"

std::string CCoffeeMachineTest::Windows()
{
    std::string kWindows;
    for (const CGUIObject* pkObject = CGUI::GetInstance().GetFirstChild(); pkObject != nullptr;
         pkObject = pkObject->GetNextSibling())
    {
        kWindows += NameOfObject(pkObject) + (pkObject->IsInvisible() ? " invisible\n" : "\n");
    }
    return kWindows;
}

std::string CCoffeeMachineTest::TakeHooks()
{
    const std::string kPrefix = "INFO: hook ";
    const std::string kEnd = ".\\n";
    std::string kHooks;
    for (const std::string& kEvent : m_kEvents.Take())
    {
        if (kEvent.compare(0, kPrefix.size(), kPrefix) == 0)
        {
            kHooks += kEvent.substr(kPrefix.size(), kEvent.size() - kPrefix.size() - kEnd.size()) + "\n";
        }
    }
    return kHooks;
}

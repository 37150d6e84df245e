// SPDX-License-Identifier: MIT
#include "Application/Handles.h"
#include "Flow/Check/CheckCommand.h"
#include "Loader/GUIDialogXMLReader.h"
#include "Simulation/SimulatedCoffeeMachine.h"

#include <cstdio>
#include <exception>

namespace
{
/** What the machine remembers besides its dialogs, and what happens to it besides keys. */
class CCoffeeMachineSubject : public CCheckSubject
{
public:
    explicit CCoffeeMachineSubject(CSimulatedCoffeeMachine& kCoffeeMachine)
        : CCheckSubject(kCoffeeMachine), m_kCoffeeMachine(kCoffeeMachine)
    {
    }

    eC_Bool IsActivation(eC_UInt uiKey) const override { return uiKey == KEY_OK; }

    // With keys alone, the code of four digits lies deeper than an exploration comes in a reasonable time.
    eC_Bool HasTouch() const override { return true; }

    std::vector<std::string> GetLines() const override
    {
        return {"water 0", "water 1000", "tray out", "tray in", "beans 0", "cups 1000"};
    }

    void AppendState(std::string& kState) const override
    {
        const CMachine& kMachine = m_kCoffeeMachine.GetMachine();
        for (const eC_UInt uiValue :
             {kMachine.GetWater(), kMachine.GetBeans(), kMachine.GetCups(), kMachine.GetProgress(),
              eC_UInt(kMachine.IsTrayMissing()), eC_UInt(kMachine.GetLanguage()),
              eC_UInt(kMachine.GetStrength()), eC_UInt(kMachine.GetDrink()),
              eC_UInt(kMachine.GetBrewingState()), eC_UInt(kMachine.GetCup())})
        {
            kState += std::to_string(uiValue) + ' ';
        }
        kState += GetCodeState(m_kCoffeeMachine.GetController().GetEnteredCode()) + ' ';
        // Some of the definitions change while the machine runs.
        eC_UInt uiTime = 0;
        m_kCoffeeMachine.GetManager().GetRegisteredPopupDisplayTime(POP_SAVED, uiTime);
        kState += std::to_string(uiTime);
    }

private:
    /** All wrong codes of the same length are one state: the machine treats them alike. */
    static std::string GetCodeState(eC_UInt uiCode)
    {
        eC_UInt uiRightCode = CController::cuiServiceCode;
        const std::string kCode = std::to_string(uiCode);
        while (std::to_string(uiRightCode).size() > kCode.size())
        {
            uiRightCode /= 10;
        }
        return uiCode == 0 || uiCode == uiRightCode ? kCode : std::string(kCode.size(), 'x');
    }

    CSimulatedCoffeeMachine& m_kCoffeeMachine;
};

int Check(const std::vector<std::string>& kArguments)
{
    CheckOptions_t kOptions;
    std::string kError;
    if (!ReadCheckOptions(kArguments, kOptions, kError) || !kOptions.m_kFile.empty())
    {
        std::fprintf(stderr, "CheckCoffeeMachine: %s; usage: CheckCoffeeMachine %s\n", kError.c_str(),
                     cpcCheckOptions);
        return CHECK_WRONG_USE;
    }
    CGUIDialogXMLReader kReader(COFFEE_MACHINE_DIRECTORY);
    CSimulatedCoffeeMachine kCoffeeMachine(kReader);
    CCoffeeMachineSubject kSubject(kCoffeeMachine);
    return RunCheck(kSubject, kOptions);
}
} // namespace

int main(int iNOFArguments, char* apcArguments[])
{
    try
    {
        return Check(std::vector<std::string>(apcArguments + 1, apcArguments + iNOFArguments));
    }
    catch (const std::exception& kException)
    {
        std::fprintf(stderr, "CheckCoffeeMachine: %s\n", kException.what());
        return CHECK_WRONG_USE;
    }
}

// SPDX-License-Identifier: MIT
#include "Device/MachineCommands.h"

#include "Application/CoffeeMachine.h"

#include <cstring>

namespace
{
// A command is a plain function, so what it acts on cannot be a member.
CCoffeeMachine* g_pkCoffeeMachine = nullptr;

void PowerOn(CGUIDialogManager&, const WordValue_t*, CCommandResult& kResult)
{
    kResult.Add(g_pkCoffeeMachine->Start() ? "" : "no home screen");
}

void Touch(CGUIDialogManager&, const WordValue_t* pkWords, CCommandResult& kResult)
{
    kResult.Add(g_pkCoffeeMachine->GetController().Touch(pkWords[0].m_eHandle) ? "" : "no effect");
}

void PressKey(CGUIDialogManager&, const WordValue_t* pkWords, CCommandResult& kResult)
{
    static constexpr const eC_Char* cpcKeys[] = {"next", "ok", "back", "home", "service"};
    for (eC_UInt uiKey = 0; uiKey < sizeof(cpcKeys) / sizeof(cpcKeys[0]); ++uiKey)
    {
        if (std::strcmp(pkWords[0].m_pcText, cpcKeys[uiKey]) == 0)
        {
            g_pkCoffeeMachine->GetController().PressKey(static_cast<EKey>(uiKey));
            return;
        }
    }
    kResult.Add("no such key: next, ok, back, home or service");
}

void SetWater(CGUIDialogManager&, const WordValue_t* pkWords, CCommandResult&)
{
    g_pkCoffeeMachine->GetMachine().SetWater(pkWords[0].m_uiNumber);
}

void SetBeans(CGUIDialogManager&, const WordValue_t* pkWords, CCommandResult&)
{
    g_pkCoffeeMachine->GetMachine().SetBeans(pkWords[0].m_uiNumber);
}

void SetTray(CGUIDialogManager&, const WordValue_t* pkWords, CCommandResult& kResult)
{
    const eC_Bool bIsIn = std::strcmp(pkWords[0].m_pcText, "in") == 0;
    if (!bIsIn && std::strcmp(pkWords[0].m_pcText, "out") != 0)
    {
        kResult.Add("no such place: in or out");
        return;
    }
    g_pkCoffeeMachine->GetMachine().SetTray(bIsIn);
}

void SetCups(CGUIDialogManager&, const WordValue_t* pkWords, CCommandResult&)
{
    g_pkCoffeeMachine->GetMachine().SetCups(pkWords[0].m_uiNumber);
}

constexpr ManagerCommand_t cakCommands[] = {
    {"power-on", "", &PowerOn, false},        {"touch <button>", "h", &Touch, false},
    {"key <key>", "t", &PressKey, false},     {"water <millilitres>", "n", &SetWater, false},
    {"beans <grams>", "n", &SetBeans, false}, {"tray <place>", "t", &SetTray, false},
    {"cups <number>", "n", &SetCups, false}};
} // namespace

const ManagerCommand_t* GetMachineCommands(CCoffeeMachine& kCoffeeMachine, eC_UInt& uiCountOUT)
{
    g_pkCoffeeMachine = &kCoffeeMachine;
    uiCountOUT = sizeof(cakCommands) / sizeof(cakCommands[0]);
    return cakCommands;
}

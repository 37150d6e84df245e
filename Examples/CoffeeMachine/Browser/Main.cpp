// SPDX-License-Identifier: MIT
// The coffee machine in a browser: the page runs it line by line. The dialogs are compiled in.

#include "Dialogs.h"
#include "Loader/GUIDialogROMReader.h"
#include "Simulation/SimulatedCoffeeMachine.h"
#include "Simulator/Browser/BrowserExports.h"

namespace
{
constexpr OfferedLine_t cakOffered[] = {
    {"Empty the tank", "water 60"},        {"Fill the tank", "water 1000"},
    {"Take the tray out", "tray out"},     {"Put the tray in", "tray in"},
    {"Use up the beans", "beans 20"},      {"Fill in beans", "beans 200"},
    {"Make it need descaling", "cups 50"},
};
} // namespace

int main()
{
    static CGUIDialogROMReader s_kReader(ckDialogs);
    static CSimulatedCoffeeMachine s_kCoffeeMachine(s_kReader);
    RunInBrowser(s_kCoffeeMachine, {cakOffered, sizeof(cakOffered) / sizeof(cakOffered[0])});
    return 0;
}

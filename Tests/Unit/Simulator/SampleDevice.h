// SPDX-License-Identifier: MIT
#ifndef TESTS_UNIT_SIMULATOR_SAMPLEDEVICE_H
#define TESTS_UNIT_SIMULATOR_SAMPLEDEVICE_H

/** @file
 *  A small application with one widget of each kind that takes input.
 */

#include "Simulator/SimulatedApplication.h"
#include "Widgets/GUIWidgets.h"

#include <memory>

/** Two dialogs and a popup on a screen of 20 by 6 characters:
 *
 *  - DLG_A has the button OBJ_1, which shows DLG_B, the slider OBJ_2 and the text field OBJ_3
 *  - DLG_B has the button OBJ_1, which shows POP_1 for a second
 *
 *  Its keys are "ok" and "back". The command "weigh <grams>" logs an entry, throws int 5 above 100 and a
 *  text above 200.
 */
class CSampleDevice : public CSimulatedApplication
{
public:
    eC_Bool m_bMustFail = false;    ///< the next start throws int 1
    eC_Bool m_bHasNoDialog = false; ///< power-on fails
    eC_Bool m_bHasNoScales = false; ///< the next start has no command to weigh
    eC_UInt m_uiStarts = 0;         ///< starts without a stop

    const Device_t& GetDevice() const override;
    void Start() override;
    void Stop() override;
    eC_Bool PowerOn() override;
    CGUIDialogManager& GetManager() override;
    CGUIWidgetInput& GetInput() override;
    eC_Bool PressKey(eC_UInt uiKey) override;
    void AddCommands(CSimulatedCommands& kCommands) override;

private:
    class CParts;

    std::shared_ptr<CParts> m_pkParts;
};

#endif

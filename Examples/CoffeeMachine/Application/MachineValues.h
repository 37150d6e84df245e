// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_APPLICATION_MACHINEVALUES_H
#define EXAMPLES_COFFEEMACHINE_APPLICATION_MACHINEVALUES_H

/** @file
 *  The values of the machine and of the dialog manager that the screen shows.
 */

#include "Application/Values.h"

class CCoffeeMachineDialogManager;
class CMachine;

class CMachineValues : public CValueSource
{
public:
    /** @param kMachine, kManager where the values come from, not owned */
    CMachineValues(const CMachine& kMachine, CCoffeeMachineDialogManager& kManager)
        : m_kMachine(kMachine), m_kManager(kManager)
    {
    }

    ELanguage GetLanguage() const override;
    eC_String GetValueText(EValue eValue) const override;
    eC_UInt GetPercent(EValue eValue) const override;

private:
    eC_String GetMessageTime() const;
    eC_String GetHomeLayout() const;
    ETextKey GetReminder() const;

    const CMachine& m_kMachine;
    CCoffeeMachineDialogManager& m_kManager;
};

#endif

// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_APPLICATION_MACHINEVALUES_H
#define EXAMPLES_COFFEEMACHINE_APPLICATION_MACHINEVALUES_H

/** @file
 *  The values of the machine and of the dialog manager that the screen shows.
 */

#include "Application/Texts.h"
#include "Application/Values.h"
#include "Core/Utils/eC_String.h"
#include "Widgets/GUIWidgetContents.h"

class CCoffeeMachineDialogManager;
class CMachine;

/** The texts in the machine's language, and its values. The keys of Texts.h and Values.h are the widgets'
 * numbers. */
class CMachineValues : public CGUITranslator, public CGUIValueSource
{
public:
    /** @param kMachine, kManager where the values come from, not owned */
    CMachineValues(const CMachine& kMachine, CCoffeeMachineDialogManager& kManager)
        : m_kMachine(kMachine), m_kManager(kManager)
    {
    }

    eC_Bool FindText(const eC_Char* pcName, GUIContentKey_t& uiKeyOUT) const override;
    const eC_Char* GetText(GUIContentKey_t uiKey) const override;
    eC_Bool FindValue(const eC_Char* pcName, GUIContentKey_t& uiValueOUT) const override;
    const eC_Char* GetValueText(GUIContentKey_t uiValue) const override;

    /** @return the value in percent, 0 to 100, for one that is a level; otherwise 0 */
    eC_Int GetValueNumber(GUIContentKey_t uiValue) const override;

private:
    eC_String FormatValue(EValue eValue) const;
    eC_UInt GetPercent(EValue eValue) const;
    eC_String GetMessageTime() const;
    eC_String GetHomeLayout() const;
    ETextKey GetReminder() const;

    const CMachine& m_kMachine;
    CCoffeeMachineDialogManager& m_kManager;
    mutable eC_String m_kValueText; ///< what GetValueText gave last
};

#endif

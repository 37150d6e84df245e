// SPDX-License-Identifier: MIT
#include "Application/MachineValues.h"

#include "Application/CoffeeMachineDialogManager.h"
#include "Application/Handles.h"
#include "Application/Machine.h"

#include <cstring>

namespace
{
constexpr ETextKey caeDrinks[] = {TXT_ESPRESSO, TXT_COFFEE, TXT_CAPPUCCINO, TXT_TEA_WATER};
constexpr ETextKey caeStrengths[] = {TXT_MILD, TXT_MEDIUM, TXT_STRONG};
constexpr ETextKey caeStates[] = {TXT_READY, TXT_BREWING_NOW, TXT_WAITING, TXT_ENJOY};
} // namespace

eC_Bool CMachineValues::FindText(const eC_Char* pcName, GUIContentKey_t& uiKeyOUT) const
{
    ETextKey eKey = TXT_NONE;
    if (!FindTextKey(pcName, eKey) || eKey == TXT_NONE)
    {
        return false;
    }
    uiKeyOUT = eKey;
    return true;
}

const eC_Char* CMachineValues::GetText(GUIContentKey_t uiKey) const
{
    return GetDisplayText(static_cast<ETextKey>(uiKey), m_kMachine.GetLanguage());
}

eC_Bool CMachineValues::FindValue(const eC_Char* pcName, GUIContentKey_t& uiValueOUT) const
{
    EValue eValue = VALUE_NONE;
    if (!::FindValue(pcName, eValue) || eValue == VALUE_NONE)
    {
        return false;
    }
    uiValueOUT = eValue;
    return true;
}

const eC_Char* CMachineValues::GetValueText(GUIContentKey_t uiValue) const
{
    m_kValueText = FormatValue(static_cast<EValue>(uiValue));
    return m_kValueText.GetText();
}

eC_Int CMachineValues::GetValueNumber(GUIContentKey_t uiValue) const
{
    return static_cast<eC_Int>(GetPercent(static_cast<EValue>(uiValue)));
}

eC_String CMachineValues::FormatValue(EValue eValue) const
{
    ETextKey eText = TXT_NONE;
    switch (eValue)
    {
    case VALUE_DRINK:
        eText = caeDrinks[m_kMachine.GetDrink()];
        break;
    case VALUE_CUP:
        eText = caeDrinks[m_kMachine.GetCup()];
        break;
    case VALUE_STRENGTH:
        eText = caeStrengths[m_kMachine.GetStrength()];
        break;
    case VALUE_STATUS:
        eText = caeStates[m_kMachine.GetBrewingState()];
        break;
    case VALUE_LANGUAGE:
        eText = m_kMachine.GetLanguage() == LANGUAGE_GERMAN ? TXT_GERMAN : TXT_ENGLISH;
        break;
    case VALUE_VALVE:
        eText = m_kMachine.IsValveOpen() ? TXT_OPEN : TXT_CLOSED;
        break;
    case VALUE_REMINDER:
        eText = GetReminder();
        break;
    case VALUE_CUPS:
        return eC_String(m_kMachine.GetCups());
    case VALUE_MESSAGE_TIME:
        return GetMessageTime();
    case VALUE_HOME_LAYOUT:
        return GetHomeLayout();
    case VALUE_WATER:
    case VALUE_BEANS:
    case VALUE_PROGRESS:
        return eC_String(GetPercent(eValue)) + "%";
    case VALUE_NONE:
    case NOF_VALUES:
        break;
    }
    return eC_String(GetText(eText));
}

eC_UInt CMachineValues::GetPercent(EValue eValue) const
{
    switch (eValue)
    {
    case VALUE_WATER:
        return m_kMachine.GetWater() * 100U / CMachine::cuiWaterTank;
    case VALUE_BEANS:
        return m_kMachine.GetBeans() * 100U / CMachine::cuiBeanHopper;
    case VALUE_PROGRESS:
        return m_kMachine.GetProgress();
    default:
        return 0;
    }
}

eC_String CMachineValues::GetMessageTime() const
{
    eC_UInt uiMilliseconds = 0;
    m_kManager.GetRegisteredPopupDisplayTime(POP_SAVED, uiMilliseconds);
    return eC_String(uiMilliseconds / 1000U) + " s";
}

eC_String CMachineValues::GetHomeLayout() const
{
    // The name of the file, without its directory.
    const eC_String kPath = m_kManager.GetRegisteredPath(DLG_HOME);
    const eC_Char* pcName = std::strrchr(kPath.GetText(), '/');
    return eC_String(pcName != nullptr ? pcName + 1 : kPath.GetText());
}

ETextKey CMachineValues::GetReminder() const
{
    CGUIDialogManager::RegisteredPopup_t kPopup;
    return m_kManager.GetRegisteredPopupInfo(POP_DESCALE, kPopup) ? TXT_ON : TXT_OFF;
}

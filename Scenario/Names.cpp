// SPDX-License-Identifier: MIT
#include "Scenario/Names.h"

#include "Core/Control/GUIObject.h"

#include <cstdint>
#include <cstring>

namespace
{
const char* const capcActionNames[] = {"ODA_INVISIBLE", "ODA_INVISIBLE_ALL", "ODA_DELETE", "ODA_DELETE_ALL",
                                       "ODA_NOTHING"};

constexpr eC_UInt cuiFirstPriority = CGUIDialogManager::PRIO_LOWEST;
const char* const capcPriorityNames[] = {"PRIO_LOWEST",       "PRIO_VERY_LOW",  "PRIO_LOW",
                                         "PRIO_BELOW_MEDIUM", "PRIO_MEDIUM",    "PRIO_ABOVE_MEDIUM",
                                         "PRIO_HIGH",         "PRIO_VERY_HIGH", "PRIO_HIGHEST"};

constexpr eC_UInt cuiGreatestByte = 255;

/** Finds a name in a table, or reads a number that fits a byte; the first name has the value uiFirst. */
template <eC_UInt uiCount>
eC_Bool ParseByte(const eC_Char* pcText, const char* const (&apcNames)[uiCount], eC_UInt uiFirst,
                  eC_UInt& uiValueOUT)
{
    for (eC_UInt uiIndex = 0; uiIndex < uiCount; ++uiIndex)
    {
        if (std::strcmp(pcText, apcNames[uiIndex]) == 0)
        {
            uiValueOUT = uiFirst + uiIndex;
            return true;
        }
    }
    return ParseNumber(pcText, cuiGreatestByte, uiValueOUT);
}
} // namespace

std::string NameOfHandle(ObjectHandle_t eHandle)
{
    const eC_Char* pcName = GetObjectHandleName(eHandle);
    return pcName != nullptr ? pcName : std::to_string(static_cast<eC_Int>(eHandle));
}

std::string NameOfObject(const CGUIObject* pkObject)
{
    return pkObject != nullptr ? NameOfHandle(pkObject->GetID()) : "null";
}

const eC_Char* GetActionName(CGUIDialogManager::EOldDialogAction eAction)
{
    const eC_UInt uiCount = sizeof(capcActionNames) / sizeof(capcActionNames[0]);
    return eAction < uiCount ? capcActionNames[eAction] : nullptr;
}

std::string NameOfAction(CGUIDialogManager::EOldDialogAction eAction)
{
    const eC_Char* pcName = GetActionName(eAction);
    return pcName != nullptr ? pcName : std::to_string(static_cast<eC_UInt>(eAction));
}

eC_Bool ParseAction(const eC_Char* pcText, CGUIDialogManager::EOldDialogAction& eActionOUT)
{
    eC_UInt uiValue = 0;
    const eC_Bool bIsAction = ParseByte(pcText, capcActionNames, 0, uiValue);
    if (bIsAction)
    {
        eActionOUT = static_cast<CGUIDialogManager::EOldDialogAction>(uiValue);
    }
    return bIsAction;
}

eC_Bool ParsePriority(const eC_Char* pcText, CGUIDialogManager::PopupPriority_t& ePriorityOUT)
{
    eC_UInt uiValue = 0;
    const eC_Bool bIsPriority = ParseByte(pcText, capcPriorityNames, cuiFirstPriority, uiValue);
    if (bIsPriority)
    {
        ePriorityOUT = static_cast<CGUIDialogManager::PopupPriority_t>(uiValue);
    }
    return bIsPriority;
}

eC_Bool ParseNumber(const eC_Char* pcText, eC_UInt uiMaximum, eC_UInt& uiNumberOUT)
{
    constexpr std::size_t uiMostDigits = 10;
    const std::size_t uiDigits = std::strspn(pcText, "0123456789");
    if (uiDigits == 0 || uiDigits > uiMostDigits || pcText[uiDigits] != '\0')
    {
        return false;
    }
    std::uint64_t uiValue = 0;
    for (std::size_t uiDigit = 0; uiDigit < uiDigits; ++uiDigit)
    {
        uiValue = uiValue * 10 + static_cast<std::uint64_t>(pcText[uiDigit] - '0');
    }
    if (uiValue > uiMaximum)
    {
        return false;
    }
    uiNumberOUT = static_cast<eC_UInt>(uiValue);
    return true;
}

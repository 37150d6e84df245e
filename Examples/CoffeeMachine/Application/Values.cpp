// SPDX-License-Identifier: MIT
#include "Application/Values.h"

#include <cstring>

namespace
{
#define COFFEE_MACHINE_VALUE_NAME_(Name) #Name,

constexpr const eC_Char* cpcValueNames[] = {COFFEE_MACHINE_VALUES(COFFEE_MACHINE_VALUE_NAME_)};
} // namespace

eC_Bool FindValue(const eC_Char* pcName, EValue& eValueOUT)
{
    for (eC_UInt uiValue = 0; uiValue < NOF_VALUES; ++uiValue)
    {
        if (std::strcmp(cpcValueNames[uiValue], pcName) == 0)
        {
            eValueOUT = static_cast<EValue>(uiValue);
            return true;
        }
    }
    return false;
}

// SPDX-License-Identifier: MIT
#include "Widgets/WidgetAttributes.h"

#include "Widgets/GUIWidget.h"

#include <climits>
#include <cstdint>
#include <cstring>

namespace
{
constexpr eC_Int ciMostSize = SHRT_MAX;

/** @return false unless the whole text is a decimal number between the two */
eC_Bool ParseNumber(const eC_Char* pcValue, eC_Int iLeast, eC_Int iMost, eC_Int& iNumberOUT)
{
    const eC_Bool bIsNegative = *pcValue == '-';
    const eC_Char* pcDigit = bIsNegative ? pcValue + 1 : pcValue;
    const eC_Bool bHasDigits = *pcDigit != '\0';
    std::int64_t iNumber = 0;
    for (; *pcDigit >= '0' && *pcDigit <= '9' && iNumber <= INT_MAX; ++pcDigit)
    {
        iNumber = iNumber * 10 + (*pcDigit - '0');
    }
    iNumber = bIsNegative ? -iNumber : iNumber;
    if (!bHasDigits || *pcDigit != '\0' || iNumber < iLeast || iNumber > iMost)
    {
        return false;
    }
    iNumberOUT = static_cast<eC_Int>(iNumber);
    return true;
}
} // namespace

eC_Bool IsName(const eC_Char* pcName, const eC_Char* pcOther)
{
    return std::strcmp(pcName, pcOther) == 0;
}

EAttributeResult ReadNumber(const eC_Char* pcValue, eC_Int iLeast, eC_Int iMost, eC_Int& iNumberOUT,
                            eC_String& kExpectedOUT)
{
    if (ParseNumber(pcValue, iLeast, iMost, iNumberOUT))
    {
        return ATTRIBUTE_SET;
    }
    kExpectedOUT = "a number from " + eC_String(iLeast) + " to " + eC_String(iMost);
    return ATTRIBUTE_BAD_VALUE;
}

EAttributeResult ReadSize(const eC_Char* pcValue, eC_Int& iSizeOUT, eC_String& kExpectedOUT)
{
    if (IsName(pcValue, "natural") || IsName(pcValue, "fill"))
    {
        iSizeOUT = *pcValue == 'n' ? CGUIWidget::ciNatural : CGUIWidget::ciFill;
        return ATTRIBUTE_SET;
    }
    if (ParseNumber(pcValue, 1, ciMostSize, iSizeOUT))
    {
        return ATTRIBUTE_SET;
    }
    kExpectedOUT = "a number from 1 to " + eC_String(ciMostSize) + ", natural or fill";
    return ATTRIBUTE_BAD_VALUE;
}

EAttributeResult ReadFlag(const eC_Char* pcValue, eC_Bool& bFlagOUT, eC_String& kExpectedOUT)
{
    const eC_Bool bIsTrue = IsName(pcValue, "true");
    if (!bIsTrue && !IsName(pcValue, "false"))
    {
        kExpectedOUT = "true or false";
        return ATTRIBUTE_BAD_VALUE;
    }
    bFlagOUT = bIsTrue;
    return ATTRIBUTE_SET;
}

EAttributeResult WithOwnNames(EAttributeResult eResult, const eC_Char* pcOwnNames, eC_String& kExpectedOUT)
{
    if (eResult == ATTRIBUTE_UNKNOWN)
    {
        kExpectedOUT = pcOwnNames + (", " + kExpectedOUT);
    }
    return eResult;
}

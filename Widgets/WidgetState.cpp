// SPDX-License-Identifier: MIT
#include "Widgets/WidgetState.h"

#include "Widgets/GUIWidget.h"

eC_UInt SaveNumber(eC_Int iNumber, unsigned char* puiStateOUT, eC_UInt uiSize)
{
    if (uiSize >= cuiNumberBytes)
    {
        for (eC_UInt i = 0; i < cuiNumberBytes; ++i)
        {
            puiStateOUT[i] = static_cast<unsigned char>(static_cast<eC_UInt>(iNumber) >> (8U * i));
        }
    }
    return cuiNumberBytes;
}

eC_Int ReadSavedNumber(const unsigned char* puiState)
{
    eC_UInt uiNumber = 0;
    for (eC_UInt i = 0; i < cuiNumberBytes; ++i)
    {
        uiNumber |= static_cast<eC_UInt>(puiState[i]) << (8U * i);
    }
    return static_cast<eC_Int>(uiNumber);
}

eC_Bool RestoreNumber(CGUIWidget& kWidget, const unsigned char* puiState, eC_UInt uiSize)
{
    if (uiSize != cuiNumberBytes)
    {
        return false;
    }
    kWidget.SetValue(ReadSavedNumber(puiState));
    return true;
}

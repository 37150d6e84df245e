// SPDX-License-Identifier: MIT
#include "Application/RetainedMemory.h"

#include <algorithm>

CRetainedMemory::CRetainedMemory()
{
    for (unsigned char(&auiSector)[cuiSector] : m_aauiSectors)
    {
        std::fill_n(auiSector, cuiSector, static_cast<unsigned char>(0xFF));
    }
}

eC_Bool CRetainedMemory::WriteSlot(eC_UInt uiSlot, const unsigned char* puiBytes, eC_UInt uiSize)
{
    std::copy_n(puiBytes, uiSize, m_aauiSectors[uiSlot]);
    return true;
}

eC_UInt CRetainedMemory::ReadSlot(eC_UInt uiSlot, unsigned char* puiBytes, eC_UInt uiSize)
{
    std::copy_n(m_aauiSectors[uiSlot], uiSize, puiBytes);
    return uiSize;
}

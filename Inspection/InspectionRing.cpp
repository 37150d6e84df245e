// SPDX-License-Identifier: MIT
#include "Inspection/InspectionRing.h"

#include <algorithm>
#include <cstring>

eC_Bool CByteRing::Put(const eC_Char* pcBytes, eC_UInt uiLength)
{
    const eC_UInt uiWrite = m_uiWrite.load(std::memory_order_relaxed);
    const eC_UInt uiRead = m_uiRead.load(std::memory_order_acquire);
    const eC_UInt uiHeld = uiWrite >= uiRead ? uiWrite - uiRead : m_uiSize - uiRead + uiWrite;
    // One byte stays free, to tell full from empty.
    if (uiLength >= m_uiSize - uiHeld)
    {
        return false;
    }
    const eC_UInt uiUpToEnd = m_uiSize - uiWrite;
    const eC_UInt uiFirst = std::min(uiLength, uiUpToEnd);
    std::memcpy(m_pcMemory + uiWrite, pcBytes, uiFirst);
    std::memcpy(m_pcMemory, pcBytes + uiFirst, uiLength - uiFirst);
    m_uiWrite.store(uiLength < uiUpToEnd ? uiWrite + uiLength : uiLength - uiUpToEnd,
                    std::memory_order_release);
    return true;
}

eC_UInt CByteRing::Take(eC_Char* pcBytes, eC_UInt uiSize)
{
    const eC_UInt uiWrite = m_uiWrite.load(std::memory_order_acquire);
    eC_UInt uiRead = m_uiRead.load(std::memory_order_relaxed);
    eC_UInt uiTaken = 0;
    while (uiTaken < uiSize && uiRead != uiWrite)
    {
        pcBytes[uiTaken++] = m_pcMemory[uiRead];
        uiRead = uiRead + 1 == m_uiSize ? 0 : uiRead + 1;
    }
    m_uiRead.store(uiRead, std::memory_order_release);
    return uiTaken;
}

// SPDX-License-Identifier: MIT
#ifndef INSPECTION_INSPECTIONRING_H
#define INSPECTION_INSPECTIONRING_H

/** @file
 *  A channel in memory, with an interrupt of a serial line, another task or a debugger at its other end.
 */

#include "Inspection/InspectionChannel.h"

#include <atomic>

/** A buffer for one direction: one task puts bytes in, the other takes them out. It needs no lock. */
class CByteRing
{
public:
    /** @param pcMemory the memory, not owned; @param uiSize its size; it holds one byte less */
    CByteRing(eC_Char* pcMemory, eC_UInt uiSize) : m_pcMemory(pcMemory), m_uiSize(uiSize) {}

    /** Puts in all the bytes or none. @return true if there was room */
    eC_Bool Put(const eC_Char* pcBytes, eC_UInt uiLength);

    /** Takes bytes out. @return how many, at most uiSize */
    eC_UInt Take(eC_Char* pcBytes, eC_UInt uiSize);

    /** @return true if there is nothing to read */
    eC_Bool IsEmpty() const { return m_uiRead.load() == m_uiWrite.load(); }

private:
    // A debugger finds the bytes through these four members, in this order.
    eC_Char* m_pcMemory;
    eC_UInt m_uiSize;
    std::atomic<eC_UInt> m_uiWrite{0}; ///< where the next byte goes
    std::atomic<eC_UInt> m_uiRead{0};  ///< where the oldest byte is
};

/** A channel whose other end is in memory as well. */
class CInspectionRing : public CInspectionChannel
{
public:
    /** @param pcOut, uiOut memory for outgoing lines, not owned
     *  @param pcIn, uiIn memory for incoming bytes, not owned; none if no commands are taken
     */
    CInspectionRing(eC_Char* pcOut, eC_UInt uiOut, eC_Char* pcIn = nullptr, eC_UInt uiIn = 0)
        : m_kOut(pcOut, uiOut), m_kIn(pcIn, uiIn)
    {
    }

    eC_Bool WriteLine(const eC_Char* pcLine, eC_UInt uiLength) override
    {
        return m_kOut.Put(pcLine, uiLength);
    }

    eC_UInt Read(eC_Char* pcBytes, eC_UInt uiSize) override { return m_kIn.Take(pcBytes, uiSize); }

    /** For the other end: takes bytes to be sent. @return how many bytes */
    eC_UInt TakeOut(eC_Char* pcBytes, eC_UInt uiSize) { return m_kOut.Take(pcBytes, uiSize); }

    /** For the other end: puts in bytes that have arrived. @return false if there was no room for all of them
     */
    eC_Bool PutIn(const eC_Char* pcBytes, eC_UInt uiLength) { return m_kIn.Put(pcBytes, uiLength); }

private:
    CByteRing m_kOut;
    CByteRing m_kIn;
};

#endif

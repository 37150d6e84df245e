// SPDX-License-Identifier: MIT
#ifndef INSPECTION_INSPECTIONRING_H
#define INSPECTION_INSPECTIONRING_H

/** @file
 *  A channel in memory: an interrupt of a serial line, another task or a debugger is at its other end.
 */

#include "Inspection/InspectionChannel.h"

#include <atomic>

/** Bytes on their way in one direction: one side puts them in, the other takes them out. Needs no lock. */
class CByteRing
{
public:
    /** @param pcMemory the memory, not owned; @param uiSize its size; one byte less than that is held */
    CByteRing(eC_Char* pcMemory, eC_UInt uiSize) : m_pcMemory(pcMemory), m_uiSize(uiSize) {}

    /** Puts bytes in, all or none. @return true when there was room */
    eC_Bool Put(const eC_Char* pcBytes, eC_UInt uiLength);

    /** Takes bytes out. @return how many, at most uiSize */
    eC_UInt Take(eC_Char* pcBytes, eC_UInt uiSize);

    eC_Bool IsEmpty() const { return m_uiRead.load() == m_uiWrite.load(); }

private:
    // A debugger finds the bytes by these four, in this order.
    eC_Char* m_pcMemory;
    eC_UInt m_uiSize;
    std::atomic<eC_UInt> m_uiWrite{0}; ///< where the next byte goes
    std::atomic<eC_UInt> m_uiRead{0};  ///< where the oldest one is
};

/** A channel whose other end is in memory, too. */
class CInspectionRing : public CInspectionChannel
{
public:
    /** @param pcOut, uiOut memory for the lines that go out, not owned
     *  @param pcIn, uiIn memory for the bytes that come in, not owned; none when no commands are taken
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

    /** For the other end: takes out what is to be sent. @return how many bytes */
    eC_UInt TakeOut(eC_Char* pcBytes, eC_UInt uiSize) { return m_kOut.Take(pcBytes, uiSize); }

    /** For the other end: puts in bytes that have come. @return false when there was no room for all of them
     */
    eC_Bool PutIn(const eC_Char* pcBytes, eC_UInt uiLength) { return m_kIn.Put(pcBytes, uiLength); }

private:
    CByteRing m_kOut;
    CByteRing m_kIn;
};

#endif

// SPDX-License-Identifier: MIT
#ifndef TESTS_UNIT_INSPECTION_COLLECTINGCHANNEL_H
#define TESTS_UNIT_INSPECTION_COLLECTINGCHANNEL_H

/** @file
 *  A channel that collects the output and receives what a test tells it to.
 */

#include "Inspection/InspectionChannel.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>

/** Each accepted line is also appended to the file named by the environment variable
 *  DIALOGMANAGER_INSPECTION_LINES, if it is set; all of them are validated later.
 */
class CCollectingChannel : public CInspectionChannel
{
public:
    static constexpr eC_UInt cuiAnyNumber = 0xFFFFFFFFU;

    eC_Bool WriteLine(const eC_Char* pcLine, eC_UInt uiLength) override
    {
        if (m_uiRoom == 0)
        {
            return false;
        }
        m_uiRoom -= m_uiRoom == cuiAnyNumber ? 0U : 1U;
        const std::string kLine(pcLine, uiLength);
        m_kLines += kLine;
        KeepInFile(kLine);
        return true;
    }

    eC_UInt Read(eC_Char* pcBytes, eC_UInt uiSize) override
    {
        const std::size_t uiRead = m_kInput.copy(pcBytes, uiSize);
        m_kInput.erase(0, uiRead);
        return static_cast<eC_UInt>(uiRead);
    }

    void Flush() override { ++m_uiFlushes; }
    eC_UInt GetReaders() const override { return m_uiReaders; }

    /** Makes bytes arrive. */
    void Receive(const std::string& kBytes) { m_kInput += kBytes; }

    /** Sets how many more lines are accepted. */
    void SetRoom(eC_UInt uiLines) { m_uiRoom = uiLines; }

    /** Simulates another reader. */
    void AddReader() { ++m_uiReaders; }

    eC_UInt GetFlushes() const { return m_uiFlushes; }

    /** @return the lines accepted since the last call */
    std::string TakeLines() { return std::exchange(m_kLines, std::string()); }

    /** @return the input that has not been read */
    const std::string& GetInput() const { return m_kInput; }

private:
    static void KeepInFile(const std::string& kLine)
    {
        const char* const pcFile = std::getenv("DIALOGMANAGER_INSPECTION_LINES");
        std::FILE* const pkFile = pcFile != nullptr ? std::fopen(pcFile, "ab") : nullptr;
        if (pkFile != nullptr)
        {
            std::fwrite(kLine.data(), 1, kLine.size(), pkFile);
            std::fclose(pkFile);
        }
    }

    std::string m_kLines;
    std::string m_kInput;
    eC_UInt m_uiRoom = cuiAnyNumber;
    eC_UInt m_uiReaders = 1;
    eC_UInt m_uiFlushes = 0;
};

#endif

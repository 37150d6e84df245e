// SPDX-License-Identifier: MIT
#ifndef TESTS_FUZZ_FUZZTARGET_H
#define TESTS_FUZZ_FUZZTARGET_H

/** @file
 *  What the fuzz targets have in common. A target is a program that takes arbitrary bytes and fails if any of
 *  its checks does.
 */

#include <cstddef>
#include <cstdint>
#include <string>

/** Checks one input.
 *  @return 0
 */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pcBytes, std::size_t uiSize);

/** Bytes from which a target takes its decisions, one after the other. After the last byte come zeros. */
class CDecisions
{
public:
    CDecisions(const std::uint8_t* pcBytes, std::size_t uiSize) : m_pcNext(pcBytes), m_pcEnd(pcBytes + uiSize)
    {
    }

    bool IsEmpty() const { return m_pcNext == m_pcEnd; }
    unsigned int TakeByte() { return IsEmpty() ? 0 : *m_pcNext++; }

    /** @return a number from 0 up to, but not including, the count */
    unsigned int TakeBelow(unsigned int uiCount) { return TakeByte() % uiCount; }

    /** @return that many bytes, or what is left */
    std::string TakeText(std::size_t uiLength);

    /** @return four bytes as a number */
    std::uint32_t TakeNumber();

private:
    const std::uint8_t* m_pcNext;
    const std::uint8_t* m_pcEnd;
};

/** Ends the program with a message. */
[[noreturn]] void Fail(const std::string& kMessage);

/** Announces the next step. It is printed if the environment variable FUZZ_STEPS is set, so that the steps
 *  that lead to a crash can be read.
 */
void ShowStep(const std::string& kStep);

#endif

// SPDX-License-Identifier: MIT
#ifndef TESTS_FUZZ_FUZZTARGET_H
#define TESTS_FUZZ_FUZZTARGET_H

/** @file
 *  What the fuzz targets have in common. A target is a program that takes any bytes and ends badly when
 *  what it checks does not hold for them.
 */

#include <cstddef>
#include <cstdint>
#include <string>

/** Checks one input.
 *  @return 0
 */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pcBytes, std::size_t uiSize);

/** Bytes that decide, one after the other, what a target does. Behind the last come zeros. */
class CDecisions
{
public:
    CDecisions(const std::uint8_t* pcBytes, std::size_t uiSize) : m_pcNext(pcBytes), m_pcEnd(pcBytes + uiSize)
    {
    }

    bool IsEmpty() const { return m_pcNext == m_pcEnd; }
    unsigned int TakeByte() { return IsEmpty() ? 0 : *m_pcNext++; }

    /** @return a number from 0 to one below the count */
    unsigned int TakeBelow(unsigned int uiCount) { return TakeByte() % uiCount; }

    /** @return that many bytes, or as many as there are */
    std::string TakeText(std::size_t uiLength);

    /** @return four bytes as a number */
    std::uint32_t TakeNumber();

private:
    const std::uint8_t* m_pcNext;
    const std::uint8_t* m_pcEnd;
};

/** Ends the program with a message. */
[[noreturn]] void Fail(const std::string& kMessage);

/** Tells what is about to be done: printed when the environment variable FUZZ_STEPS is set, so that the steps
 *  to a crash can be read.
 */
void ShowStep(const std::string& kStep);

#endif

// SPDX-License-Identifier: MIT
#include "Tests/Fuzz/FuzzTarget.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>

std::string CDecisions::TakeText(std::size_t uiLength)
{
    const std::size_t uiTaken = std::min(uiLength, static_cast<std::size_t>(m_pcEnd - m_pcNext));
    std::string kText(m_pcNext, m_pcNext + uiTaken);
    m_pcNext += uiTaken;
    return kText;
}

std::uint32_t CDecisions::TakeNumber()
{
    std::uint32_t uiNumber = 0;
    for (int iByte = 0; iByte < 4; ++iByte)
    {
        uiNumber = uiNumber << 8 | TakeByte();
    }
    return uiNumber;
}

void Fail(const std::string& kMessage)
{
    std::cerr << kMessage << std::endl;
    std::abort();
}

void ShowStep(const std::string& kStep)
{
    static const bool bIsWanted = std::getenv("FUZZ_STEPS") != nullptr;
    if (bIsWanted)
    {
        std::cerr << kStep << std::endl;
    }
}

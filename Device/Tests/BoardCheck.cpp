// SPDX-License-Identifier: MIT
// What the board does when a program fails. The argument names the failure; CheckBoard.cmake has the expected
// end of each.

#include <cassert>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <new>
#include <stdexcept>

namespace
{
constexpr int ciWrongUsage = 2;
constexpr int ciOwnStatus = 42;

const std::uint32_t g_uiConstant = 1;

volatile std::uint32_t g_uiRead = 0;

/** @return the word at an address that the compiler does not know */
volatile std::uint32_t& At(std::uint32_t uiAddress)
{
    asm volatile("" : "+r"(uiAddress));
    return *reinterpret_cast<volatile std::uint32_t*>(uiAddress); // NOLINT(performance-no-int-to-ptr)
}

int ReadNull()
{
    g_uiRead = At(0);
    return 0;
}

int CallNull()
{
    asm volatile("movs r0, #0\n"
                 "blx r0\n" ::
                     : "r0", "lr", "memory");
    return 0;
}

int WriteConstant()
{
    At(reinterpret_cast<std::uint32_t>(&g_uiConstant)) = 2;
    return 0;
}

int ReadNoMemory()
{
    g_uiRead = At(0x30000000U);
    return 0;
}

int OverflowStack(int iDepth)
{
    volatile int aiLocal[64] = {iDepth};
    return iDepth < 0 ? 0 : OverflowStack(iDepth + 1) + aiLocal[0];
}

int ThrowToNobody()
{
    throw std::runtime_error("nobody catches this");
}

int FailAssertion()
{
    const bool bThisAssertionHolds = g_uiRead != 0;
    assert(bThisAssertionHolds);
    return bThisAssertionHolds ? 0 : ciOwnStatus;
}

/** A block on the heap. */
struct Block_t
{
    Block_t* m_pkNext;
    char m_acContent[1016];
};

int ExhaustHeap()
{
    Block_t* pkBlocks = nullptr;
    int iBlocks = 0;
    try
    {
        for (;; ++iBlocks)
        {
            pkBlocks = new Block_t{pkBlocks, {}};
        }
    }
    catch (const std::bad_alloc&)
    {
        std::printf("bad_alloc after more than 40 KiB: %s\n", iBlocks > 40 ? "yes" : "no");
    }
    while (pkBlocks != nullptr)
    {
        Block_t* pkBlock = pkBlocks;
        pkBlocks = pkBlock->m_pkNext;
        delete pkBlock;
    }
    delete[] new char[40 * 1024];
    std::puts("the heap is usable again");
    return 0;
}

int ReturnOwnStatus()
{
    return ciOwnStatus;
}

int OverflowFirstStack()
{
    return OverflowStack(0);
}

struct Case_t
{
    const char* m_pcName;
    int (*m_pfnRun)();
};

constexpr Case_t ckCases[] = {{"read-null", &ReadNull},
                              {"call-null", &CallNull},
                              {"write-constant", &WriteConstant},
                              {"read-no-memory", &ReadNoMemory},
                              {"overflow-stack", &OverflowFirstStack},
                              {"throw", &ThrowToNobody},
                              {"assert", &FailAssertion},
                              {"exhaust-heap", &ExhaustHeap},
                              {"status", &ReturnOwnStatus}};
} // namespace

int main(int iArguments, char** ppcArguments)
{
    for (const Case_t& kCase : ckCases)
    {
        if (iArguments == 2 && std::strcmp(ppcArguments[1], kCase.m_pcName) == 0)
        {
            return kCase.m_pfnRun();
        }
    }
    std::fputs("Usage: BoardCheck CASE\n", stderr);
    return ciWrongUsage;
}

// SPDX-License-Identifier: MIT
// Ends a program that cannot continue: one line on standard error, and status 1.

#include "Device/Board/Board.h"
#include "Device/Board/Registers.h"
#include "Device/Board/Semihosting.h"

#include <cstdint>

extern "C"
{
    extern const std::uint32_t BoardStackStart[]; // the linker's

    void FaultHandler();
    [[noreturn]] void ReportFault(const std::uint32_t* puiFrame);
}

namespace
{
constexpr std::uint32_t cuiStoppedByApplication = 0x20026;
constexpr std::uint32_t cuiFailure = 1;

// Bits of the fault status.
constexpr std::uint32_t cuiMemoryFault = 0x000000FFU;
constexpr std::uint32_t cuiMemoryAddressKnown = 1U << 7;
constexpr std::uint32_t cuiBusFault = 0x0000FF00U;
constexpr std::uint32_t cuiBusAddressKnown = 1U << 15;

constexpr int ciProgramCounter = 6; ///< its place among the saved registers

void WriteError(const char* pcText)
{
    CallDebugger(SEMIHOSTING_WRITE_TEXT, pcText);
}

void WriteErrorNumber(const char* pcName, std::uint32_t uiNumber)
{
    char acText[] = "0x00000000";
    for (char* pcDigit = acText + sizeof(acText) - 2; uiNumber != 0; --pcDigit)
    {
        *pcDigit = "0123456789ABCDEF"[uiNumber % 16U];
        uiNumber /= 16U;
    }
    WriteError(pcName);
    WriteError(acText);
}

const char* NameFault(std::uint32_t uiStatus)
{
    if ((uiStatus & cuiMemoryFault) != 0)
    {
        return "an access to protected memory";
    }
    return (uiStatus & cuiBusFault) != 0 ? "an access to memory that is not there" : "a wrong instruction";
}

[[noreturn]] void ExitWithFailure()
{
    const std::uint32_t auiBlock[] = {cuiStoppedByApplication, cuiFailure};
    CallDebugger(SEMIHOSTING_EXIT, auiBlock);
    for (;;)
    {
    }
}
} // namespace

extern "C" __attribute__((naked)) void FaultHandler()
{
    // In a handler, bit 2 of the link register says which stack was in use.
    asm volatile("tst lr, #4\n"
                 "ite eq\n"
                 "mrseq r0, msp\n"
                 "mrsne r0, psp\n"
                 "b ReportFault\n");
}

extern "C" void ReportFault(const std::uint32_t* puiFrame)
{
    if (puiFrame < BoardStackStart)
    {
        StopBoard("the stack has overflowed");
    }
    const std::uint32_t uiStatus = SYSTEM_CONTROL.m_uiFaultStatus;
    WriteError("The board stops: ");
    WriteError(NameFault(uiStatus));
    if ((uiStatus & cuiMemoryAddressKnown) != 0)
    {
        WriteErrorNumber(", address ", SYSTEM_CONTROL.m_uiMemoryFaultAddress);
    }
    if ((uiStatus & cuiBusAddressKnown) != 0)
    {
        WriteErrorNumber(", address ", SYSTEM_CONTROL.m_uiBusFaultAddress);
    }
    WriteErrorNumber(", at instruction ", puiFrame[ciProgramCounter]);
    WriteErrorNumber(", fault status ", uiStatus);
    WriteError("\n");
    ExitWithFailure();
}

void StopBoard(const char* pcReason)
{
    WriteError("The board stops: ");
    WriteError(pcReason);
    WriteError("\n");
    ExitWithFailure();
}

// SPDX-License-Identifier: MIT
// From reset to main.

#include "Device/Board/Board.h"
#include "Device/Board/Registers.h"
#include "Device/Board/Semihosting.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <exception>

using Function_t = void (*)();

extern "C"
{
    // Symbols of the linker script; only their addresses have a meaning.
    extern std::uint32_t BoardStackStart[];
    extern std::uint32_t BoardStackEnd[];
    extern std::uint32_t BoardHandlerStackEnd[];
    extern char BoardDataStart[];
    extern char BoardDataEnd[];
    extern const char BoardDataLoad[];
    extern char BoardZeroStart[];
    extern char BoardZeroEnd[];
    extern const Function_t BoardConstructorsStart[];
    extern const Function_t BoardConstructorsEnd[];

    // Destructors of static objects are registered with the address of this variable.
    void* __dso_handle = nullptr; // NOLINT(bugprone-reserved-identifier)

    /** The exit of the C library calls it. Destructors do all that is needed. */
    void _fini() {} // NOLINT(bugprone-reserved-identifier)

    /** A function of the C library that opens standard input, output and error. */
    void initialise_monitor_handles();

    // The main function under another name, because a C++ program must not call it.
    int RunProgram(int iArguments, char** ppcArguments) asm("main");

    void ResetHandler();
    void FaultHandler();
    void SysTickHandler();
    void SerialReceiveHandler();
    [[noreturn]] void Start();
}

namespace
{
constexpr std::uint32_t cuiUnusedStack = 0xDEADBEEFU;
constexpr int ciMostArguments = 8;
constexpr int ciCommandLineSize = 256;

[[noreturn]] void UnexpectedInterrupt()
{
    StopBoard("an interrupt that nobody handles");
}

/** The vector table, which the processor reads at address 0. */
struct VectorTable_t
{
    const void* m_pHandlerStackEnd;
    Function_t m_apfnHandlers[16];
};

__attribute__((section(".vectors"), used)) const VectorTable_t g_kVectorTable = {
    BoardHandlerStackEnd,
    {&ResetHandler, &UnexpectedInterrupt, &FaultHandler, &FaultHandler, &FaultHandler, &FaultHandler,
     &UnexpectedInterrupt, &UnexpectedInterrupt, &UnexpectedInterrupt, &UnexpectedInterrupt,
     &UnexpectedInterrupt, &UnexpectedInterrupt, &UnexpectedInterrupt, &UnexpectedInterrupt, &SysTickHandler,
     &SerialReceiveHandler}};

/** @return the end of the unused memory at the bottom of the stack */
std::uint32_t* FindEndOfUnusedStack()
{
    std::uint32_t* puiWord = BoardStackStart;
    while (puiWord != BoardStackEnd && *puiWord == cuiUnusedStack)
    {
        ++puiWord;
    }
    return puiWord;
}

void MarkUnusedStack()
{
    // Stops before the stack pointer: the registers that this function saves are below the address of its
    // frame.
    constexpr std::size_t cuiOwnFrame = 64;
    auto* puiEnd = static_cast<std::uint32_t*>(__builtin_frame_address(0)) - cuiOwnFrame;
    for (volatile std::uint32_t* puiWord = BoardStackStart; puiWord < puiEnd; ++puiWord)
    {
        *puiWord = cuiUnusedStack;
    }
}

void EnableFloatingPoint()
{
#ifdef __ARM_FP
    SYSTEM_CONTROL.m_uiCoprocessorAccess |= cuiFullAccessToFloatingPoint;
    asm volatile("dsb\n isb");
#endif
}

#if __ARM_ARCH < 8
void Protect(std::uint32_t uiRegion, std::uint32_t uiAddress, std::uint32_t uiAccessAndSize)
{
    MEMORY_PROTECTION.m_uiBaseAddress = uiAddress | cuiRegionValid | uiRegion;
    MEMORY_PROTECTION.m_uiAttributesAndSize = uiAccessAndSize | cuiRegionEnable;
}

void ProtectMemory()
{
    // Writing to constants must fail here, too, where RAM simulates the flash.
    Protect(0, 0x00000000U, cuiRegionReadOnly | cuiRegionOf4MiB);
    // The target of null pointers. Of overlapping regions the one with the higher number counts.
    Protect(1, 0x00000000U, cuiRegionNoAccess | cuiRegionOf256Bytes);
    // Below the RAM, which begins with the stack.
    Protect(2, 0x10000000U, cuiRegionNoAccess | cuiRegionOf256MiB);
    MEMORY_PROTECTION.m_uiControl = cuiProtectionEnable | cuiDefaultMapElsewhere;
    asm volatile("dsb\n isb");
}
#else
// Version 8 of the architecture has another memory protection unit.
void ProtectMemory() {}
#endif

[[noreturn]] void StopOnTerminate()
{
    if (std::current_exception() != nullptr)
    {
        try
        {
            throw;
        }
        catch (const std::exception& kException)
        {
            StopBoard(kException.what());
        }
        catch (...)
        {
            StopBoard("an exception that nobody catches");
        }
    }
    StopBoard("std::terminate");
}

/** Splits the command line into words. @return their number */
int GetArguments(char** ppcArgumentsOUT)
{
    static char s_acCommandLine[ciCommandLineSize];
    const struct
    {
        char* m_pcText;
        std::uint32_t m_uiSize;
    } kBlock = {s_acCommandLine, ciCommandLineSize};
    if (CallDebugger(SEMIHOSTING_GET_COMMAND_LINE, &kBlock) != 0)
    {
        return 0;
    }
    int iArguments = 0;
    for (char* pcWord = std::strtok(s_acCommandLine, " "); pcWord != nullptr && iArguments < ciMostArguments;
         pcWord = std::strtok(nullptr, " "))
    {
        ppcArgumentsOUT[iArguments++] = pcWord;
    }
    return iArguments;
}
} // namespace

// Programs that use the serial line have another one.
extern "C" __attribute__((weak)) void SerialReceiveHandler()
{
    UnexpectedInterrupt();
}

// The program gets its own stack, like a task of an operating system. A stack overflow can then be reported
// on the other one.
extern "C" __attribute__((naked)) void ResetHandler()
{
    asm volatile("ldr r0, =BoardStackEnd\n"
                 "msr psp, r0\n"
                 "movs r0, #2\n"
                 "msr control, r0\n"
                 "isb\n"
                 "b Start\n");
}

extern "C" void Start()
{
    EnableFloatingPoint();
    MarkUnusedStack();
    std::memcpy(BoardDataStart, BoardDataLoad, static_cast<std::size_t>(BoardDataEnd - BoardDataStart));
    std::memset(BoardZeroStart, 0, static_cast<std::size_t>(BoardZeroEnd - BoardZeroStart));
    ProtectMemory();

    initialise_monitor_handles();
    std::set_terminate(&StopOnTerminate);
    for (const Function_t* ppfnConstructor = BoardConstructorsStart; ppfnConstructor != BoardConstructorsEnd;
         ++ppfnConstructor)
    {
        (*ppfnConstructor)();
    }

    static char* s_apcArguments[ciMostArguments + 1];
    const int iArguments = GetArguments(s_apcArguments);
    std::exit(RunProgram(iArguments, s_apcArguments));
}

MemoryUse_t GetBoardStackUse()
{
    MemoryUse_t kUse = {};
    kUse.m_uiPeak = static_cast<std::size_t>(BoardStackEnd - FindEndOfUnusedStack()) * sizeof(std::uint32_t);
    kUse.m_uiSize = static_cast<std::size_t>(BoardStackEnd - BoardStackStart) * sizeof(std::uint32_t);
    return kUse;
}

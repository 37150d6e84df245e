// SPDX-License-Identifier: MIT
#ifndef DEVICE_BOARD_SEMIHOSTING_H
#define DEVICE_BOARD_SEMIHOSTING_H

/** @file
 *  Calls to the computer that debugs the board, which the C library does not have.
 */

#include <cstdint>

enum ESemihostingCall : std::uint32_t
{
    SEMIHOSTING_WRITE_TEXT = 0x04,
    SEMIHOSTING_GET_COMMAND_LINE = 0x15,
    SEMIHOSTING_EXIT = 0x20
};

/** Asks the debugger for a service.
 *  @param eCall the service
 *  @param pArguments the arguments of the service
 *  @return the result of the service
 */
inline std::uint32_t CallDebugger(ESemihostingCall eCall, const void* pArguments)
{
    register std::uint32_t uiCall asm("r0") = eCall;
    register const void* pBlock asm("r1") = pArguments;
    asm volatile("bkpt 0xAB" : "+r"(uiCall) : "r"(pBlock) : "memory");
    return uiCall;
}

#endif

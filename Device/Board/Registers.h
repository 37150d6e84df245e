// SPDX-License-Identifier: MIT
#ifndef DEVICE_BOARD_REGISTERS_H
#define DEVICE_BOARD_REGISTERS_H

/** @file
 *  The registers of the processor that the board's programs use.
 */

#include <cstdint>

/** The system timer, which counts down from its reload value to 0. */
struct SysTick_t
{
    volatile std::uint32_t m_uiControl;
    volatile std::uint32_t m_uiReload;
    volatile std::uint32_t m_uiCurrent; ///< writing any value sets it to 0
};

constexpr std::uint32_t cuiSysTickEnable = 1U << 0;
constexpr std::uint32_t cuiSysTickInterrupt = 1U << 1;
constexpr std::uint32_t cuiSysTickProcessorClock = 1U << 2;

/** Which faults have happened, and which coprocessors may be used. */
struct SystemControl_t
{
    volatile std::uint32_t m_uiFaultStatus;     ///< the kinds of memory, bus and usage faults
    volatile std::uint32_t m_uiHardFaultStatus; ///< why a fault became a hard fault
    volatile std::uint32_t m_uiDebugFaultStatus;
    volatile std::uint32_t m_uiMemoryFaultAddress;
    volatile std::uint32_t m_uiBusFaultAddress;
    volatile std::uint32_t m_auiOther[19];
    volatile std::uint32_t m_uiCoprocessorAccess;
};

constexpr std::uint32_t cuiFullAccessToFloatingPoint = 0xFU << 20;

/** The memory protection unit of version 7 of the architecture. */
struct MemoryProtection_t
{
    volatile std::uint32_t m_uiType;
    volatile std::uint32_t m_uiControl;
    volatile std::uint32_t m_uiRegionNumber;
    volatile std::uint32_t m_uiBaseAddress;
    volatile std::uint32_t m_uiAttributesAndSize;
};

constexpr std::uint32_t cuiProtectionEnable = 1U << 0;
constexpr std::uint32_t cuiDefaultMapElsewhere = 1U << 2;
constexpr std::uint32_t cuiRegionValid = 1U << 4;
constexpr std::uint32_t cuiRegionEnable = 1U << 0;
constexpr std::uint32_t cuiRegionOf256Bytes = 7U << 1;
constexpr std::uint32_t cuiRegionOf4MiB = 21U << 1;
constexpr std::uint32_t cuiRegionOf256MiB = 27U << 1;
constexpr std::uint32_t cuiRegionNoAccess = 0U;
constexpr std::uint32_t cuiRegionReadOnly = 6U << 24;

/** The first serial line of the board. */
struct SerialLine_t
{
    volatile std::uint32_t m_uiData;
    volatile std::uint32_t m_uiState; ///< whether a byte is on its way out, and whether one has arrived
    volatile std::uint32_t m_uiControl;
    volatile std::uint32_t m_uiInterrupts; ///< writing a bit ends the interrupt
    volatile std::uint32_t m_uiDivider;    ///< processor clocks for each bit
};

constexpr std::uint32_t cuiSerialSend = 1U << 0;
constexpr std::uint32_t cuiSerialReceive = 1U << 1;
constexpr std::uint32_t cuiSerialSendOn = 1U << 0;
constexpr std::uint32_t cuiSerialReceiveOn = 1U << 1;
constexpr std::uint32_t cuiSerialReceiveInterrupt = 1U << 3;
constexpr std::uint32_t cuiSerialReceiveInterruptLine = 1U << 0; ///< the first of the devices' interrupts

#define SYSTICK (*reinterpret_cast<SysTick_t*>(0xE000E010U))
#define SYSTEM_CONTROL (*reinterpret_cast<SystemControl_t*>(0xE000ED28U))
#define MEMORY_PROTECTION (*reinterpret_cast<MemoryProtection_t*>(0xE000ED90U))
#define SERIAL_LINE (*reinterpret_cast<SerialLine_t*>(0x40004000U))
#define INTERRUPTS_ON                                                                                        \
    (*reinterpret_cast<volatile std::uint32_t*>(0xE000E100U)) ///< writing a bit lets it through

#endif

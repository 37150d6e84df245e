// SPDX-License-Identifier: MIT
#include "Device/Board/SerialLine.h"

#include "Device/Board/Registers.h"

namespace
{
CSerialLine::Receive_t volatile g_pfnReceive = nullptr;
} // namespace

extern "C" void SerialReceiveHandler();

extern "C" void SerialReceiveHandler()
{
    SERIAL_LINE.m_uiInterrupts = cuiSerialReceive;
    while ((SERIAL_LINE.m_uiState & cuiSerialReceive) != 0)
    {
        g_pfnReceive(static_cast<char>(SERIAL_LINE.m_uiData));
    }
}

void CSerialLine::Start(Receive_t pfnReceive)
{
    constexpr std::uint32_t cuiProcessorClock = 25000000; // in Hertz
    constexpr std::uint32_t cuiBaud = 115200;
    g_pfnReceive = pfnReceive;
    SERIAL_LINE.m_uiDivider = cuiProcessorClock / cuiBaud;
    SERIAL_LINE.m_uiControl = cuiSerialSendOn | cuiSerialReceiveOn | cuiSerialReceiveInterrupt;
    INTERRUPTS_ON = cuiSerialReceiveInterruptLine;
}

bool CSerialLine::Send(char cByte)
{
    if ((SERIAL_LINE.m_uiState & cuiSerialSend) != 0)
    {
        return false;
    }
    SERIAL_LINE.m_uiData = static_cast<unsigned char>(cByte);
    return true;
}

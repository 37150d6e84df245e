// SPDX-License-Identifier: MIT
#ifndef INSPECTION_HOST_FILECHANNEL_H
#define INSPECTION_HOST_FILECHANNEL_H

/** @file
 *  A channel over file descriptors: pipes, sockets, terminals and serial devices.
 */

#include "Inspection/InspectionChannel.h"

#include <string>

/** Accepts lines while the bytes that the other end has not read yet stay below a limit. Never waits. */
class CInspectionFileChannel : public CInspectionChannel
{
public:
    /** The maximum number of unread bytes to keep. */
    static constexpr eC_UInt cuiMostKept = 1U << 20U;

    /** @param iIn, iOut where to read and to write, -1 for nowhere; they may be the same. Not owned. They are
     *         non-blocking until the channel is destroyed.
     */
    CInspectionFileChannel(int iIn, int iOut);

    CInspectionFileChannel(const CInspectionFileChannel&) = delete;
    CInspectionFileChannel& operator=(const CInspectionFileChannel&) = delete;
    ~CInspectionFileChannel() override;

    eC_Bool WriteLine(const eC_Char* pcLine, eC_UInt uiLength) override;
    eC_UInt Read(eC_Char* pcBytes, eC_UInt uiSize) override;
    void Flush() override;

    /** @return false if the other end is gone: no more lines are accepted */
    eC_Bool IsOpen() const { return m_bIsOpen; }

private:
    int m_iIn;
    int m_iOut;
    int m_iFlagsIn;
    int m_iFlagsOut;
    eC_Bool m_bIsOpen = true;
    std::string m_kKept; ///< accepted and not yet written
};

/** Opens a serial device: raw, 8 bits, no parity, one stop bit.
 *  @param pcPath the device, for example /dev/ttyUSB0
 *  @param uiBaud 9600, 19200, 38400, 57600, 115200, 230400, 460800 or 921600
 *  @param kErrorOUT receives the reason on failure
 *  @return the file descriptor, which the caller owns, or -1
 */
int OpenSerialDevice(const char* pcPath, eC_UInt uiBaud, std::string& kErrorOUT);

#endif

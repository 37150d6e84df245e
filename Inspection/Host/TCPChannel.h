// SPDX-License-Identifier: MIT
#ifndef INSPECTION_HOST_TCPCHANNEL_H
#define INSPECTION_HOST_TCPCHANNEL_H

/** @file
 *  A channel to which one reader at a time connects over TCP.
 */

#include "Inspection/Host/FileChannel.h"

#include <memory>
#include <string>

/** Listens for a reader. Lines are refused while none is connected. A new reader replaces the previous one
 *  and is sent everything. Never waits.
 */
class CInspectionTCPChannel : public CInspectionChannel
{
public:
    CInspectionTCPChannel() = default;
    CInspectionTCPChannel(const CInspectionTCPChannel&) = delete;
    CInspectionTCPChannel& operator=(const CInspectionTCPChannel&) = delete;
    ~CInspectionTCPChannel() override;

    /** Starts to listen.
     *  @param uiPort the port, 0 for any that is free
     *  @param kErrorOUT receives the reason on failure
     *  @param pcAddress the IPv4 address to listen at. Anyone who can connect to it sees everything; the
     *         default accepts connections from this machine only.
     *  @return true if it listens
     */
    eC_Bool Listen(eC_UInt uiPort, std::string& kErrorOUT, const char* pcAddress = "127.0.0.1");

    /** @return the port, 0 if it does not listen */
    eC_UInt GetPort() const { return m_uiPort; }

    eC_Bool WriteLine(const eC_Char* pcLine, eC_UInt uiLength) override;
    eC_UInt Read(eC_Char* pcBytes, eC_UInt uiSize) override;
    void Flush() override;
    eC_UInt GetReaders() const override { return m_uiReaders; }

private:
    void Accept();
    void Leave();

    int m_iListener = -1;
    int m_iReader = -1;
    eC_UInt m_uiPort = 0;
    eC_UInt m_uiReaders = 0;
    std::unique_ptr<CInspectionFileChannel> m_pkReader;
};

/** Connects to a listener.
 *  @param kErrorOUT receives the reason on failure
 *  @return the socket, which the caller owns, or -1
 */
int ConnectToInspection(const char* pcAddress, eC_UInt uiPort, std::string& kErrorOUT);

#endif

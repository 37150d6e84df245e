// SPDX-License-Identifier: MIT
#ifndef INSPECTION_HOST_TCPCHANNEL_H
#define INSPECTION_HOST_TCPCHANNEL_H

/** @file
 *  A channel to which one reader at a time connects over TCP.
 */

#include "Inspection/Host/FileChannel.h"

#include <memory>
#include <string>

/** Listens for a reader. While none is connected lines are refused; a new one, which takes the place of the
 * one before, is told everything. Never waits.
 */
class CInspectionTCPChannel : public CInspectionChannel
{
public:
    CInspectionTCPChannel() = default;
    CInspectionTCPChannel(const CInspectionTCPChannel&) = delete;
    CInspectionTCPChannel& operator=(const CInspectionTCPChannel&) = delete;
    ~CInspectionTCPChannel() override;

    /** Begins to listen.
     *  @param uiPort the port, 0 for any that is free
     *  @param kErrorOUT receives why it cannot
     *  @param pcAddress the IPv4 address to listen at. Whoever connects there sees everything; the default
     * lets nobody outside this machine connect.
     *  @return true when it listens
     */
    eC_Bool Listen(eC_UInt uiPort, std::string& kErrorOUT, const char* pcAddress = "127.0.0.1");

    /** @return the port, 0 when it does not listen */
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

/** Connects with a listener.
 *  @param kErrorOUT receives why it cannot
 *  @return the socket, which belongs to the caller, or -1
 */
int ConnectToInspection(const char* pcAddress, eC_UInt uiPort, std::string& kErrorOUT);

#endif

// SPDX-License-Identifier: MIT
#include "Inspection/Host/TCPChannel.h"

#include <arpa/inet.h>
#include <cerrno>
#include <cstring>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace
{
constexpr eC_UInt cuiGreatestPort = 65535;

std::string GetName(const char* pcAddress, eC_UInt uiPort)
{
    return std::string(pcAddress) + ":" + std::to_string(uiPort);
}

/** @return what is wrong with an address, or the empty string */
std::string ReadAddress(const char* pcAddress, eC_UInt uiPort, sockaddr_in& kAddressOUT)
{
    kAddressOUT = {};
    kAddressOUT.sin_family = AF_INET;
    kAddressOUT.sin_port = htons(static_cast<in_port_t>(uiPort));
    if (uiPort > cuiGreatestPort)
    {
        return GetName(pcAddress, uiPort) + ": expected a port from 0 to 65535";
    }
    if (inet_pton(AF_INET, pcAddress, &kAddressOUT.sin_addr) != 1)
    {
        return GetName(pcAddress, uiPort) + ": expected an IPv4 address, for example 127.0.0.1";
    }
    return std::string();
}

std::string Complain(const char* pcAddress, eC_UInt uiPort, const char* pcWhat)
{
    return GetName(pcAddress, uiPort) + ": cannot " + pcWhat + " (" + std::strerror(errno) + ")";
}

sockaddr* AsAddress(sockaddr_in& kAddress)
{
    return reinterpret_cast<sockaddr*>(&kAddress);
}

/** Binds a socket and makes it listen. @return false on failure, with the reason in errno */
eC_Bool ListenAt(int iListener, sockaddr_in& kAddressINOUT)
{
    const int iYes = 1;
    socklen_t uiSize = sizeof(kAddressINOUT);
    return iListener >= 0 && setsockopt(iListener, SOL_SOCKET, SO_REUSEADDR, &iYes, sizeof(iYes)) == 0 &&
           bind(iListener, AsAddress(kAddressINOUT), uiSize) == 0 && listen(iListener, 1) == 0 &&
           getsockname(iListener, AsAddress(kAddressINOUT), &uiSize) == 0;
}

void CloseIfOpen(int iFile)
{
    if (iFile >= 0)
    {
        close(iFile);
    }
}
} // namespace

CInspectionTCPChannel::~CInspectionTCPChannel()
{
    Leave();
    CloseIfOpen(m_iListener);
}

eC_Bool CInspectionTCPChannel::Listen(eC_UInt uiPort, std::string& kErrorOUT, const char* pcAddress)
{
    sockaddr_in kAddress;
    kErrorOUT = m_iListener < 0 ? ReadAddress(pcAddress, uiPort, kAddress)
                                : GetName(pcAddress, uiPort) + ": this channel listens already";
    if (!kErrorOUT.empty())
    {
        return false;
    }
    const int iListener = socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (!ListenAt(iListener, kAddress))
    {
        kErrorOUT = Complain(pcAddress, uiPort, "listen");
        CloseIfOpen(iListener);
        return false;
    }
    m_iListener = iListener;
    m_uiPort = ntohs(kAddress.sin_port);
    return true;
}

eC_Bool CInspectionTCPChannel::WriteLine(const eC_Char* pcLine, eC_UInt uiLength)
{
    return m_pkReader != nullptr && m_pkReader->WriteLine(pcLine, uiLength);
}

eC_UInt CInspectionTCPChannel::Read(eC_Char* pcBytes, eC_UInt uiSize)
{
    return m_pkReader != nullptr ? m_pkReader->Read(pcBytes, uiSize) : 0;
}

void CInspectionTCPChannel::Flush()
{
    Accept();
    if (m_pkReader != nullptr)
    {
        m_pkReader->Flush();
        if (!m_pkReader->IsOpen())
        {
            Leave();
        }
    }
}

void CInspectionTCPChannel::Accept()
{
    const int iReader = m_iListener >= 0 ? accept4(m_iListener, nullptr, nullptr, SOCK_CLOEXEC) : -1;
    if (iReader >= 0)
    {
        Leave();
        m_iReader = iReader;
        m_pkReader = std::make_unique<CInspectionFileChannel>(iReader, iReader);
        ++m_uiReaders;
    }
}

void CInspectionTCPChannel::Leave()
{
    m_pkReader.reset();
    CloseIfOpen(m_iReader);
    m_iReader = -1;
}

int ConnectToInspection(const char* pcAddress, eC_UInt uiPort, std::string& kErrorOUT)
{
    sockaddr_in kAddress;
    kErrorOUT = ReadAddress(pcAddress, uiPort, kAddress);
    if (!kErrorOUT.empty())
    {
        return -1;
    }
    const int iSocket = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (iSocket < 0 || connect(iSocket, AsAddress(kAddress), sizeof(kAddress)) != 0)
    {
        kErrorOUT = Complain(pcAddress, uiPort, "connect");
        CloseIfOpen(iSocket);
        return -1;
    }
    return iSocket;
}

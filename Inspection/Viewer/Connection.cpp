// SPDX-License-Identifier: MIT
#include "Inspection/Viewer/Connection.h"

#include "Inspection/Host/FileChannel.h"
#include "Inspection/Host/TCPChannel.h"
#include "Scenario/Names.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace
{
constexpr eC_UInt cuiGreatestPort = 65535;
constexpr const char* cpcThisMachine = "127.0.0.1";

/** @return the socket, or -1 */
int ConnectTo(const std::string& kTarget, std::size_t uiColon, std::string& kErrorOUT)
{
    const std::string kHost = kTarget.substr(0, uiColon);
    eC_UInt uiPort = 0;
    if (!ParseNumber(kTarget.c_str() + uiColon + 1, cuiGreatestPort, uiPort) || uiPort == 0)
    {
        kErrorOUT = kTarget + ": expected a port from 1 to 65535 after the colon";
        return -1;
    }
    const eC_Bool bIsHere = kHost.empty() || kHost == "localhost";
    return ConnectToInspection(bIsHere ? cpcThisMachine : kHost.c_str(), uiPort, kErrorOUT);
}

/** Waits until something can be read or written, or the other end is gone. */
void WaitFor(int iFile, short iEvents)
{
    pollfd kPolled = {iFile, iEvents, 0};
    poll(&kPolled, 1, -1);
}
} // namespace

CConnection::~CConnection()
{
    if (m_bIsOwned && m_iFile >= 0)
    {
        close(m_iFile);
    }
}

std::string CConnection::Open(const std::string& kTarget, eC_UInt uiBaud)
{
    std::string kError;
    const std::size_t uiColon = kTarget.find(':');
    if (kTarget == "-")
    {
        m_iFile = STDIN_FILENO;
        return kError;
    }
    m_bIsOwned = true;
    m_bTakesInput = true;
    if (uiColon != std::string::npos && kTarget.find('/') == std::string::npos)
    {
        m_iFile = ConnectTo(kTarget, uiColon, kError);
        return kError;
    }
    m_bMustAsk = true;
    m_iFile = OpenSerialDevice(kTarget.c_str(), uiBaud, kError);
    return kError;
}

eC_Bool CConnection::LeaveStandardInput()
{
    const eC_Bool bIsRedirected = m_iFile == STDIN_FILENO && isatty(STDIN_FILENO) == 0;
    const int iTerminal = bIsRedirected ? open("/dev/tty", O_RDWR | O_CLOEXEC) : -1;
    if (iTerminal < 0)
    {
        return false;
    }
    m_iFile = dup(STDIN_FILENO);
    m_bIsOwned = true;
    dup2(iTerminal, STDIN_FILENO);
    close(iTerminal);
    return m_iFile >= 0;
}

eC_Bool CConnection::Read(std::string& kBytesOUT, std::string& kErrorOUT)
{
    char acBytes[4096];
    ssize_t iRead = read(m_iFile, acBytes, sizeof(acBytes));
    while (iRead < 0 && (errno == EAGAIN || errno == EINTR))
    {
        WaitFor(m_iFile, POLLIN);
        iRead = read(m_iFile, acBytes, sizeof(acBytes));
    }
    kBytesOUT.assign(acBytes, iRead > 0 ? static_cast<std::size_t>(iRead) : 0);
    // The other end of a pseudo-terminal that goes is an error of input and output.
    const eC_Bool bHasFailed = iRead < 0 && errno != EIO;
    kErrorOUT = bHasFailed ? std::string("cannot read (") + std::strerror(errno) + ")" : std::string();
    return iRead > 0;
}

std::string CConnection::Write(const std::string& kBytes)
{
    std::size_t uiWritten = 0;
    while (uiWritten < kBytes.size())
    {
        const ssize_t iWritten = write(m_iFile, kBytes.data() + uiWritten, kBytes.size() - uiWritten);
        if (iWritten < 0 && errno != EAGAIN && errno != EINTR)
        {
            return std::string("cannot send (") + std::strerror(errno) + ")";
        }
        uiWritten += iWritten > 0 ? static_cast<std::size_t>(iWritten) : 0;
        if (iWritten <= 0)
        {
            WaitFor(m_iFile, POLLOUT);
        }
    }
    return std::string();
}

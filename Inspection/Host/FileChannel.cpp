// SPDX-License-Identifier: MIT
#include "Inspection/Host/FileChannel.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace
{
struct BaudRate_t
{
    eC_UInt m_uiBaud;
    speed_t m_uiSpeed;
};

constexpr BaudRate_t cakBaudRates[] = {{9600, B9600},     {19200, B19200},   {38400, B38400},
                                       {57600, B57600},   {115200, B115200}, {230400, B230400},
                                       {460800, B460800}, {921600, B921600}};

/** @return the file's previous flags, or -1 */
int SetNotToWait(int iFile)
{
    const int iFlags = iFile >= 0 ? fcntl(iFile, F_GETFL) : -1;
    if (iFlags >= 0)
    {
        fcntl(iFile, F_SETFL, iFlags | O_NONBLOCK);
    }
    return iFlags;
}

void SetFlags(int iFile, int iFlags)
{
    if (iFlags >= 0)
    {
        fcntl(iFile, F_SETFL, iFlags);
    }
}

/** Writes without raising the signal that ends a program whose pipe has no reader. Ignoring the signal would
 *  affect the whole program; this does not.
 */
ssize_t WriteWithoutSignal(int iFile, const std::string& kBytes)
{
    sigset_t kPipe;
    sigset_t kBefore;
    sigset_t kPending;
    sigemptyset(&kPipe);
    sigaddset(&kPipe, SIGPIPE);
    sigpending(&kPending);
    pthread_sigmask(SIG_BLOCK, &kPipe, &kBefore);
    const ssize_t iWritten = write(iFile, kBytes.data(), kBytes.size());
    const int iError = errno;
    if (iWritten < 0 && iError == EPIPE && sigismember(&kPending, SIGPIPE) == 0)
    {
        const timespec kAtOnce = {0, 0};
        sigtimedwait(&kPipe, nullptr, &kAtOnce);
    }
    pthread_sigmask(SIG_SETMASK, &kBefore, nullptr);
    errno = iError;
    return iWritten;
}

const BaudRate_t* FindBaudRate(eC_UInt uiBaud)
{
    for (const BaudRate_t& kRate : cakBaudRates)
    {
        if (kRate.m_uiBaud == uiBaud)
        {
            return &kRate;
        }
    }
    return nullptr;
}

/** @return false if the file is no serial device */
eC_Bool SetSerialLine(int iFile, speed_t uiSpeed)
{
    termios kLine;
    if (tcgetattr(iFile, &kLine) != 0)
    {
        return false;
    }
    cfmakeraw(&kLine);
    kLine.c_cflag |= CLOCAL | CREAD;
    return cfsetispeed(&kLine, uiSpeed) == 0 && cfsetospeed(&kLine, uiSpeed) == 0 &&
           tcsetattr(iFile, TCSANOW, &kLine) == 0;
}
} // namespace

CInspectionFileChannel::CInspectionFileChannel(int iIn, int iOut)
    : m_iIn(iIn),
      m_iOut(iOut),
      m_iFlagsIn(SetNotToWait(iIn)),
      m_iFlagsOut(iOut != iIn ? SetNotToWait(iOut) : -1)
{
}

CInspectionFileChannel::~CInspectionFileChannel()
{
    CInspectionFileChannel::Flush();
    SetFlags(m_iOut, m_iFlagsOut);
    SetFlags(m_iIn, m_iFlagsIn);
}

eC_Bool CInspectionFileChannel::WriteLine(const eC_Char* pcLine, eC_UInt uiLength)
{
    if (!m_bIsOpen || m_iOut < 0 || m_kKept.size() + uiLength > cuiMostKept)
    {
        return false;
    }
    m_kKept.append(pcLine, uiLength);
    return true;
}

eC_UInt CInspectionFileChannel::Read(eC_Char* pcBytes, eC_UInt uiSize)
{
    const ssize_t iRead = m_iIn >= 0 ? read(m_iIn, pcBytes, uiSize) : 0;
    return iRead > 0 ? static_cast<eC_UInt>(iRead) : 0;
}

void CInspectionFileChannel::Flush()
{
    while (m_bIsOpen && !m_kKept.empty())
    {
        const ssize_t iWritten = WriteWithoutSignal(m_iOut, m_kKept);
        if (iWritten > 0)
        {
            m_kKept.erase(0, static_cast<std::size_t>(iWritten));
        }
        else if (iWritten < 0 && (errno == EAGAIN || errno == EINTR))
        {
            return;
        }
        else
        {
            m_bIsOpen = false;
            m_kKept.clear();
        }
    }
}

int OpenSerialDevice(const char* pcPath, eC_UInt uiBaud, std::string& kErrorOUT)
{
    const BaudRate_t* const pkRate = FindBaudRate(uiBaud);
    if (pkRate == nullptr)
    {
        kErrorOUT = std::string(pcPath) + ": expected 9600 to 921600 baud, found " + std::to_string(uiBaud);
        return -1;
    }
    const int iFile = open(pcPath, O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (iFile < 0)
    {
        kErrorOUT = std::string(pcPath) + ": cannot open (" + std::strerror(errno) + ")";
        return -1;
    }
    if (!SetSerialLine(iFile, pkRate->m_uiSpeed))
    {
        kErrorOUT = std::string(pcPath) + ": expected a serial device (" + std::strerror(errno) + ")";
        close(iFile);
        return -1;
    }
    return iFile;
}

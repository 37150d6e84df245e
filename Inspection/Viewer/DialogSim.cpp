// SPDX-License-Identifier: MIT
#include "Inspection/Viewer/ChangePrinter.h"
#include "Inspection/Viewer/Connection.h"
#include "Scenario/Names.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <poll.h>
#include <string>
#include <unistd.h>

namespace
{
constexpr int ciFailure = 1;
constexpr int ciWrongUsage = 2;
constexpr int ciQuiet = 300; ///< milliseconds without a line, after which a program has told everything
constexpr eC_UInt cuiUsualBaud = 115200;
constexpr eC_UInt cuiMostBaud = 921600;

constexpr const char* cpcHelp =
    "Usage: dialogsim --attach TARGET [--baud RATE]\n"
    "\n"
    "Looks into a running program and prints everything that changes, each line with the program's time.\n"
    "\n"
    "  TARGET       host:port, or :port for this machine; the path of a serial device; or - for lines\n"
    "               that arrive on standard input\n"
    "  --baud RATE  of a serial device, 9600 to 921600; 115200 without it\n"
    "\n"
    "What you type goes to the program, line by line, if it takes commands; Docs/Inspection.md lists them. "
    "At\n"
    "the end of the input dialogsim waits for the replies, and leaves.\n";

int Fail(int iStatus, const std::string& kMessage)
{
    std::fprintf(stderr, "dialogsim: %s\n", kMessage.c_str());
    return iStatus;
}

/** @return what is wrong with the arguments, or the empty string */
std::string ReadArguments(char** ppcArguments, std::string& kTargetOUT, eC_UInt& uiBaudOUT)
{
    // Each option has a value.
    for (++ppcArguments; *ppcArguments != nullptr; ppcArguments += 2)
    {
        const std::string kOption = *ppcArguments;
        const char* const pcValue = ppcArguments[1];
        if (kOption != "--attach" && kOption != "--baud")
        {
            return "unknown argument " + kOption;
        }
        if (pcValue == nullptr || *pcValue == '\0')
        {
            return kOption + ": expected a value";
        }
        if (kOption == "--baud" && !ParseNumber(pcValue, cuiMostBaud, uiBaudOUT))
        {
            return kOption + ": expected a number from 9600 to 921600, found " + pcValue;
        }
        if (kOption == "--attach")
        {
            kTargetOUT = pcValue;
        }
    }
    return kTargetOUT.empty() ? "expected --attach and where the program is" : "";
}

/** Passes lines in both directions. */
class CSession
{
public:
    explicit CSession(CConnection& kConnection)
        : m_kConnection(kConnection), m_kPrinter(m_kReader.GetState()), m_bTyping(kConnection.TakesInput())
    {
        m_kReader.SetListener(&m_kPrinter);
    }

    /** @return the exit status */
    int Run()
    {
        if (m_kConnection.MustAsk())
        {
            // Whatever arrives first may be the end of a line.
            m_bIsFirstLine = true;
            Send("state\n");
        }
        while (!m_bIsOver && !IsAllTold())
        {
            pollfd akPolled[] = {{m_kConnection.GetFile(), POLLIN, 0},
                                 {m_bTyping ? STDIN_FILENO : -1, POLLIN, 0}};
            const int iPolled = poll(akPolled, 2, IsAnswered() ? ciQuiet : -1);
            m_bIsQuiet = iPolled == 0;
            if (akPolled[0].revents != 0)
            {
                Receive();
            }
            if (akPolled[1].revents != 0)
            {
                Type();
            }
        }
        return m_iStatus;
    }

private:
    /** @return true if no input is left and each line has its reply */
    eC_Bool IsAnswered() const
    {
        return m_kConnection.TakesInput() && !m_bTyping && m_kPrinter.GetReplies() >= m_uiSent;
    }

    eC_Bool IsAllTold() const { return m_bIsQuiet && IsAnswered(); }

    void Receive()
    {
        std::string kBytes;
        std::string kError;
        m_bIsOver = !m_kConnection.Read(kBytes, kError);
        if (!kError.empty())
        {
            Complain(kError);
        }
        if (m_bIsFirstLine)
        {
            const std::size_t uiEnd = kBytes.find('{');
            kBytes.erase(0, uiEnd);
            m_bIsFirstLine = kBytes.empty();
        }
        for (kError = m_kReader.Take(kBytes); !kError.empty(); kError = m_kReader.Take(std::string()))
        {
            Complain(kError);
        }
        if (m_bIsOver && m_kReader.IsInLine())
        {
            Complain("the last line is not complete");
        }
        const std::string kText = m_kPrinter.TakeText();
        if (std::fwrite(kText.data(), 1, kText.size(), stdout) != kText.size() || std::fflush(stdout) != 0)
        {
            Complain("cannot write what has changed");
            m_bIsOver = true;
        }
    }

    void Type()
    {
        char acBytes[4096];
        const ssize_t iRead = read(STDIN_FILENO, acBytes, sizeof(acBytes));
        m_bTyping = iRead > 0 || (iRead < 0 && errno == EINTR);
        m_kTyped.append(acBytes, iRead > 0 ? static_cast<std::size_t>(iRead) : 0);
        if (!m_bTyping && !m_kTyped.empty())
        {
            m_kTyped += '\n';
        }
        for (std::size_t uiEnd = m_kTyped.find('\n'); uiEnd != std::string::npos; uiEnd = m_kTyped.find('\n'))
        {
            Send(m_kTyped.substr(0, uiEnd + 1));
            m_kTyped.erase(0, uiEnd + 1);
        }
    }

    /** Sends a line; empty lines and comments get no reply. */
    void Send(const std::string& kLine)
    {
        const std::size_t uiText = kLine.find_first_not_of(" \t\r\n");
        if (uiText != std::string::npos && kLine[uiText] != '#')
        {
            const std::string kError = m_kConnection.Write(kLine);
            m_bIsOver = m_bIsOver || !kError.empty();
            ++m_uiSent;
            if (!kError.empty())
            {
                Complain(kError);
            }
        }
    }

    void Complain(const std::string& kWhat) { m_iStatus = Fail(ciFailure, kWhat); }

    CConnection& m_kConnection;
    CInspectionReader m_kReader;
    CChangePrinter m_kPrinter;
    std::string m_kTyped; ///< the line that is not complete yet
    eC_UInt m_uiSent = 0; ///< lines that get a reply
    eC_Bool m_bTyping;
    eC_Bool m_bIsFirstLine = false;
    eC_Bool m_bIsQuiet = false;
    eC_Bool m_bIsOver = false;
    int m_iStatus = 0;
};
} // namespace

int main(int iArguments, char** ppcArguments)
{
    if (iArguments == 2 && std::strcmp(ppcArguments[1], "--help") == 0)
    {
        std::fputs(cpcHelp, stdout);
        return 0;
    }
    std::string kTarget;
    eC_UInt uiBaud = cuiUsualBaud;
    const std::string kWrong = ReadArguments(ppcArguments, kTarget, uiBaud);
    if (!kWrong.empty())
    {
        return Fail(ciWrongUsage, kWrong + "; see --help");
    }
    // A program that goes while a line is sent must not end this one without a word.
    std::signal(SIGPIPE, SIG_IGN);
    CConnection kConnection;
    const std::string kError = kConnection.Open(kTarget, uiBaud);
    return kError.empty() ? CSession(kConnection).Run() : Fail(ciFailure, kError);
}

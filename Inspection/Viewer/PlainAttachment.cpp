// SPDX-License-Identifier: MIT
#include "Inspection/Viewer/PlainAttachment.h"

#include "Inspection/Viewer/Attachment.h"
#include "Inspection/Viewer/ChangePrinter.h"

#include <cerrno>
#include <cstdio>
#include <poll.h>
#include <unistd.h>

namespace
{
constexpr int ciQuiet = 300; ///< milliseconds without a line, after which a program has told everything

/** Prints what comes, and sends what is typed. */
class CSession
{
public:
    CSession(CConnection& kConnection, const std::string& kProgram)
        : m_kConnection(kConnection),
          m_kProgram(kProgram),
          m_kAttachment(kConnection),
          m_kPrinter(m_kAttachment.GetReader().GetState()),
          m_bTyping(kConnection.TakesInput())
    {
        m_kAttachment.GetReader().SetListener(&m_kPrinter);
    }

    /** @return false if there was something to complain about */
    eC_Bool Run()
    {
        EndIfWrong(m_kAttachment.Begin());
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
        return !m_bHasComplained;
    }

private:
    /** @return true if no input is left and each line has its reply */
    eC_Bool IsAnswered() const
    {
        return m_kConnection.TakesInput() && !m_bTyping && m_kPrinter.GetReplies() >= m_kAttachment.GetSent();
    }

    eC_Bool IsAllTold() const { return m_bIsQuiet && IsAnswered(); }

    void Receive()
    {
        std::vector<std::string> kFaults;
        m_bIsOver = !m_kAttachment.Receive(kFaults);
        for (const std::string& kFault : kFaults)
        {
            Complain(kFault);
        }
        const std::string kText = m_kPrinter.TakeText();
        if (std::fwrite(kText.data(), 1, kText.size(), stdout) != kText.size() || std::fflush(stdout) != 0)
        {
            EndIfWrong("cannot write what has changed");
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
            EndIfWrong(m_kAttachment.Send(m_kTyped.substr(0, uiEnd)));
            m_kTyped.erase(0, uiEnd + 1);
        }
    }

    void EndIfWrong(const std::string& kWhat)
    {
        if (!kWhat.empty())
        {
            m_bIsOver = true;
            Complain(kWhat);
        }
    }

    void Complain(const std::string& kWhat)
    {
        m_bHasComplained = true;
        std::fprintf(stderr, "%s: %s\n", m_kProgram.c_str(), kWhat.c_str());
    }

    CConnection& m_kConnection;
    std::string m_kProgram;
    CAttachment m_kAttachment;
    CChangePrinter m_kPrinter;
    std::string m_kTyped; ///< the line that is not complete yet
    eC_Bool m_bTyping;
    eC_Bool m_bIsQuiet = false;
    eC_Bool m_bIsOver = false;
    eC_Bool m_bHasComplained = false;
};
} // namespace

eC_Bool AttachInPlainText(CConnection& kConnection, const std::string& kProgram)
{
    return CSession(kConnection, kProgram).Run();
}

// SPDX-License-Identifier: MIT
#include "Simulator/Attach/RunAttached.h"

#include "Inspection/Viewer/Attachment.h"
#include "Simulator/Attach/AttachedView.h"
#include "Simulator/Terminal/Terminal.h"

#include <poll.h>

namespace
{
constexpr eC_UInt cuiFrameTime = 40; ///< milliseconds
constexpr eC_UInt cuiMostReads = 64; ///< before the next frame, so that a program that never stops is shown

/** A program and its viewer. */
class CTerminalSession
{
public:
    CTerminalSession(CConnection& kConnection, const std::string& kName)
        : m_kConnection(kConnection),
          m_kAttachment(kConnection),
          m_kDesk(m_kAttachment.GetReader(), kName, kConnection.TakesInput())
    {
        m_kAttachment.GetReader().SetListener(&m_kDesk);
    }

    void Run(CTerminal& kTerminal)
    {
        EndIfWrong(m_kAttachment.Begin());
        while (!m_kDesk.IsOver() && CTerminal::GetSignal() == 0)
        {
            kTerminal.Show(DrawAttached(m_kDesk, kTerminal.GetWidth(), kTerminal.GetHeight()));
            TakeTerminalInput(kTerminal, cuiFrameTime,
                              [this, &kTerminal](const TerminalInput_t& kInput)
                              {
                                  TakeInput(kInput, kTerminal.GetHeight());
                                  return !m_kDesk.IsOver();
                              });
            for (const std::string& kLine : m_kDesk.TakeLines())
            {
                EndIfWrong(m_kDesk.IsGone() ? std::string() : m_kAttachment.Send(kLine));
            }
            Receive();
        }
    }

    const std::string& GetFault() const { return m_kFault; }

private:
    void TakeInput(const TerminalInput_t& kInput, eC_Int iHeight)
    {
        if (kInput.m_eKind == TerminalInput_t::INPUT_KEY)
        {
            m_kDesk.PressKey(kInput.m_kKey);
        }
        else if (kInput.m_eKind == TerminalInput_t::INPUT_WHEEL)
        {
            ScrollAttached(m_kDesk, iHeight, kInput.m_iY, kInput.m_iLines);
        }
    }

    void Receive()
    {
        for (eC_UInt uiRead = 0; uiRead < cuiMostReads && !m_kDesk.IsGone(); ++uiRead)
        {
            pollfd kPolled = {m_kConnection.GetFile(), POLLIN, 0};
            if (poll(&kPolled, 1, 0) <= 0)
            {
                return;
            }
            std::vector<std::string> kFaults;
            const eC_Bool bIsThere = m_kAttachment.Receive(kFaults);
            for (const std::string& kFault : kFaults)
            {
                m_kFault = kFault;
                m_kDesk.Complain(kFault);
            }
            if (!bIsThere)
            {
                m_kDesk.SetGone();
            }
        }
    }

    void EndIfWrong(const std::string& kFault)
    {
        if (!kFault.empty())
        {
            m_kFault = kFault;
            m_kDesk.Complain(kFault);
            m_kDesk.SetGone();
        }
    }

    CConnection& m_kConnection;
    CAttachment m_kAttachment;
    CAttachedDesk m_kDesk;
    std::string m_kFault;
};
} // namespace

eC_Bool AttachInTerminal(CConnection& kConnection, const std::string& kName, std::string& kFaultOUT)
{
    CTerminal kTerminal;
    if (!kTerminal.IsUsable())
    {
        return false;
    }
    CTerminalSession kSession(kConnection, kName);
    kSession.Run(kTerminal);
    kFaultOUT = kSession.GetFault();
    return true;
}

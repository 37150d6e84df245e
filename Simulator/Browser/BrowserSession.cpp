// SPDX-License-Identifier: MIT
#include "Simulator/Browser/BrowserSession.h"

#include "Inspection/InspectionLine.h"
#include "Simulator/Browser/ScreenLine.h"

#include <algorithm>

namespace
{
void WriteCommands(CInspectionLine& kLine, const CSimulation& kSimulation)
{
    kLine.BeginList("commands");
    for (const std::string& kUsage : kSimulation.GetUsages())
    {
        kLine.BeginObject();
        kLine.Text("usage", kUsage.c_str());
        kLine.EndObject();
    }
    kLine.EndList();
}

void WriteDevice(CInspectionLine& kLine, const Device_t& kDevice)
{
    kLine.Text("title", kDevice.m_pcName);
    kLine.Integer("width", kDevice.m_iWidth);
    kLine.Integer("height", kDevice.m_iHeight);
    kLine.Integer("columnwidth", kDevice.m_iColumnWidth);
    kLine.Integer("rowheight", kDevice.m_iRowHeight);
    kLine.BeginList("keys");
    for (eC_UInt uiKey = 0; uiKey < kDevice.m_uiKeys; ++uiKey)
    {
        const DeviceKey_t& kKey = kDevice.m_pkKeys[uiKey];
        kLine.BeginObject();
        kLine.Text("name", kKey.m_pcName);
        kLine.Text("label", kKey.m_pcLabel);
        kLine.Text("keyboard", kKey.m_pcKeyboard);
        kLine.EndObject();
    }
    kLine.EndList();
}
} // namespace

CBrowserSession::CBrowserSession(CSimulatedApplication& kApplication, const OfferedLines_t& kOffered)
    : m_kOffered(kOffered),
      m_kMemory(4096, '\0'),
      m_kSimulation(kApplication, [this](const std::string& kLine) { m_kAnswer += kLine + "\n"; })
{
    m_kFirstState.swap(m_kAnswer);
}

const std::string& CBrowserSession::Describe()
{
    Begin();
    WriteLine("device",
              [this](CInspectionLine& kLine)
              {
                  WriteDevice(kLine, m_kSimulation.GetApplication().GetDevice());
                  WriteCommands(kLine, m_kSimulation);
                  kLine.BeginList("offered");
                  for (eC_UInt uiLine = 0; uiLine < m_kOffered.m_uiNumber; ++uiLine)
                  {
                      kLine.BeginObject();
                      kLine.Text("label", m_kOffered.m_pkLines[uiLine].m_pcLabel);
                      kLine.Text("line", m_kOffered.m_pkLines[uiLine].m_pcLine);
                      kLine.EndObject();
                  }
                  kLine.EndList();
              });
    m_kAnswer += m_kFirstState;
    m_kFirstState.clear();
    return End();
}

const std::string& CBrowserSession::Run(const std::string& kLine)
{
    Begin();
    return End(m_kSimulation.Run(kLine));
}

const std::string& CBrowserSession::Advance(eC_UInt uiMilliseconds)
{
    Begin();
    return End(m_kSimulation.Advance(uiMilliseconds, cuiLongestAdvance));
}

const std::string& CBrowserSession::GoTo(eC_UInt uiPosition)
{
    Begin();
    m_kSimulation.GoTo(std::min<std::size_t>(uiPosition, m_kSimulation.GetLines().size()));
    return End();
}

const std::string& CBrowserSession::Restart()
{
    Begin();
    m_kSimulation.Restart();
    return End();
}

const std::string& CBrowserSession::Look(CSimulatedSource& kSource)
{
    static const eC_Char* const s_apcNews[] = {"none", "changed", "mistake"};
    Begin();
    std::string kText;
    const CSimulatedSource::ENews eNews = kSource.Look(m_kSimulation, kText);
    WriteLine("source",
              [eNews, &kText](CInspectionLine& kLine)
              {
                  kLine.Text("news", s_apcNews[eNews]);
                  kLine.Text("text", kText.c_str());
              });
    return End();
}

const std::string& CBrowserSession::GetLines()
{
    Begin();
    for (const std::string& kLine : m_kSimulation.GetLines())
    {
        m_kAnswer += kLine + "\n";
    }
    return m_kAnswer;
}

/** Adds a line to the answer, however long it is. */
template <typename Write_t>
void CBrowserSession::WriteLine(const eC_Char* pcType, Write_t fnWrite)
{
    for (;;)
    {
        CInspectionLine kLine(m_kMemory.data(), static_cast<eC_UInt>(m_kMemory.size()));
        kLine.Begin();
        kLine.Text("type", pcType);
        kLine.Number("time", m_kSimulation.GetTime());
        fnWrite(kLine);
        kLine.End();
        if (!kLine.IsTooLong())
        {
            m_kAnswer.append(kLine.GetText(), kLine.GetLength());
            return;
        }
        m_kMemory.resize(m_kMemory.size() * 2);
    }
}

const std::string& CBrowserSession::End()
{
    if (m_kChanges.IsChanged())
    {
        m_kChanges.Settle();
        WriteLine("screen", [this](CInspectionLine& kLine)
                  { WriteScreen(kLine, m_kSimulation.GetApplication().GetDevice()); });
    }
    WriteLine("session",
              [this](CInspectionLine& kLine)
              {
                  const std::size_t uiPosition = m_kSimulation.GetPosition();
                  kLine.Number("lines", static_cast<eC_UInt>(m_kSimulation.GetLines().size()));
                  kLine.Number("position", static_cast<eC_UInt>(uiPosition));
                  kLine.Text("line", uiPosition > 0 ? m_kSimulation.GetLines()[uiPosition - 1].c_str() : "");
              });
    return m_kAnswer;
}

const std::string& CBrowserSession::End(const SimulatedResult_t& kResult)
{
    WriteLine("result",
              [&kResult](CInspectionLine& kLine)
              {
                  kLine.Flag("executed", kResult.m_bIsExecuted);
                  kLine.Text("text", kResult.m_kText.c_str());
              });
    return End();
}

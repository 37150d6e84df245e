// SPDX-License-Identifier: MIT
#include "Inspection/InspectionLink.h"

#include "Core/GUITimer.h"
#include "Scenario/Names.h"

#include <cstring>
#include <exception>

namespace
{
constexpr eC_UInt cuiGreatestLine = 0xFFFFFFFFU;
constexpr eC_UInt cuiReplyEnd = 16; ///< what follows a reply's text

/** @return why a text cannot be executed, or null */
const eC_Char* FindFault(const eC_Char* pcText, eC_UInt uiLength)
{
    eC_UInt uiByte = 0;
    while (uiByte < uiLength)
    {
        const auto ucByte = static_cast<unsigned char>(pcText[uiByte]);
        const eC_UInt uiCharacter = GetCharacterLength(pcText + uiByte, uiLength - uiByte);
        if (uiCharacter == 0)
        {
            return "a line in UTF-8";
        }
        if ((ucByte < ' ' && ucByte != '\t') || ucByte == 0x7F)
        {
            return "a line of printable characters";
        }
        uiByte += uiCharacter;
    }
    return nullptr;
}

/** Executes a text. An exception becomes the result. */
void ExecuteAndCatch(CInspectionHandler& kHandler, eC_Char* pcText, CInspectionReply& kReply)
{
    try
    {
        kHandler.Execute(pcText, kReply);
    }
    catch (int iValue)
    {
        kReply.Add("throws int ");
        kReply.AddInteger(iValue);
    }
    catch (const std::exception& kException)
    {
        kReply.Add("throws ");
        kReply.Add(kException.what());
    }
    catch (...)
    {
        kReply.Add("throws");
    }
}
} // namespace

CInspectionLink::CInspectionLink(const CGUIDialogManager& kManager, CInspectionChannel& kChannel,
                                 eC_Char* pcMemory, eC_UInt uiSize)
    : m_kInspector(kManager),
      m_kChannel(kChannel),
      m_kLine(pcMemory, uiSize),
      m_pkNextSink(CGUITrace::GetInstance().GetSink()),
      m_uiReaders(kChannel.GetReaders())
{
    CGUITrace::GetInstance().SetSink(this);
}

CInspectionLink::~CInspectionLink()
{
    CGUITrace::GetInstance().SetSink(m_pkNextSink);
}

void CInspectionLink::AllowInput(CInspectionHandler& kHandler, eC_Char* pcMemory, eC_UInt uiSize)
{
    m_pkHandler = &kHandler;
    m_pcInput = pcMemory;
    m_uiInputSize = uiSize;
}

void CInspectionLink::Run()
{
    const eC_UInt uiReaders = m_kChannel.GetReaders();
    if (uiReaders != m_uiReaders)
    {
        m_uiReaders = uiReaders;
        m_uiInput = 0;
        m_uiInputLines = 0;
        m_bIsRefused = false;
        SendAll();
    }
    TakeInput();
    SendStates();
    m_kChannel.Flush();
}

void CInspectionLink::SendAll()
{
    m_uiSent = 0;
    m_uiPartly = cuiInspectionParts;
}

// --- Lines ---------------------------------------------------------------------------------------------

void CInspectionLink::BeginLine(const eC_Char* pcType)
{
    m_kLine.Begin();
    m_kLine.Text("type", pcType);
    m_kLine.Number("time", GETTIMER.GetTime());
    if (m_uiDropped > 0)
    {
        m_kLine.Number("dropped", m_uiDropped);
    }
}

eC_Bool CInspectionLink::SendLine()
{
    m_kLine.End();
    const eC_Bool bIsSent =
        !m_kLine.IsTooLong() && m_kChannel.WriteLine(m_kLine.GetText(), m_kLine.GetLength());
    m_uiDropped = bIsSent ? 0 : m_uiDropped;
    return bIsSent;
}

void CInspectionLink::Write(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
                            const eC_String& kLine)
{
    const eC_Char* const pcPrefix = kPrefix.GetText();
    BeginLine("trace");
    m_kLine.Text("level", pcPrefix, static_cast<eC_UInt>(std::strcspn(pcPrefix, ":")));
    m_kLine.Text("text", kMessage.GetText());
    eC_UInt uiLine = 0;
    if (ParseNumber(kLine.GetText(), cuiGreatestLine, uiLine))
    {
        m_kLine.Text("file", kFile.GetText());
        m_kLine.Number("line", uiLine);
    }
    DropUnlessSent(SendLine());
    if (m_pkNextSink != nullptr)
    {
        m_pkNextSink->Write(kPrefix, kMessage, kFile, kLine);
    }
}

void CInspectionLink::OnHazard(const HazardReport_t& kReport)
{
    BeginLine("trace");
    m_kLine.Text("level", "HAZARD");
    m_kLine.Text("hazard", kReport.m_pcName);
    m_kLine.Handle("about", kReport.m_eID);
    m_kLine.Text("text", kReport.m_pcSentence);
    DropUnlessSent(SendLine());
    // Flush now: after such a hazard the main loop may never get another turn.
    m_kChannel.Flush();
}

// --- Recording -----------------------------------------------------------------------------------------

void CInspectionLink::RecordStart()
{
    BeginLine("start");
    // The size decides how many lines a part has.
    m_kLine.Number("memory", m_kLine.GetSize());
    DropUnlessSent(SendLine());
}

void CInspectionLink::RecordInput(const eC_Char* pcLine)
{
    BeginLine("input");
    m_kLine.Text("text", pcLine);
    DropUnlessSent(SendLine());
}

void CInspectionLink::RecordTurn()
{
    BeginLine("turn");
    DropUnlessSent(SendLine());
}

// --- Input ---------------------------------------------------------------------------------------------

void CInspectionLink::TakeInput()
{
    // A command may run the main loop itself; the lines after it must not run before it is done.
    if (m_bIsExecuting)
    {
        return;
    }
    // Input that arrives faster than it is executed waits for the next turn.
    constexpr eC_UInt cuiMostPerTurn = 256;
    eC_Char cByte = '\0';
    for (eC_UInt uiByte = 0; uiByte < cuiMostPerTurn && m_kChannel.Read(&cByte, 1) == 1; ++uiByte)
    {
        TakeByte(cByte);
    }
}

void CInspectionLink::TakeByte(eC_Char cByte)
{
    if (cByte == '\n')
    {
        m_uiInputLines += m_bIsRefused ? 0U : 1U;
        if (!m_bIsRefused)
        {
            ExecuteLine();
        }
        m_uiInput = 0;
        m_bIsRefused = false;
    }
    else if (!m_bIsRefused && m_pkHandler == nullptr)
    {
        RefuseRest("no line: this program takes no commands");
    }
    else if (!m_bIsRefused && m_uiInput + 1 >= m_uiInputSize)
    {
        RefuseRest("a shorter line");
    }
    else if (!m_bIsRefused)
    {
        m_pcInput[m_uiInput++] = cByte;
    }
}

void CInspectionLink::RefuseRest(const eC_Char* pcExpected)
{
    CInspectionReply kReply;
    kReply.Refuse(pcExpected);
    ++m_uiInputLines;
    m_bIsRefused = true;
    Reply(kReply);
}

void CInspectionLink::ExecuteLine()
{
    if (m_pkHandler == nullptr || m_uiInput == 0)
    {
        return;
    }
    m_uiInput -= m_pcInput[m_uiInput - 1] == '\r' ? 1U : 0U;
    m_pcInput[m_uiInput] = '\0';
    const eC_Char* const pcFault = FindFault(m_pcInput, m_uiInput);
    CInspectionReply kReply;
    if (pcFault != nullptr)
    {
        kReply.Refuse(pcFault);
        Reply(kReply);
        return;
    }
    eC_Char* const pcText = m_pcInput + std::strspn(m_pcInput, " \t");
    if (*pcText != '\0' && *pcText != '#')
    {
        ExecuteText(pcText, kReply);
        Reply(kReply);
    }
}

void CInspectionLink::ExecuteText(eC_Char* pcText, CInspectionReply& kReply)
{
    constexpr const eC_Char* cpcState = "state";
    const std::size_t uiWord = std::strcspn(pcText, " \t");
    if (uiWord == std::strlen(cpcState) && std::strncmp(pcText, cpcState, uiWord) == 0)
    {
        pcText += uiWord + std::strspn(pcText + uiWord, " \t");
        *pcText == '\0' ? SendAll() : kReply.Refuse(cpcState, pcText);
        return;
    }
    m_bIsExecuting = true;
    ExecuteAndCatch(*m_pkHandler, pcText, kReply);
    m_bIsExecuting = false;
}

void CInspectionLink::Reply(const CInspectionReply& kReply)
{
    WriteReply(kReply, kReply.GetText(), kReply.IsCut());
    if (m_kLine.IsTooLong())
    {
        // Even if only this fits, it is still a reply.
        WriteReply(kReply, "", true);
    }
    DropUnlessSent(SendLine());
}

void CInspectionLink::WriteReply(const CInspectionReply& kReply, const eC_Char* pcText, eC_Bool bIsCut)
{
    BeginLine("reply");
    m_kLine.Number("line", m_uiInputLines);
    m_kLine.Reserve(cuiReplyEnd);
    m_kLine.Text(kReply.IsRefusal() ? "error" : "result", pcText);
    m_kLine.Reserve(0);
    if (bIsCut)
    {
        m_kLine.Flag("cut", true);
    }
}

// --- State ---------------------------------------------------------------------------------------------

void CInspectionLink::SendStates()
{
    for (eC_UInt uiPart = 0; uiPart < cuiInspectionParts; ++uiPart)
    {
        if (!SendPart(uiPart))
        {
            return;
        }
    }
}

eC_Bool CInspectionLink::SendPart(eC_UInt uiPart)
{
    const eC_UInt uiBit = 1U << uiPart;
    const std::uint64_t uiFingerprint = GetPartFingerprint(m_kInspector, uiPart);
    if ((m_uiSent & uiBit) != 0 && m_auiSent[uiPart] == uiFingerprint)
    {
        return true;
    }
    m_uiSent &= ~uiBit;
    if (m_uiPartly != uiPart || m_uiPartlySent != uiFingerprint)
    {
        m_uiPartly = uiPart;
        m_uiPartlySent = uiFingerprint;
        m_uiNextItem = 0;
    }
    eC_Bool bMore = true;
    while (bMore)
    {
        BeginLine("state");
        const StateLineResult_t kResult = WriteStatePart(m_kInspector, m_kLine, uiPart, m_uiNextItem);
        bMore = kResult.m_bMore;
        if (bMore && kResult.m_uiItems == 0)
        {
            // This single item is longer than the memory.
            ++m_uiDropped;
            ++m_uiNextItem;
        }
        else if (!SendLine())
        {
            return false;
        }
        else
        {
            m_uiNextItem += kResult.m_uiItems;
        }
    }
    m_auiSent[uiPart] = uiFingerprint;
    m_uiSent |= uiBit;
    m_uiPartly = cuiInspectionParts;
    return true;
}

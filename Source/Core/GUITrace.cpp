// SPDX-License-Identifier: MIT
#include "Core/GUITrace.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <new>

namespace
{
/** Passes an entry in pieces to a function, as FormatTraceEntry formats it.
 *  @param fnTake called with the address and the length of each piece, which may be 0
 */
template <typename Take_t>
void ForEachPiece(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
                  const eC_String& kLine, Take_t fnTake)
{
    eC_UInt uiMessage = kMessage.GetLength();
    while (uiMessage > 0 && kMessage.GetText()[uiMessage - 1] == '\n')
    {
        --uiMessage;
    }

    fnTake(kPrefix.GetText(), kPrefix.GetLength());
    if (kFile.IsEmpty() && uiMessage < kMessage.GetLength())
    {
        // The message's own first line break saves a piece.
        fnTake(kMessage.GetText(), uiMessage + 1);
        return;
    }
    fnTake(kMessage.GetText(), uiMessage);
    if (!kFile.IsEmpty())
    {
        fnTake(" (", 2);
        fnTake(kFile.GetText(), kFile.GetLength());
        fnTake(":", 1);
        fnTake(kLine.GetText(), kLine.GetLength());
        fnTake(")", 1);
    }
    fnTake("\n", 1);
}

/** @return the bytes as a string; to the constructor a length of 0 means up to the terminating zero */
eC_String GetString(const eC_Char* pcText, eC_UInt uiLength)
{
    return uiLength == 0 ? eC_String() : eC_String(pcText, uiLength);
}

/** @return the default sink. It is never destroyed, so that static objects can still
 *          log from their destructors.
 */
CGUITraceSink& GetDefaultSink()
{
    alignas(CGUITraceStandardError) static unsigned char s_aucMemory[sizeof(CGUITraceStandardError)];
    static CGUITraceSink& s_kSink = *new (s_aucMemory) CGUITraceStandardError;
    return s_kSink;
}
} // namespace

eC_String FormatTraceEntry(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
                           const eC_String& kLine)
{
    eC_String kEntry;
    ForEachPiece(kPrefix, kMessage, kFile, kLine,
                 [&kEntry](const eC_Char* pcText, eC_UInt uiLength)
                 { kEntry += GetString(pcText, uiLength); });
    return kEntry;
}

void CGUITraceStandardError::Write(const eC_String& kPrefix, const eC_String& kMessage,
                                   const eC_String& kFile, const eC_String& kLine)
{
    ForEachPiece(kPrefix, kMessage, kFile, kLine,
                 [](const eC_Char* pcText, eC_UInt uiLength) { std::fwrite(pcText, 1, uiLength, stderr); });
}

CGUITraceRing::CGUITraceRing(eC_Char* pcMemory, eC_UInt uiSize) : m_pcMemory(pcMemory), m_uiSize(uiSize)
{
    Clear();
}

void CGUITraceRing::Write(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
                          const eC_String& kLine)
{
    if (m_uiSize == 0)
    {
        return;
    }
    ForEachPiece(kPrefix, kMessage, kFile, kLine,
                 [this](const eC_Char* pcText, eC_UInt uiLength) { Append(pcText, uiLength); });
}

eC_String CGUITraceRing::GetText() const
{
    if (m_bIsFull)
    {
        std::rotate(m_pcMemory, m_pcMemory + m_uiNext, m_pcMemory + m_uiSize);
        m_uiNext = 0;
    }

    const eC_Char* const pcEnd = m_pcMemory + (m_bIsFull ? m_uiSize : m_uiNext);
    const eC_Char* pcFirst = m_pcMemory;
    if (m_cForgotten != '\n')
    {
        const eC_Char* pcLineBreak = std::find(pcFirst, pcEnd, '\n');
        // No line follows the break that ends the text.
        if (pcEnd - pcLineBreak > 1)
        {
            pcFirst = pcLineBreak + 1;
        }
    }
    return GetString(pcFirst, static_cast<eC_UInt>(pcEnd - pcFirst));
}

void CGUITraceRing::Clear()
{
    m_uiNext = 0;
    m_bIsFull = false;
    m_cForgotten = '\n';
}

void CGUITraceRing::Append(const eC_Char* pcText, eC_UInt uiLength)
{
    while (uiLength >= m_uiSize - m_uiNext)
    {
        const eC_UInt uiPart = m_uiSize - m_uiNext;
        Overwrite(pcText, uiPart);
        pcText += uiPart;
        uiLength -= uiPart;
        m_uiNext = 0;
        m_bIsFull = true;
    }
    if (uiLength > 0)
    {
        Overwrite(pcText, uiLength);
        m_uiNext += uiLength;
    }
}

void CGUITraceRing::Overwrite(const eC_Char* pcText, eC_UInt uiLength)
{
    if (m_bIsFull)
    {
        m_cForgotten = m_pcMemory[m_uiNext + uiLength - 1];
    }
    std::memcpy(m_pcMemory + m_uiNext, pcText, uiLength);
}

CGUITrace& CGUITrace::GetInstance()
{
    static CGUITrace s_kTrace(&GetDefaultSink());
    return s_kTrace;
}

void CGUITrace::Log(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
                    const eC_String& kLine)
{
    if (m_pkSink == nullptr || m_bIsWriting)
    {
        return;
    }

    m_bIsWriting = true;
    try
    {
        m_pkSink->Write(kPrefix, kMessage, kFile, kLine);
    }
    catch (...)
    {
        // A failing log must not stop the operation that logs.
    }
    m_bIsWriting = false;
}

void CGUITrace::LogWarning(const eC_String& kMessage) noexcept
{
    LogWithoutPlace("WARNING: ", kMessage);
}

void CGUITrace::LogDebug(const eC_String& kMessage) noexcept
{
    LogWithoutPlace("DEBUG: ", kMessage);
}

void CGUITrace::LogInformation(const eC_String& kMessage) noexcept
{
    LogWithoutPlace("INFO: ", kMessage);
}

void CGUITrace::LogWithoutPlace(const eC_Char* pcPrefix, const eC_String& kMessage) noexcept
{
    const eC_String kNone;
    GetInstance().Log(eC_String::Borrow(pcPrefix), kMessage, kNone, kNone);
}

void CGUITrace::LogError(const eC_String& kMessage, const eC_Char* pcFile, eC_UInt uiLine) noexcept
{
    GetInstance().Log(eC_String::Borrow("ERROR: "), kMessage, eC_String::Borrow(pcFile), eC_String(uiLine));
}

void CGUITrace::LogWarning(const eC_Char* pcMessage)
{
    LogWarning(eC_String::BorrowASCII(pcMessage));
}

void CGUITrace::LogDebug(const eC_Char* pcMessage)
{
    LogDebug(eC_String::BorrowASCII(pcMessage));
}

void CGUITrace::LogInformation(const eC_Char* pcMessage)
{
    LogInformation(eC_String::BorrowASCII(pcMessage));
}

void CGUITrace::LogError(const eC_Char* pcMessage, const eC_Char* pcFile, eC_UInt uiLine)
{
    LogError(eC_String::BorrowASCII(pcMessage), pcFile, uiLine);
}

void CGUITrace::SetSink(CGUITraceSink* pkSink)
{
    m_pkSink = pkSink;
}

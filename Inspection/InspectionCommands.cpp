// SPDX-License-Identifier: MIT
#include "Inspection/InspectionCommands.h"

#include "Inspection/InspectionLine.h"

#include <cstring>

namespace
{
constexpr eC_UInt cuiAll = 0xFFFFFFFFU;
constexpr eC_UInt cuiMostOfAWord = 40;

/** Splits a line into words, in place. */
class CWords
{
public:
    explicit CWords(eC_Char* pcLine) : m_pcNext(pcLine) {}

    /** @return the next word, zero-terminated, or null if there is none */
    eC_Char* TakeWord()
    {
        m_pcNext += std::strspn(m_pcNext, " \t");
        if (*m_pcNext == '\0')
        {
            return nullptr;
        }
        const eC_Bool bIsQuoted = *m_pcNext == '"';
        eC_Char* const pcWord = bIsQuoted ? m_pcNext + 1 : m_pcNext;
        eC_Char* const pcEnd = pcWord + std::strcspn(pcWord, bIsQuoted ? "\"" : " \t");
        m_bIsOpen = bIsQuoted && *pcEnd == '\0';
        m_pcNext = *pcEnd == '\0' ? pcEnd : pcEnd + 1;
        *pcEnd = '\0';
        return pcWord;
    }

    /** @return true if the last word's closing quote is missing */
    eC_Bool IsOpen() const { return m_bIsOpen; }

private:
    eC_Char* m_pcNext;
    eC_Bool m_bIsOpen = false;
};

eC_Bool HasName(const ManagerCommand_t& kCommand, const eC_Char* pcName)
{
    const std::size_t uiLength = std::strcspn(kCommand.m_pcUsage, " ");
    return std::strlen(pcName) == uiLength && std::strncmp(kCommand.m_pcUsage, pcName, uiLength) == 0;
}

const ManagerCommand_t* FindIn(const ManagerCommand_t* pkCommands, eC_UInt uiCount, const eC_Char* pcName)
{
    for (eC_UInt uiCommand = 0; uiCommand < uiCount; ++uiCommand)
    {
        if (HasName(pkCommands[uiCommand], pcName))
        {
            return &pkCommands[uiCommand];
        }
    }
    return nullptr;
}
} // namespace

void CInspectionReply::Add(const eC_Char* pcText)
{
    AddSome(pcText, cuiAll);
}

void CInspectionReply::AddSome(const eC_Char* pcText, eC_UInt uiMost)
{
    eC_UInt uiLeft = static_cast<eC_UInt>(std::strlen(pcText));
    eC_UInt uiAdded = 0;
    while (uiLeft > 0 && !m_bIsCut)
    {
        const eC_UInt uiCharacter = GetCharacterLength(pcText, uiLeft);
        const eC_UInt uiBytes = uiCharacter != 0 ? uiCharacter : 1;
        if (uiAdded + uiBytes > uiMost)
        {
            return;
        }
        m_bIsCut = m_uiLength + uiBytes >= cuiSize;
        if (!m_bIsCut)
        {
            std::memcpy(m_acText + m_uiLength, pcText, uiBytes);
            m_uiLength += uiBytes;
            m_acText[m_uiLength] = '\0';
            pcText += uiBytes;
            uiLeft -= uiBytes;
            uiAdded += uiBytes;
        }
    }
}

void CInspectionReply::RefuseWith(const eC_Char* pcWhy)
{
    m_uiLength = 0;
    m_acText[0] = '\0';
    m_bIsCut = false;
    m_bIsRefusal = true;
    Add(pcWhy);
}

void CInspectionReply::Refuse(const eC_Char* pcExpected)
{
    RefuseWith("expected ");
    Add(pcExpected);
}

void CInspectionReply::Refuse(const eC_Char* pcExpected, const eC_Char* pcFound)
{
    Refuse(pcExpected);
    Add(", found ");
    Add(pcFound == nullptr ? "the end of the line" : "'");
    if (pcFound != nullptr)
    {
        AddSome(pcFound, cuiMostOfAWord);
        Add(std::strlen(pcFound) > cuiMostOfAWord ? "...'" : "'");
    }
}

const ManagerCommand_t* CInspectionCommands::FindCommand(const eC_Char* pcName) const
{
    const ManagerCommand_t* const pkOwn = FindIn(m_pkOwn, m_uiOwn, pcName);
    if (pkOwn != nullptr)
    {
        return pkOwn;
    }
    eC_UInt uiCount = 0;
    const ManagerCommand_t* const pkCommands = GetManagerCommands(uiCount);
    return FindIn(pkCommands, uiCount, pcName);
}

void CInspectionCommands::Execute(eC_Char* pcLine, CInspectionReply& kReply)
{
    CWords kWords(pcLine);
    const eC_Char* const pcName = kWords.TakeWord();
    const ManagerCommand_t* const pkCommand = pcName != nullptr ? FindCommand(pcName) : nullptr;
    if (pkCommand == nullptr)
    {
        kReply.Refuse("a command", pcName);
        return;
    }
    WordValue_t akValues[cuiMostCommandWords];
    const eC_UInt uiWords = static_cast<eC_UInt>(std::strlen(pkCommand->m_pcKinds));
    for (eC_UInt uiWord = 0; uiWord < uiWords; ++uiWord)
    {
        const eC_Char* const pcWord = kWords.TakeWord();
        const eC_Char* const pcExpected =
            pcWord == nullptr ? pkCommand->m_pcUsage
            : kWords.IsOpen()
                ? "a closing quote"
                : ReadWord(static_cast<EWordKind>(pkCommand->m_pcKinds[uiWord]), pcWord, akValues[uiWord]);
        if (pcExpected != nullptr)
        {
            kReply.Refuse(pcExpected, pcWord);
            return;
        }
    }
    const eC_Char* const pcSurplus = kWords.TakeWord();
    if (pcSurplus != nullptr)
    {
        kReply.Refuse(pkCommand->m_pcUsage, pcSurplus);
        return;
    }
    pkCommand->m_pfnExecute(m_kManager, akValues, kReply);
}

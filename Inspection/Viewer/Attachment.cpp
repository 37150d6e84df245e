// SPDX-License-Identifier: MIT
#include "Inspection/Viewer/Attachment.h"

std::string CAttachment::Begin()
{
    m_bIsFirstLine = m_kConnection.MustAsk();
    return m_bIsFirstLine ? Send("state") : std::string();
}

eC_Bool CAttachment::Receive(std::vector<std::string>& kFaultsOUT)
{
    std::string kBytes;
    std::string kError;
    const eC_Bool bIsThere = m_kConnection.Read(kBytes, kError);
    if (!kError.empty())
    {
        kFaultsOUT.push_back(kError);
    }
    if (m_bIsFirstLine)
    {
        const std::size_t uiEnd = kBytes.find('{');
        kBytes.erase(0, uiEnd);
        m_bIsFirstLine = kBytes.empty();
    }
    for (kError = m_kReader.Take(kBytes); !kError.empty(); kError = m_kReader.Take(std::string()))
    {
        kFaultsOUT.push_back(kError);
    }
    if (!bIsThere && m_kReader.IsInLine())
    {
        kFaultsOUT.emplace_back("the last line is not complete");
    }
    return bIsThere;
}

std::string CAttachment::Send(const std::string& kLine)
{
    const std::size_t uiText = kLine.find_first_not_of(" \t\r");
    if (uiText == std::string::npos || kLine[uiText] == '#')
    {
        return std::string();
    }
    ++m_uiSent;
    return m_kConnection.Write(kLine + "\n");
}

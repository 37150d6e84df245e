// SPDX-License-Identifier: MIT
#include "Tests/HookMatrix/RecordedOutcomes.h"

#include "Device/EmbeddedTexts.h"

const char* GetRecordedOutcomes(const std::string& kGroup)
{
    const EmbeddedText_t* pkText = g_akEmbeddedTexts;
    while (pkText->m_pcName != nullptr && kGroup + ".txt" != pkText->m_pcName)
    {
        ++pkText;
    }
    return pkText->m_pcName != nullptr ? pkText->m_pcText : "";
}

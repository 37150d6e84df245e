// SPDX-License-Identifier: MIT
#include "Application/Texts.h"

#include <cstring>

namespace
{
struct Text_t
{
    const eC_Char* m_pcKeyName;
    const eC_Char* m_pcEnglish;
    const eC_Char* m_pcGerman;
};

#define COFFEE_MACHINE_TEXT_LINE_(Key, English, German) {#Key, English, German},

constexpr Text_t cakTexts[] = {COFFEE_MACHINE_TEXTS(COFFEE_MACHINE_TEXT_LINE_)};
} // namespace

const eC_Char* GetDisplayText(ETextKey eKey, ELanguage eLanguage)
{
    return eLanguage == LANGUAGE_GERMAN ? cakTexts[eKey].m_pcGerman : cakTexts[eKey].m_pcEnglish;
}

eC_Bool FindTextKey(const eC_Char* pcName, ETextKey& eKeyOUT)
{
    for (eC_UInt uiKey = 0; uiKey < NOF_TEXTS; ++uiKey)
    {
        if (std::strcmp(cakTexts[uiKey].m_pcKeyName, pcName) == 0)
        {
            eKeyOUT = static_cast<ETextKey>(uiKey);
            return true;
        }
    }
    return false;
}

// SPDX-License-Identifier: MIT
#ifndef OTHERFRAMEWORK_CORE_UTILS_EC_STRING_H
#define OTHERFRAMEWORK_CORE_UTILS_EC_STRING_H

#include "Core/Utils/eC_Types.h"

#include <string>

/** A string with only the operations that the dialog manager uses. A text is converted to it only explicitly.
 */
class eC_String
{
public:
    enum eStringFormat_t
    {
        eASCII = 0,
        eUTF8 = 1,
        eUTF16 = 2
    };

    eC_String() = default;
    eC_String(const eC_Char* pcText, eC_UInt uiLength, eStringFormat_t eFormat);
    explicit eC_String(const eC_Int& iNumber) : m_kText(std::to_string(iNumber)) {}
    explicit eC_String(const eC_UInt& uiNumber) : m_kText(std::to_string(uiNumber)) {}

    eC_Bool operator==(const eC_String& kOther) const { return m_kText == kOther.m_kText; }
    eC_Bool operator!=(const eC_String& kOther) const { return m_kText != kOther.m_kText; }
    eC_String operator+(const eC_Char* pcText) const;
    eC_String operator+(const eC_String& kOther) const;
    eC_Bool IsEmpty() const { return m_kText.empty(); }

private:
    friend class COtherFramework;

    std::string m_kText;
};

eC_String operator+(const eC_Char* pcText, const eC_String& kString);

#endif

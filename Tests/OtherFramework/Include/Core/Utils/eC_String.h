#ifndef OTHERFRAMEWORK_CORE_UTILS_EC_STRING_H
#define OTHERFRAMEWORK_CORE_UTILS_EC_STRING_H

#include "Core/Utils/eC_Types.h"

#include <string>

/** A string that is nothing but the operations which the dialog manager uses. */
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
    // Implicit: messages and the prefixes of the trace's macros are plain texts.
    // cppcheck-suppress noExplicitConstructor
    eC_String(const eC_Char* pcText, eC_UInt uiLength = 0, eStringFormat_t eFormat = eASCII);
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

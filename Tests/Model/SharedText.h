// SPDX-License-Identifier: MIT
#ifndef TESTS_MODEL_SHAREDTEXT_H
#define TESTS_MODEL_SHAREDTEXT_H

/** @file
 *  Text that survives the end of a process, however it ends.
 */

#include <cstddef>
#include <string>

/** A text that a process shares with the processes that it forks afterwards. */
class CSharedText
{
public:
    /** @throw std::bad_alloc */
    CSharedText();
    CSharedText(const CSharedText&) = delete;
    CSharedText& operator=(const CSharedText&) = delete;
    ~CSharedText();

    void Clear() { m_pkMemory->m_uiLength = 0; }

    /** Appends to the text. Anything beyond cuiCapacity is dropped. */
    void Append(const std::string& kText);

    std::string Get() const { return std::string(m_pkMemory->m_acText, m_pkMemory->m_uiLength); }

    static constexpr std::size_t cuiCapacity = std::size_t{256} * 1024; ///< bytes

private:
    struct Memory_t
    {
        std::size_t m_uiLength;
        char m_acText[cuiCapacity];
    };

    Memory_t* m_pkMemory;
};

#endif

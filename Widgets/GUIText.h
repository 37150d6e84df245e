// SPDX-License-Identifier: MIT
#ifndef WIDGETS_GUITEXT_H
#define WIDGETS_GUITEXT_H

/** @file
 *  A text that is edited in place.
 */

#include "Core/Utils/eC_Types.h"

#include <memory>

/** UTF-8 in a buffer that grows when it must and never shrinks: replacing a text by one that is no longer
 * than any before allocates nothing.
 *
 *  A character is a byte with all continuation bytes behind it, so malformed texts are edited as well.
 * Offsets are in bytes. Memory comes from new; when it throws std::bad_alloc the text stays as it was.
 */
class CGUIText
{
public:
    /** Makes the empty text, without a buffer. */
    CGUIText() = default;

    /** @return the text, zero-terminated; good until it is changed */
    const eC_Char* GetText() const { return m_pcBuffer != nullptr ? m_pcBuffer.get() : ""; }

    /** @return its length in bytes */
    eC_UInt GetLength() const { return m_uiLength; }

    /** Makes room. @param uiCapacity bytes, without the terminating zero */
    void Reserve(eC_UInt uiCapacity);

    /** Replaces the text.
     *  @param pcText zero-terminated; it may lie in this text. Null: the empty text
     *  @return whether it differs from the one before
     */
    eC_Bool Set(const eC_Char* pcText);

    /** Replaces the text by so many bytes. @return whether it differs from the one before */
    eC_Bool Set(const eC_Char* pcText, eC_UInt uiLength);

    /** Inserts. @param uiOffset where, at most the length. @param pcText not from this text
     *  @param uiLength how many bytes of it
     */
    void Insert(eC_UInt uiOffset, const eC_Char* pcText, eC_UInt uiLength);

    /** Removes what lies from one offset up to another one. */
    void Remove(eC_UInt uiFrom, eC_UInt uiTo);

    /** @return the offset behind the character at an offset; at the end the end */
    eC_UInt GetNext(eC_UInt uiOffset) const;

    /** @return the offset of the character before an offset; at the beginning 0 */
    eC_UInt GetPrevious(eC_UInt uiOffset) const;

    /** @return how many characters a zero-terminated text has */
    static eC_UInt CountCharacters(const eC_Char* pcText);

    /** @return how many bytes the first characters of a zero-terminated text take, at most so many characters
     */
    static eC_UInt GetLengthOf(const eC_Char* pcText, eC_UInt uiCharacters);

private:
    std::unique_ptr<eC_Char[]> m_pcBuffer;
    eC_UInt m_uiLength = 0;
    eC_UInt m_uiCapacity = 0;
};

#endif

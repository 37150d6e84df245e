// SPDX-License-Identifier: MIT
#ifndef WIDGETS_GUITEXT_H
#define WIDGETS_GUITEXT_H

/** @file
 *  A text that can be edited in place.
 */

#include "Core/Utils/eC_Types.h"

#include <memory>

/** UTF-8 in a buffer that grows as needed and never shrinks, so replacing a text by one no longer than any
 *  before allocates nothing.
 *
 *  A character is a byte with all continuation bytes that follow it, so malformed texts can be edited as
 *  well. Offsets are in bytes. Memory comes from new; if it throws std::bad_alloc the text stays as it was.
 */
class CGUIText
{
public:
    /** Creates an empty text without a buffer. */
    CGUIText() = default;

    /** @return the text, zero-terminated; good until it is changed */
    const eC_Char* GetText() const { return m_pcBuffer != nullptr ? m_pcBuffer.get() : ""; }

    /** @return its length in bytes */
    eC_UInt GetLength() const { return m_uiLength; }

    /** Reserves memory. @param uiCapacity bytes, without the terminating zero */
    void Reserve(eC_UInt uiCapacity);

    /** Replaces the text.
     *  @param pcText zero-terminated; may be part of this text. Null: the empty text
     *  @return whether the text changed
     */
    eC_Bool Set(const eC_Char* pcText);

    /** Replaces the text by the first uiLength bytes of another one. @return whether the text changed */
    eC_Bool Set(const eC_Char* pcText, eC_UInt uiLength);

    /** Inserts bytes. @param uiOffset where, at most the length. @param pcText not from this text
     *  @param uiLength how many bytes of it
     */
    void Insert(eC_UInt uiOffset, const eC_Char* pcText, eC_UInt uiLength);

    /** Removes the bytes from one offset up to another one. */
    void Remove(eC_UInt uiFrom, eC_UInt uiTo);

    /** @return the offset after the character at an offset; at the end, the end */
    eC_UInt GetNext(eC_UInt uiOffset) const;

    /** @return the offset of the character before an offset; at the beginning 0 */
    eC_UInt GetPrevious(eC_UInt uiOffset) const;

    /** @return how many characters a zero-terminated text has */
    static eC_UInt CountCharacters(const eC_Char* pcText);

    /** @return how many bytes the first uiCharacters characters of a zero-terminated text take, or all its
     *         bytes if there are fewer
     */
    static eC_UInt GetLengthOf(const eC_Char* pcText, eC_UInt uiCharacters);

private:
    std::unique_ptr<eC_Char[]> m_pcBuffer;
    eC_UInt m_uiLength = 0;
    eC_UInt m_uiCapacity = 0;
};

#endif

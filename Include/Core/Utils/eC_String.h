// SPDX-License-Identifier: MIT
#ifndef CORE_UTILS_EC_STRING_H
#define CORE_UTILS_EC_STRING_H

/** @file
 *  The framework's string.
 */

#include "Core/Utils/eC_Types.h"

/** Text, held by value as UTF-8.
 *
 *  Input in another encoding is converted. Input that is malformed in its encoding never fails: each
 *  malformed sequence becomes one U+FFFD, the replacement character. A malformed sequence is
 *  - in eASCII, every byte above 0x7F;
 *  - in eUTF8, the longest run of bytes that begins a character without completing it, or else a single
 *    byte. No character begins with an overlong form, a surrogate (U+D800 to U+DFFF) or anything above
 *    U+10FFFF, so each byte of those is malformed by itself;
 *  - in eUTF16, every surrogate without its partner.
 *  A null text is the empty string.
 *
 *  Up to cuiShortCapacity bytes are kept in the string itself, longer texts in one array on the heap. A
 *  copy gets an array of exactly its length. A text that is made from characters or outgrows its array gets
 *  an array for twice its length plus 48 bytes. A chain of `+` appends to the one buffer of its left-most
 *  temporary, so it makes few arrays: the usual log message of literals and numbers makes one. The largest
 *  released array of a common size is kept for the next text that grows (see eC_SpareBlocks), so that
 *  messages made one after the other do not use the heap.
 *  The only exception is std::bad_alloc, also for a text of 2^30 bytes or more; a failed operation leaves
 *  its operands as they were.
 */
class GUI_API eC_String
{
public:
    /** The encoding of a character array that is passed in. */
    enum eStringFormat_t : unsigned char
    {
        eASCII = 0, ///< bytes 0 to 0x7F; any other byte is malformed
        eUTF8 = 1,  ///< bytes
        eUTF16 = 2  ///< 16-bit units in the byte order of the machine, with no byte order mark
    };

    /** How many bytes a string holds without using the heap. */
    static constexpr eC_UInt cuiShortCapacity = 15;

    /** Makes the empty string. */
    eC_String() noexcept;

    /** Makes a string from an array of characters.
     *  @param pcText the array; for eUTF16 the address of the first 16-bit unit. Null: the empty string
     *  @param uiLength how many units to take (bytes, or 16-bit units for eUTF16), zeros included; 0: up
     *         to the terminating zero
     *  @param eFormat the encoding of the array
     *  Implicit on purpose: callers pass texts where strings are expected.
     */
    eC_String(const eC_Char* pcText, eC_UInt uiLength = 0, eStringFormat_t eFormat = eUTF8);

    /** Makes the decimal digits of a number, with a leading minus when it is negative. */
    explicit eC_String(const eC_Int& iNumber);

    /** Makes the decimal digits of a number. */
    explicit eC_String(const eC_UInt& uiNumber);

    eC_String(const eC_String& kOther);     ///< makes a copy with its own array
    eC_String(eC_String&& kOther) noexcept; ///< leaves the other one empty
    ~eC_String();                           ///< releases the array

    eC_String& operator=(const eC_String& kOther);     ///< becomes a copy with its own array
    eC_String& operator=(eC_String&& kOther) noexcept; ///< leaves the other one empty

    /** @return true when both hold the same bytes */
    eC_Bool operator==(const eC_String& kOther) const;

    /** @return true when the two differ in any byte */
    eC_Bool operator!=(const eC_String& kOther) const { return !(*this == kOther); }

    /** Appends a text.
     *  @param pcText zero-terminated UTF-8; null appends nothing. It may point into this string.
     */
    eC_String& operator+=(const eC_Char* pcText);

    /** Appends a string, which may be this one. */
    eC_String& operator+=(const eC_String& kOther);

    /** @return this string followed by a zero-terminated UTF-8 text (null: nothing) */
    eC_String operator+(const eC_Char* pcText) const&;
    eC_String operator+(const eC_Char* pcText) &&; ///< the same, in the buffer of the temporary

    /** @return this string followed by the other one */
    eC_String operator+(const eC_String& kOther) const&;
    eC_String operator+(const eC_String& kOther) &&; ///< the same, in the buffer of the temporary

    /** @return true for the empty string */
    eC_Bool IsEmpty() const { return m_uiLength == 0; }

    /** @return the number of bytes */
    eC_UInt GetLength() const { return m_uiLength; }

    /** @return the text, zero-terminated UTF-8; valid until the string is changed or destroyed */
    const eC_Char* GetText() const { return m_pcText; }

private:
    friend class CGUITrace;

    /** Makes a string that refers to a text instead of holding it, without using the heap. A copy of it
     *  holds the text; a string that it is moved to refers to it as well.
     *  @param pcText zero-terminated UTF-8, which must outlive the string and is not checked; null: the
     *         empty string
     */
    static eC_String Borrow(const eC_Char* pcText);

    /** The same for ASCII. Any other text is converted and held. */
    static eC_String BorrowASCII(const eC_Char* pcText);

    eC_Bool IsShort() const { return m_pcText == m_acShort; }
    eC_UInt GetCapacity() const { return IsShort() ? cuiShortCapacity : m_uiCapacity; }

    /** Makes room for that many bytes in this short, empty string; the caller must then set the text. */
    void MakeRoom(eC_UInt uiCapacity);

    /** The same for a text of that many bytes which may grow further. */
    void MakeRoomToGrow(eC_UInt uiLength);

    /** @return an array for a text of that many bytes which may grow further */
    static eC_Char* TakeArray(eC_UInt uiLength, eC_UInt& uiCapacityOUT);

    /** Frees the array, if this string owns one; the caller must then set the text. */
    void Release();

    /** Takes the text of another string and leaves that one empty. This one must own no array. */
    void TakeFrom(eC_String& kOther) noexcept;

    eC_String GetCopyWithRoomFor(eC_UInt uiAdded) const;

    /** Appends units that are not zero-terminated. They may lie in this string. */
    void Append(const eC_Char* pcUnits, eC_UInt uiUnits, eStringFormat_t eFormat);

    /** Appends bytes of valid UTF-8. They may lie in this string. */
    void AppendBytes(const eC_Char* pcBytes, eC_UInt uiBytes);

    /** Appends the decimal digits of a number to a short string, which has room for them. */
    void AppendDigits(eC_UInt uiNumber);

    /** Ends the text after that many bytes, for which there is room. */
    void EndAt(eC_UInt uiLength);

    eC_Char* m_pcText;  ///< the bytes and a terminating zero: m_acShort, an owned array or a borrowed text
    eC_UInt m_uiLength; ///< bytes without the terminating zero
    union
    {
        eC_Char m_acShort[cuiShortCapacity + 1]; ///< while m_pcText points here
        eC_UInt m_uiCapacity; ///< bytes that the owned array holds before the zero; 0: borrowed
    };
};

/** @return a zero-terminated UTF-8 text (null: nothing) followed by a string */
GUI_API eC_String operator+(const eC_Char* pcText, const eC_String& kString);

#endif

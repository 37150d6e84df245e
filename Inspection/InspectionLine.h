// SPDX-License-Identifier: MIT
#ifndef INSPECTION_INSPECTIONLINE_H
#define INSPECTION_INSPECTIONLINE_H

/** @file
 *  Writes one line of JSON into memory of fixed size.
 */

#include "Core/Utils/eC_Types.h"
#include "GUIConfig/GUIObjectHandleResource.h"

/** A JSON object on one line. It separates members and items by itself, never writes beyond the memory, and
 *  reports when the line does not fit. Any text comes out as valid UTF-8: a byte that belongs to no character
 *  becomes U+FFFD.
 */
class CInspectionLine
{
public:
    /** @param pcMemory the memory, not owned; @param uiSize its size in bytes */
    CInspectionLine(eC_Char* pcMemory, eC_UInt uiSize) : m_pcMemory(pcMemory), m_uiSize(uiSize) {}

    /** Discards what was written, and begins an object. */
    void Begin();

    /** Ends the object, and the line with a line break. */
    void End();

    void BeginObject();                   ///< as an item, or after a key
    void EndObject() { Append('}'); }     ///< after its last member
    void BeginList(const eC_Char* pcKey); ///< a list of items, as a member
    void EndList() { Append(']'); }       ///< after its last item

    /** Writes a member. Keys are plain ASCII, texts are zero-terminated. */
    void Text(const eC_Char* pcKey, const eC_Char* pcText);
    void Text(const eC_Char* pcKey, const eC_Char* pcText, eC_UInt uiLength); ///< uiLength bytes of a text
    void Number(const eC_Char* pcKey, eC_UInt uiNumber);                      ///< a number
    void Integer(const eC_Char* pcKey, eC_Int iNumber);                       ///< one that may be negative
    void Flag(const eC_Char* pcKey, eC_Bool bFlag);                           ///< true or false

    /** Writes an identifier as an object with its number and, if a constant has it, its name. */
    void Handle(const eC_Char* pcKey, ObjectHandle_t eHandle);

    /** The same members, but into the current object. */
    void HandleMembers(ObjectHandle_t eHandle);

    /** Keeps this many bytes free for the rest of the line. */
    void Reserve(eC_UInt uiBytes) { m_uiReserved = uiBytes; }

    /** @return true if something did not fit; whatever was written after that is incomplete */
    eC_Bool IsTooLong() const { return m_bIsTooLong; }

    /** @return the bytes written so far */
    eC_UInt GetLength() const { return m_uiLength; }

    /** @return the size of the memory in bytes */
    eC_UInt GetSize() const { return m_uiSize; }

    /** Removes everything after that many bytes. */
    void ReturnTo(eC_UInt uiLength);

    const eC_Char* GetText() const { return m_pcMemory; } ///< not zero-terminated

private:
    void Append(eC_Char cCharacter);
    void AppendPlain(const eC_Char* pcText);
    void AppendNumber(eC_UInt uiNumber);
    void AppendEscaped(unsigned char cCharacter);
    void Separate();
    void Key(const eC_Char* pcKey);

    eC_Char* m_pcMemory;
    eC_UInt m_uiSize;
    eC_UInt m_uiLength = 0;
    eC_UInt m_uiReserved = 0;
    eC_Bool m_bIsTooLong = false;
};

/** @param pcText at least one byte
 *  @param uiLength how many bytes there are
 *  @return the length of the UTF-8 character at the beginning of the text, 0 if there is none
 */
eC_UInt GetCharacterLength(const eC_Char* pcText, eC_UInt uiLength);

#endif

// SPDX-License-Identifier: MIT
#ifndef LOADER_DIALOGDOCUMENT_H
#define LOADER_DIALOGDOCUMENT_H

/** @file
 *  A dialog description file as a checked tree of elements that knows where everything stands.
 */

#include "Core/Utils/eC_String.h"
#include "Core/Utils/eC_Types.h"
#include "Loader/DialogElements.h"
#include "Loader/DialogFileError.h"
#include "Loader/UTF8Text.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

/** One dialog description: its text, and the elements that the text describes.
 *
 *  A document holds nothing but elements and attributes, in well-formed XML, within the limits of
 *  DialogElements.h. It knows nothing of object classes and handles: who builds something from it checks
 *  these and reports what is wrong at the positions that the document gives.
 */
class GUI_API CDialogDocument
{
public:
    CDialogDocument() = default;
    CDialogDocument(const CDialogDocument&) = delete;
    CDialogDocument& operator=(const CDialogDocument&) = delete;

    /** Reads a file, then goes on as Parse does.
     *  @param kFile the file, as ReadRegularFile takes it, of no more than cuiMaxDialogFileSize bytes
     *  @param kErrorOUT receives what is wrong; untouched on success
     *  @return true on success
     *  @throw std::bad_alloc
     */
    eC_Bool Load(const std::filesystem::path& kFile, DialogFileError_t& kErrorOUT);

    /** Checks and parses a text. The document may have held another one, of which it keeps the memory; after
     *  a failure it has no elements.
     *  @param kText the text
     *  @param kErrorOUT receives the first error; untouched on success
     *  @return true on success
     *  @throw std::bad_alloc
     */
    eC_Bool Parse(const std::string& kText, DialogFileError_t& kErrorOUT);

    /** @return the elements; none without a parsed text. They are good until the document is destroyed or
     *          given another text.
     */
    DialogElements_t GetElements() const;

    // Who asks for positions in the order of the text waits for one walk over the text in all.

    /** @return the position of the '<' of an element's start tag */
    TextPosition_t LocateElement(const DialogElement_t& kElement) const;

    /** @return the position of the first character of an attribute's name */
    TextPosition_t LocateName(const DialogAttribute_t& kAttribute) const;

    /** @return the position of the first character of an attribute's value, behind the quote */
    TextPosition_t LocateValue(const DialogAttribute_t& kAttribute) const;

private:
    void Clear();
    eC_Bool ParseText(DialogFileError_t& kErrorOUT);
    void CollectElements();
    TextPosition_t LocateParsed(const eC_Char* pcParsed) const;

    std::string m_kText;
    std::string m_kParsedText; ///< as long as the text; names and values begin here where they begin there
    std::vector<DialogElement_t> m_kElements;
    std::vector<DialogAttribute_t> m_kAttributes;
    eC_Bool m_bIsParsed = false;               ///< to its end, without an error
    mutable std::size_t m_uiLocatedOffset = 0; ///< what was asked for last
    mutable TextPosition_t m_kLocatedPosition;
};

constexpr std::size_t cuiMaxDialogFileSize = std::size_t{1024} * 1024; ///< bytes of a description file

#endif

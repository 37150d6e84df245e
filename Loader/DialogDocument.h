// SPDX-License-Identifier: MIT
#ifndef LOADER_DIALOGDOCUMENT_H
#define LOADER_DIALOGDOCUMENT_H

/** @file
 *  A dialog description file as a checked tree of elements with their places in the text.
 */

#include "Core/Utils/eC_String.h"
#include "Core/Utils/eC_Types.h"
#include "Loader/DialogElements.h"
#include "Loader/DialogFileError.h"
#include "Loader/DialogParser.h"
#include "Loader/UTF8Text.h"

#include <cstddef>
#include <filesystem>
#include <string>

/** One dialog description: its text, and the elements that the text describes.
 *
 *  A document contains only elements and attributes, in well-formed XML, within the limits of
 *  DialogElements.h. It knows nothing of object classes and handles: code that builds something from it
 *  checks these and reports errors at the positions that the document gives.
 */
class GUI_API CDialogDocument
{
public:
    CDialogDocument();
    CDialogDocument(const CDialogDocument&) = delete;
    CDialogDocument& operator=(const CDialogDocument&) = delete;
    ~CDialogDocument();

    /** Reads a file, then goes on as Parse does.
     *  @param kFile the file, as ReadRegularFile takes it, of no more than cuiMaxDialogFileSize bytes
     *  @param kErrorOUT receives what is wrong; untouched on success
     *  @return true on success
     *  @throw std::bad_alloc
     */
    eC_Bool Load(const std::filesystem::path& kFile, DialogFileError_t& kErrorOUT);

    /** Checks and parses a text, in place of the one before. The document keeps its memory for the next text.
     *  After a failure it has no elements.
     *  @param kText the text, no more than cuiMaxDialogFileSize bytes
     *  @param kErrorOUT receives the first error; untouched on success
     *  @return true on success
     *  @throw std::bad_alloc
     */
    eC_Bool Parse(const std::string& kText, DialogFileError_t& kErrorOUT);

    /** @return the elements; none without a parsed text. They are valid until the document is destroyed or
     *          parses another text.
     */
    DialogElements_t GetElements() const;

    // Asking in the order of the text walks over the text once; asking for an earlier place starts again.

    /** @return the position of the '<' of an element's start tag */
    TextPosition_t LocateElement(const DialogElement_t& kElement) const;

    /** @return the position of the first character of an attribute's name */
    TextPosition_t LocateName(const DialogAttribute_t& kAttribute) const;

    /** @return the position of the first character of an attribute's value, after the quote */
    TextPosition_t LocateValue(const DialogAttribute_t& kAttribute) const;

private:
    /** The place of an attribute in the text, in bytes. */
    struct AttributePlace_t
    {
        std::size_t m_uiName;
        std::size_t m_uiValue;
    };

    void Clear();
    eC_Bool ParseText(DialogFileError_t& kErrorOUT);
    AttributePlace_t FindAttribute(const DialogAttribute_t& kAttribute) const;
    TextPosition_t LocateOffset(std::size_t uiOffset) const;

    std::string m_kText;
    ParsedDialog_t m_kDialog;
    CDialogParser m_kParser;
    eC_Bool m_bIsParsed = false; ///< to its end, without an error

    // The last answer: an attribute's element, that element's first attribute, and a place.
    mutable std::size_t m_uiLocatedElement = 0;
    mutable std::size_t m_uiLocatedAttribute = 0;
    mutable std::size_t m_uiLocatedOffset = 0;
    mutable TextPosition_t m_kLocatedPosition;
};

constexpr std::size_t cuiMaxDialogFileSize = std::size_t{1024} * 1024; ///< bytes of a description file

#endif

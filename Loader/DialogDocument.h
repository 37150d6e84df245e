#ifndef LOADER_DIALOGDOCUMENT_H
#define LOADER_DIALOGDOCUMENT_H

/** @file
 *  A dialog description file as a checked tree of elements that knows where everything stands.
 */

#include "Core/Utils/eC_String.h"
#include "Core/Utils/eC_Types.h"
#include "Loader/UTF8Text.h"

#include <pugixml.hpp>

#include <cstddef>
#include <filesystem>
#include <string>

/** What is wrong with a description, and where. */
struct DialogFileError_t
{
    TextPosition_t m_kPosition; ///< line 1, column 1 for an error of the file as a whole
    eC_String m_kFound;         ///< what is wrong
    eC_String m_kExpected;      ///< what was expected, as it stands behind "expected "
};

/** One dialog description: its text, and the elements that the text describes.
 *
 *  A document holds nothing but elements and attributes, in well-formed XML, within the limits of
 *  XMLSyntaxCheck.h. It knows nothing of object classes and handles: who builds something from it checks
 *  these and reports what is wrong with MakeError.
 */
class CDialogDocument
{
public:
    CDialogDocument() = default;
    CDialogDocument(const CDialogDocument&) = delete;
    CDialogDocument& operator=(const CDialogDocument&) = delete;

    /** Reads a file, then goes on as Parse does.
     *  @param kFile the file; only a regular one is read, and only when it has no more than
     *         cuiMaxDialogFileSize bytes
     *  @param kErrorOUT receives what is wrong; untouched on success
     *  @return true on success
     *  @throw std::bad_alloc
     */
    eC_Bool Load(const std::filesystem::path& kFile, DialogFileError_t& kErrorOUT);

    /** Checks and parses a text. The document may have held another one, which it gives up; after a
     *  failure it has no elements.
     *  @param kText the text
     *  @param kErrorOUT receives the first error; untouched on success
     *  @return true on success
     *  @throw std::bad_alloc
     */
    eC_Bool Parse(std::string kText, DialogFileError_t& kErrorOUT);

    /** @return the top element, null without a parsed text. All nodes below it are elements. */
    pugi::xml_node GetTopElement() const { return m_kTree.document_element(); }

    /** Makes the error for an element, at the '<' of its start tag. */
    DialogFileError_t MakeErrorAt(const pugi::xml_node& kElement, const eC_String& kFound,
                                  const eC_String& kExpected) const;

    /** Makes the error for the name of an attribute, at its first character. */
    DialogFileError_t MakeErrorAtName(const pugi::xml_attribute& kAttribute, const eC_String& kFound,
                                      const eC_String& kExpected) const;

    /** Makes the error for the value of an attribute, at its first character behind the quote. */
    DialogFileError_t MakeErrorAtValue(const pugi::xml_attribute& kAttribute, const eC_String& kFound,
                                       const eC_String& kExpected) const;

private:
    DialogFileError_t MakeErrorAtParsed(const pugi::char_t* pcParsed, const eC_String& kFound,
                                        const eC_String& kExpected) const;

    std::string m_kText;
    pugi::xml_document m_kTree; ///< works on a copy of the text, in which it rewrites the values
};

constexpr std::size_t cuiMaxDialogFileSize = std::size_t{1024} * 1024; ///< bytes of a description file

#endif

// SPDX-License-Identifier: MIT
#ifndef LOADER_DIALOGPARSER_H
#define LOADER_DIALOGPARSER_H

/** @file
 *  From the text of a description to its elements.
 */

#include "Core/Utils/eC_Types.h"
#include "Loader/DialogElements.h"
#include "Loader/XMLErrorExplainer.h"

#include <cstddef>
#include <exception>
#include <memory>
#include <string>
#include <vector>

struct XML_ParserStruct;

/** The elements of a description and their places in the text. */
struct ParsedDialog_t
{
    std::vector<DialogElement_t> m_kElements;     ///< in the order of their start tags
    std::vector<DialogAttribute_t> m_kAttributes; ///< of all elements
    std::vector<eC_UInt> m_kStartTags;      ///< the offset of the '<' of each element's start tag, in bytes
    std::vector<eC_Char> m_kNamesAndValues; ///< what the elements and attributes point to
};

/** Parses with expat. Refuses what expat accepts but a description must not contain: document types and the
 *  entities that they declare, CDATA sections, namespaces, text between elements, encodings other than UTF-8,
 *  and whatever exceeds the limits of DialogElements.h. It keeps its memory for the next text.
 */
class CDialogParser
{
public:
    CDialogParser();
    CDialogParser(const CDialogParser&) = delete;
    CDialogParser& operator=(const CDialogParser&) = delete;
    ~CDialogParser();

    /** Parses a text.
     *  @param kText no more than cuiMaxDialogFileSize bytes
     *  @param kDialogOUT receives the elements; unspecified on failure
     *  @param kErrorOUT receives the first error; untouched on success
     *  @return true on success
     *  @throw std::bad_alloc
     */
    eC_Bool Parse(const std::string& kText, ParsedDialog_t& kDialogOUT, XMLError_t& kErrorOUT);

private:
    struct Handlers_t;
    struct LastNames_t;

    struct ParserDeleter_t
    {
        void operator()(XML_ParserStruct* pkParser) const;
    };

    void Prepare(const std::string& kText, ParsedDialog_t& kDialogOUT);
    eC_Bool ParseText(const std::string& kText);
    void StartElement(const eC_Char* pcName, const eC_Char** ppcAttributes);
    eC_Bool KeepName(const eC_Char* pcName, const eC_Char*& pcKeptOUT);
    eC_Bool KeepAttributes(const eC_Char** ppcAttributes, DialogElement_t& kElement);
    const eC_Char* Keep(const eC_Char* pcText);
    void CheckText(const eC_Char* pcText, const eC_Char* pcEnd);
    eC_Bool IsAtReference() const;
    void Refuse();
    XMLProgress_t GetProgress(std::size_t uiWrongCharacter) const;

    std::unique_ptr<XML_ParserStruct, ParserDeleter_t> m_pkParser;
    std::exception_ptr m_pException; ///< what a handler has caught

    // While a text is parsed:
    ParsedDialog_t* m_pkDialog = nullptr;
    eC_Char* m_pcNextKept = nullptr; ///< where in m_kNamesAndValues the next text goes
    LastNames_t* m_pkLastNames = nullptr;
    const std::string* m_pkText = nullptr;
    eC_Bool m_bHasReferences = false; ///< the text contains a '&'
    eC_Bool m_bIsRefused = false;
    std::size_t m_uiDepth = 0; ///< open elements
};

#endif

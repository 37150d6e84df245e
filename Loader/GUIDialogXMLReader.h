// SPDX-License-Identifier: MIT
#ifndef LOADER_GUIDIALOGXMLREADER_H
#define LOADER_GUIDIALOGXMLREADER_H

/** @file
 *  The reader of dialog description files.
 */

#include "Core/GUIFactoryManager.h"
#include "Core/Utils/eC_String.h"

#include <memory>

class CDialogDocument;
struct DialogFileError_t;

/** Builds object trees from dialog description files. Docs/DialogFiles.md describes their format.
 *
 *  An application makes one and registers it with the factory:
 *
 *      CGUIDialogXMLReader kReader("/usr/share/coffee");
 *      CGUIFactoryManager::GetInstance().RegisterReaderForFileType("xml", &kReader);
 *
 *  A reader keeps the memory for a file's text and elements for the next one. Only pugixml takes memory each
 *  time, for the tree that it parses the file to, and gives it back before the first object is made.
 */
class GUI_API CGUIDialogXMLReader : public CGUIDialogReader
{
public:
    /** @param kBaseDirectory the directory below which relative paths are looked up; empty: the current
     *         directory of the program at the time of reading
     */
    explicit CGUIDialogXMLReader(const eC_String& kBaseDirectory = eC_String());

    CGUIDialogXMLReader(const CGUIDialogXMLReader&) = delete;
    CGUIDialogXMLReader& operator=(const CGUIDialogXMLReader&) = delete;
    ~CGUIDialogXMLReader() override;

    /** Builds the object tree that a description file describes, with the factory's object classes.
     *
     *  When the path holds a zero byte or a line break, the file is no regular file or cannot be read, breaks
     *  a rule of the format or says what an object does not take, or when a creator of objects returns null,
     *  one ERROR entry is logged
     *
     *      CGUIDialogXMLReader::Read: <path>:<line>:<column>: <what is wrong>; expected <what>.
     *
     *  with the path as it was given but for zero bytes and line breaks, which are written "\0", "\n" and
     *  "\r", and every object made so far is destroyed. A file is checked as XML to its end before the first
     *  object is made. Reading never waits for another program: what is no regular file, directly or through
     *  symbolic links, is not read.
     *  @param kPath the file, relative to the base directory, or absolute
     *  @return the new top object without a parent, owned by the caller, or null
     *  @throw std::bad_alloc, and what a constructor or SetAttribute of an object class throws; no object
     *         is left behind then
     */
    CGUIObject* Read(const eC_String& kPath) override;

private:
    std::unique_ptr<CGUIObject> Build(const eC_String& kPath, DialogFileError_t& kErrorOUT);

    eC_String m_kBaseDirectory;
    std::unique_ptr<CDialogDocument> m_pkDocument; ///< null while a file is being read
};

#endif

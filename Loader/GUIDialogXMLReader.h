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
 *  An application creates one and registers it with the factory:
 *
 *      CGUIDialogXMLReader kReader("/usr/share/coffee");
 *      CGUIFactoryManager::GetInstance().RegisterReaderForFileType("xml", &kReader);
 *
 *  A reader keeps its memory, and the parser's, for the next file.
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
     *  with the path as given, except that zero bytes and line breaks are written "\0", "\n" and "\r", and
     *  every object made so far is destroyed. The whole file is checked as XML before the first object is
     *  made. Symbolic links are followed, but only regular files are read, so that reading never waits for
     *  another program.
     *  @param kPath the file, relative to the base directory, or absolute
     *  @return the new top object without a parent, owned by the caller, or null
     *  @throw std::bad_alloc, and what a constructor or SetAttribute of an object class throws; the objects
     *         made so far are destroyed
     */
    CGUIObject* Read(const eC_String& kPath) override;

private:
    std::unique_ptr<CGUIObject> Build(const eC_String& kPath, DialogFileError_t& kErrorOUT);

    eC_String m_kBaseDirectory;
    std::unique_ptr<CDialogDocument> m_pkDocument; ///< null while a file is being read
};

#endif

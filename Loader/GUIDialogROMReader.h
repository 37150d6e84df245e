// SPDX-License-Identifier: MIT
#ifndef LOADER_GUIDIALOGROMREADER_H
#define LOADER_GUIDIALOGROMREADER_H

/** @file
 *  The reader of compiled dialog descriptions.
 */

#include "Core/GUIFactoryManager.h"
#include "Core/Utils/eC_String.h"
#include "Loader/DialogROMTable.h"

/** Builds object trees from tables that dialogc wrote. It needs no files and no parser, and allocates
 *  nothing but the objects.
 *
 *  An application creates one and registers it with the factory instead of the reader of files:
 *
 *      CGUIDialogROMReader kReader(ckCoffeeDialogs);
 *      CGUIFactoryManager::GetInstance().RegisterReaderForFileType("xml", &kReader);
 */
class GUI_API CGUIDialogROMReader : public CGUIDialogReader
{
public:
    /** @param kTables the tables, kept by reference: they must outlive the reader */
    explicit CGUIDialogROMReader(const DialogROMTables_t& kTables) : m_kTables(kTables) {}

    /** Builds the object tree of a compiled description, with the factory's object classes. The tree is the
     *  one that CGUIDialogXMLReader builds from the file.
     *
     *  When the path holds a zero byte or a line break or has no table, when the table names an object class,
     *  a handle or an attribute that the application does not have, or when a creator returns null, one ERROR
     *  entry is logged
     *
     *      CGUIDialogROMReader::Read: <path>:<line>:<column>: <what is wrong>; expected <what>.
     *
     *  with line and column in the file from which the table was made, and every object made so far is
     *  destroyed.
     *  @param kPath the path that the table has, character by character
     *  @return the new top object without a parent, owned by the caller, or null
     *  @throw std::bad_alloc, and what a constructor or SetAttribute of an object class throws; the objects
     *         made so far are destroyed
     */
    CGUIObject* Read(const eC_String& kPath) override;

private:
    const DialogROMTable_t* FindTable(const eC_Char* pcPath) const;

    const DialogROMTables_t& m_kTables;
};

#endif

// SPDX-License-Identifier: MIT
#ifndef LOADER_DIALOGROMTABLE_H
#define LOADER_DIALOGROMTABLE_H

/** @file
 *  Dialog descriptions as tables of constants, which need no memory but where they lie. dialogc writes them
 *  from description files, CGUIDialogROMReader builds objects from them. Docs/DialogFiles.md tells how.
 */

#include "Core/Utils/eC_Types.h"
#include "Loader/DialogElements.h"

/** One dialog description. */
struct DialogROMTable_t
{
    const eC_Char* m_pcPath; ///< the path by which the factory loads it
    DialogElements_t m_kElements;
    /** Where everything stood in the file, for messages: for each element its start tag, and then for each
     *  of its attributes in the table the name and the value. A position is how many lines it comes behind
     *  the one before (the first one: behind 1:1), then in the same line how many columns behind, in
     *  another line its column. A number is stored in groups of 7 bits, the lowest first; in all bytes of a
     *  number but its last one the highest bit is set.
     */
    const unsigned char* m_puiPositions;
};

/** Dialog descriptions that were compiled together. */
struct DialogROMTables_t
{
    const DialogROMTable_t* m_pkDialogs; ///< sorted by path, as std::strcmp compares
    eC_UInt m_uiNOFDialogs;
};

#endif

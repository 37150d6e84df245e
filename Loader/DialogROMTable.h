// SPDX-License-Identifier: MIT
#ifndef LOADER_DIALOGROMTABLE_H
#define LOADER_DIALOGROMTABLE_H

/** @file
 *  Dialog descriptions as tables of constants in ROM. dialogc writes them from description files, and
 *  CGUIDialogROMReader builds objects from them. Docs/DialogFiles.md tells how.
 */

#include "Core/Utils/eC_Types.h"
#include "Loader/DialogElements.h"

/** One dialog description. */
struct DialogROMTable_t
{
    const eC_Char* m_pcPath;      ///< the path by which the factory loads it
    DialogElements_t m_kElements; ///< what it consists of
    /** The places in the file, for messages: for each element that of its start tag, then for each of its
     *  attributes in the table those of the name and the value. A position is two numbers: the lines since
     *  the position before (1:1 before the first one), then, in the same line, the columns since that
     *  position, in another line the column. A number is stored in groups of 7 bits, the lowest first; all
     *  bytes of a number but the last have the highest bit set.
     */
    const unsigned char* m_puiPositions;
};

/** Dialog descriptions that were compiled together. */
struct DialogROMTables_t
{
    const DialogROMTable_t* m_pkDialogs; ///< sorted by path, as std::strcmp compares
    eC_UInt m_uiNOFDialogs;              ///< how many there are
};

#endif

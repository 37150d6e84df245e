// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_APPLICATION_RETAINEDMEMORY_H
#define EXAMPLES_COFFEEMACHINE_APPLICATION_RETAINEDMEMORY_H

/** @file
 *  Memory that keeps its contents without power.
 */

#include "Companions/GUIRestore.h"

/** Stands for the retained memory of a machine: two sectors, erased at first. A program for a device has them
 *  in flash.
 */
class CRetainedMemory final : public CGUIRestoreStorage
{
public:
    static constexpr eC_UInt cuiSector = 256; ///< bytes

    CRetainedMemory();

    eC_Bool WriteSlot(eC_UInt uiSlot, const unsigned char* puiBytes, eC_UInt uiSize) override;
    eC_UInt ReadSlot(eC_UInt uiSlot, unsigned char* puiBytes, eC_UInt uiSize) override;

private:
    unsigned char m_aauiSectors[2][cuiSector] = {};
};

#endif

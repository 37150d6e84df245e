// SPDX-License-Identifier: MIT
#ifndef INSPECTION_INSPECTIONCHANNEL_H
#define INSPECTION_INSPECTIONCHANNEL_H

/** @file
 *  What carries the lines of the inspection: any stream of bytes.
 */

#include "Core/Utils/eC_Types.h"

/** A stream of bytes in both directions. The GUI task makes all calls. None of them waits, none throws, none
 *  logs and none calls the dialog manager.
 */
class CInspectionChannel
{
public:
    virtual ~CInspectionChannel() = default;

    /** Takes a line whole, or not at all when there is no room for it now.
     *  @param pcLine the line with its line break
     *  @param uiLength its length in bytes
     *  @return true when it was taken
     */
    virtual eC_Bool WriteLine(const eC_Char* pcLine, eC_UInt uiLength) = 0;

    /** Takes out bytes that have come.
     *  @param pcBytes receives them
     *  @param uiSize how many at most
     *  @return how many; 0 when there are none now
     */
    virtual eC_UInt Read(eC_Char* pcBytes, eC_UInt uiSize) = 0;

    /** Passes on what is held back, as far as it goes without waiting. Called once in every turn and after a
     *  hazard was reported.
     */
    virtual void Flush() {}

    /** @return how many readers there have been. When the number changes, the new one is told everything. */
    virtual eC_UInt GetReaders() const { return 1; }
};

#endif

// SPDX-License-Identifier: MIT
#ifndef INSPECTION_INSPECTIONCHANNEL_H
#define INSPECTION_INSPECTIONCHANNEL_H

/** @file
 *  The interface that transports the lines of the inspection: any stream of bytes.
 */

#include "Core/Utils/eC_Types.h"

/** A stream of bytes in both directions. Only the GUI task calls it. Its functions must not wait, throw, log
 *  or call the dialog manager.
 */
class CInspectionChannel
{
public:
    virtual ~CInspectionChannel() = default;

    /** Takes a whole line, or nothing if there is no room for it now.
     *  @param pcLine the line with its line break
     *  @param uiLength its length in bytes
     *  @return true if the line was taken
     */
    virtual eC_Bool WriteLine(const eC_Char* pcLine, eC_UInt uiLength) = 0;

    /** Reads bytes that have arrived.
     *  @param pcBytes receives them
     *  @param uiSize the most to read
     *  @return how many were read; 0 if there are none now
     */
    virtual eC_UInt Read(eC_Char* pcBytes, eC_UInt uiSize) = 0;

    /** Sends what is buffered, as far as possible without waiting. Called once in every turn, and after a
     *  hazard was reported.
     */
    virtual void Flush() {}

    /** @return how many readers there have been. When the number changes, the new reader is sent everything.
     */
    virtual eC_UInt GetReaders() const { return 1; }
};

#endif

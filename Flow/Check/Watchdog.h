// SPDX-License-Identifier: MIT
#ifndef FLOW_CHECK_WATCHDOG_H
#define FLOW_CHECK_WATCHDOG_H

/** @file
 *  Ends the checker when the application hangs.
 */

#include "Core/Utils/eC_Types.h"

/** Notices an operation of the application that does not end. There is no way to go on with such an
 * application, so the process ends: it writes the violation of P8 with the keys that lead there to standard
 * output, as text or JSON, and exits with status 1 (CHECK_VIOLATION).
 *
 *  There can be one at a time. Only processor time counts, not that of other programs.
 */
class CWatchdog
{
public:
    /** @param uiSeconds how long an operation may take
     *  @param bWritesJSON whether the report is JSON
     */
    CWatchdog(eC_UInt uiSeconds, eC_Bool bWritesJSON);
    CWatchdog(const CWatchdog&) = delete;
    CWatchdog& operator=(const CWatchdog&) = delete;
    ~CWatchdog();

    /** An operation as long as it exists. Without a watchdog it does nothing. */
    class COperation
    {
    public:
        /** @param pcLine the line of a scenario; "power-on" begins the keys anew */
        explicit COperation(const eC_Char* pcLine);
        COperation(const COperation&) = delete;
        COperation& operator=(const COperation&) = delete;
        ~COperation();
    };
};

#endif

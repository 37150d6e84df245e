// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_REPLAY_FIELDREPLAY_H
#define SIMULATOR_REPLAY_FIELDREPLAY_H

/** @file
 *  Replays on the desk what a device has recorded.
 */

#include "Core/Utils/eC_Types.h"

#include <functional>
#include <string>

class CSimulatedApplication;

/** How a replay went. */
struct FieldReplay_t
{
    eC_UInt m_uiInputs = 0;   ///< inputs executed
    eC_UInt m_uiCompared = 0; ///< lines of trace and state that are those of the log, byte for byte
    std::string m_kError; ///< empty, or the first difference, or what is wrong with the log: "line 12: ..."
};

/** Replays a log that a device has recorded with CInspectionTurns: the same application gets the same input
 *  at the same times. Trace and state must be those of the log, byte for byte. What cannot be the same is not
 *  compared: the heap and the times of hooks, hazards, replies, and the directories of source files.
 *
 *  A log may end anywhere. If the device dropped lines it cannot be compared, which is an error.
 *
 *  @param kLog the log, any bytes
 *  @param kApplication the device's application, stopped; its handles are those of the device. Not owned.
 *  @param fnWriter receives each line that the replay sends, without its line break; null for none
 *  @throws what the application's Start throws
 */
FieldReplay_t ReplayFieldLog(const std::string& kLog, CSimulatedApplication& kApplication,
                             const std::function<void(const std::string&)>& fnWriter = nullptr);

#endif

// SPDX-License-Identifier: MIT
#ifndef COMPANIONS_TRACETEXT_H
#define COMPANIONS_TRACETEXT_H

/** @file
 *  Texts for the log entries of the companions.
 */

#include "Core/Utils/eC_String.h"
#include "GUIConfig/GUIObjectHandleResource.h"

/** @return a text that contains an identifier in decimal
 *  @param pcBefore, pcAfter zero-terminated ASCII
 */
eC_String TraceText(const eC_Char* pcBefore, ObjectHandle_t eID, const eC_Char* pcAfter);

#endif

// SPDX-License-Identifier: MIT
#ifndef COMPANIONS_TRACETEXT_H
#define COMPANIONS_TRACETEXT_H

/** @file
 *  What the companions log.
 */

#include "Core/Utils/eC_String.h"
#include "GUIConfig/GUIObjectHandleResource.h"

/** @return a text with an identifier in decimal in it
 *  @param pcBefore, pcAfter zero-terminated ASCII
 */
eC_String TraceText(const eC_Char* pcBefore, ObjectHandle_t eID, const eC_Char* pcAfter);

#endif

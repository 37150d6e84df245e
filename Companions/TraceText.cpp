// SPDX-License-Identifier: MIT
#include "Companions/TraceText.h"

eC_String TraceText(const eC_Char* pcBefore, ObjectHandle_t eID, const eC_Char* pcAfter)
{
    return eC_String(pcBefore, 0, eC_String::eASCII) + eC_String(static_cast<eC_Int>(eID)) + pcAfter;
}

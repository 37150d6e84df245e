// SPDX-License-Identifier: MIT
// An application without handles of its own.

#include "DialogManager.h"

#include <cstdio>

int main()
{
    ObjectHandle_t eHandle = NO_HANDLE;
    const bool bIsFound = GetObjectHandleByName("OBJ_MSGBOX_OK", eHandle);
    std::printf("the handle of the framework is %s, the first free identifier is %u\n",
                bIsFound && eHandle == OBJ_MSGBOX_OK ? "there" : "missing", cuiNOFObjectHandles - 8);
    return 0;
}

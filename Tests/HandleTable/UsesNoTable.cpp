// SPDX-License-Identifier: MIT
#include "GUIConfig/GUIObjectHandleResource.h"

// Has no handles of its own, only those of the framework.
int main()
{
    const eC_Bool bIsEmpty = cpkApplicationHandles == nullptr && cuiNOFApplicationHandles == 0 &&
                             cuiNOFObjectHandles == cuiNOFFrameworkHandles;
    return bIsEmpty && GetObjectHandleName(OBJ_MSGBOX_OK) != nullptr ? 0 : 1;
}

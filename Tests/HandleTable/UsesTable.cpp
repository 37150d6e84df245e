// SPDX-License-Identifier: MIT
#include "Tests/HandleTable/Handles.h"

// Asks for what the library has, so that a missing table is not noticed by these names alone.
int main()
{
    return cuiNOFObjectHandles > 0 && GetObjectHandleName(DLG_HOME) != nullptr ? 0 : 1;
}

// SPDX-License-Identifier: MIT
#include "Tests/HandleTable/Handles.h"

// Uses only names that the library's table has too, so that they alone do not reveal a missing table.
int main()
{
    return cuiNOFObjectHandles > 0 && GetObjectHandleName(DLG_HOME) != nullptr ? 0 : 1;
}

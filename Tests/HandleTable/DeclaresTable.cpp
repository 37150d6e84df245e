// SPDX-License-Identifier: MIT
#include "Tests/HandleTable/Handles.h"

// Uses the table only at compile time, where the constants are known.
int main()
{
    return DLG_HOME - 1;
}

// SPDX-License-Identifier: MIT
#include "Tests/HandleTable/Handles.h"

// Uses nothing of the table at run time: the constants are known when this is compiled.
int main()
{
    return DLG_HOME - 1;
}

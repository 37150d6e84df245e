// SPDX-License-Identifier: MIT
#include "Application.h"

int main()
{
    return RunApplication();
}

// SPDX-License-Identifier: MIT
#include "Tests/HandleTable/Handles.h"

GUI_DEFINE_OBJECT_HANDLES(PROGRAM_HANDLES)

// SPDX-License-Identifier: MIT
#include "Tests/Unit/UnitTestHandles.h"

GUI_DEFINE_OBJECT_HANDLES(UNIT_TEST_HANDLES)

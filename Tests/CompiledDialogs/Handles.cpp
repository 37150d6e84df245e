// SPDX-License-Identifier: MIT
#include "ExampleHandles.h"

GUI_DEFINE_OBJECT_HANDLES(EXAMPLE_HANDLES)

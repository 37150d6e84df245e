// SPDX-License-Identifier: MIT
#include "Tests/Model/ModelHandles.h"

GUI_DEFINE_OBJECT_HANDLES(MODEL_TEST_HANDLES)

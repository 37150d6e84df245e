// SPDX-License-Identifier: MIT
#include "Application/Handles.h"

GUI_DEFINE_OBJECT_HANDLES(COFFEE_MACHINE_HANDLES)

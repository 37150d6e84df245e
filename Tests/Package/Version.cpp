// SPDX-License-Identifier: MIT
// The version that programs see is that of the package.

#include "Core/GUIVersion.h"

#include <string_view>

static_assert(std::string_view(GUI_VERSION) == PACKAGE_VERSION, "the header is of another version");

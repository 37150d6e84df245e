// SPDX-License-Identifier: MIT
#include "GUIConfig/GUIObjectHandleResource.h"

// The table of a program whose application writes none. The definitions are weak, so that a program may be
// linked from all sources at once: the application's table, if there is one, replaces them. As long as this
// file defines nothing else, a program with its own table that links the library does not even contain it.

[[gnu::weak]] extern const ObjectHandleName_t* const cpkApplicationHandles = nullptr;
[[gnu::weak]] extern const eC_UInt cuiNOFApplicationHandles = 0;
[[gnu::weak]] extern const eC_UInt cuiNOFObjectHandles = cuiNOFFrameworkHandles;

#include "GUIConfig/GUIObjectHandleResource.h"

// The table of a program whose application states none. The definitions are weak, so that a program may be
// linked from all sources at once: the application's table, if there is one, takes their place. Linked from
// the library, such a program does not even contain this file, as long as it defines nothing else.

[[gnu::weak]] extern const ObjectHandleName_t* const cpkApplicationHandles = nullptr;
[[gnu::weak]] extern const eC_UInt cuiNOFApplicationHandles = 0;
[[gnu::weak]] extern const eC_UInt cuiNOFObjectHandles = cuiNOFFrameworkHandles;

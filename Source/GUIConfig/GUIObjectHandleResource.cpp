#include "GUIConfig/GUIObjectHandleResource.h"

// The table of a program whose application states none. Nothing else may be defined here: linkers take
// this file out of the library only if the application has not defined these names itself, and anything
// more that a program needs from this file would bring the empty table with it.

const ObjectHandleName_t* const cpkApplicationHandles = nullptr;
const eC_UInt cuiNOFApplicationHandles = 0;
const eC_UInt cuiNOFObjectHandles = cuiNOFFrameworkHandles;

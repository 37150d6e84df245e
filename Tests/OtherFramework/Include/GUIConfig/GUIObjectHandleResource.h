// SPDX-License-Identifier: MIT
#ifndef OTHERFRAMEWORK_GUICONFIG_GUIOBJECTHANDLERESOURCE_H
#define OTHERFRAMEWORK_GUICONFIG_GUIOBJECTHANDLERESOURCE_H

#include "Core/Utils/eC_Types.h"

/** The framework's and the application's identifiers, in one enumeration. */
enum ObjectHandle_t : eC_Int
{
    NO_HANDLE = 0,
    NOF_OBJECTHANDLES = 1,
    DLG_FIRST = 1,
    DLG_SECOND = 2,
    POP_NOTE = 3,
    OBJ_BUTTON = 4
};

/** -8 to 4. */
constexpr eC_UInt cuiNOFObjectHandles = 13;

#endif

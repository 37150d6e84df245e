#ifndef OTHERFRAMEWORK_GUICONFIG_GUIOBJECTHANDLERESOURCE_H
#define OTHERFRAMEWORK_GUICONFIG_GUIOBJECTHANDLERESOURCE_H

#include "Core/Utils/eC_Types.h"

/** Identifiers, the framework's and the application's in one enumeration. */
enum ObjectHandle_t : eC_Int
{
    OBJ_START_TAG = -9,
    OBJ_MSGBOX_SAVEAS = -8,
    OBJ_MSGBOX_SAVE = -7,
    OBJ_MSGBOX_CANCEL = -6,
    OBJ_MSGBOX_OK = -5,
    OBJ_KEYBOARD_LAYOUT_ABC_CAPITAL = -4,
    OBJ_KEYBOARD_LAYOUT_ABC = -3,
    OBJ_KEYBOARD_LAYOUT_123 = -2,
    OBJ_KEYBOARD_LAYOUT_SYM = -1,
    NO_HANDLE = 0,
    NOF_OBJECTHANDLES = 1,
    DLG_FIRST = 1,
    DLG_SECOND = 2,
    POP_NOTE = 3,
    OBJ_BUTTON = 4,
    QUORVANE_INTERNAL_ID = 0x7FFFFFFF
};

/** -8 to 4. */
constexpr eC_UInt cuiNOFObjectHandles = 13;

#endif

// SPDX-License-Identifier: MIT
#ifndef GUICONFIG_GUIOBJECTHANDLERESOURCE_H
#define GUICONFIG_GUIOBJECTHANDLERESOURCE_H

/** @file
 *  Identifiers of GUI objects, and the table in which an application lists its own.
 *
 *  An application writes one table, a macro that lists its handles:
 *
 *      #define MY_HANDLES(HANDLE)                                                                   \
 *          HANDLE(DLG_HOME)                                                                         \
 *          HANDLE(DLG_SETTINGS)                                                                     \
 *          HANDLE(POP_SAVED)
 *      GUI_DECLARE_OBJECT_HANDLES(MY_HANDLES)
 *
 *  in a header of its own, and in exactly one source file
 *
 *      GUI_DEFINE_OBJECT_HANDLES(MY_HANDLES)
 *
 *  The constants (counting from 1), their number and their names all come from that table, so dynamic
 *  identifiers, which start after the last one, never equal a handle. A program that declares a table and
 *  does not define it, or defines two, does not link. An application without handles of its own writes no
 *  table and gets an empty one from the library.
 */

#include "Core/Utils/eC_Types.h"

/** Identifier of a GUI object, a dialog or a popup. Any 32-bit value can be stored; values are compared
 *  as plain integers.
 */
enum ObjectHandle_t : eC_Int
{
    OBJ_START_TAG = -9,                   ///< before all handles, no object
    OBJ_MSGBOX_SAVEAS = -8,               ///< message box, button "save as"
    OBJ_MSGBOX_SAVE = -7,                 ///< message box, button "save"
    OBJ_MSGBOX_CANCEL = -6,               ///< message box, button "cancel"
    OBJ_MSGBOX_OK = -5,                   ///< message box, button "OK"
    OBJ_KEYBOARD_LAYOUT_ABC_CAPITAL = -4, ///< keyboard, capital letters
    OBJ_KEYBOARD_LAYOUT_ABC = -3,         ///< keyboard, letters
    OBJ_KEYBOARD_LAYOUT_123 = -2,         ///< keyboard, digits
    OBJ_KEYBOARD_LAYOUT_SYM = -1,         ///< keyboard, symbols
    NO_HANDLE = 0,                        ///< no object
    NOF_OBJECTHANDLES = 1,                ///< after the framework's handles; greater ones count as dynamic
    QUORVANE_INTERNAL_ID = 0x7FFFFFFF     ///< the greatest identifier
};

/** The number of object handles that are defined statically: the framework's own from
 *  OBJ_MSGBOX_SAVEAS (-8) up to NO_HANDLE, and those of the application's table. Dynamic identifiers
 *  start at this number - 8, the first value after the last handle.
 */
GUI_API extern const eC_UInt cuiNOFObjectHandles;

/** One line of a table of handles. */
struct ObjectHandleName_t
{
    const eC_Char* m_pcName;  ///< the constant's name, zero-terminated
    ObjectHandle_t m_eHandle; ///< its value
};

/** Finds a handle by its name, among the application's and the framework's own.
 *  @param pcName the constant's name, zero-terminated; case counts. Null names nothing
 *  @param eHandleOUT receives the handle; unchanged when there is none of that name
 *  @return true when found
 */
GUI_API eC_Bool GetObjectHandleByName(const eC_Char* pcName, ObjectHandle_t& eHandleOUT);

/** @param eHandle a handle
 *  @return the name of the application's or the framework's constant, or null when no constant has that
 *          value. Neither OBJ_START_TAG nor NOF_OBJECTHANDLES nor QUORVANE_INTERNAL_ID names an object;
 *          they are not found.
 */
GUI_API const eC_Char* GetObjectHandleName(ObjectHandle_t eHandle);

/** Reads a handle as files and scripts write it.
 *  @param pcText a handle's name, or a decimal integer from -2147483648 to 2147483647 (digits, a minus
 *         before them if it is negative); nothing before or after it. Null is neither
 *  @param eHandleOUT receives the handle; unchanged when the text is neither
 *  @return true when the text is a handle
 */
GUI_API eC_Bool ParseObjectHandle(const eC_Char* pcText, ObjectHandle_t& eHandleOUT);

/** The application's table: cuiNOFApplicationHandles lines. */
GUI_API extern const ObjectHandleName_t* const cpkApplicationHandles;
GUI_API extern const eC_UInt cuiNOFApplicationHandles; ///< how many lines it has

/** How many statically defined handles are the framework's own: -8 to 0. */
constexpr eC_UInt cuiNOFFrameworkHandles = 9;

/** Declares the constants of an application's table of handles. For a header, at namespace scope; every
 *  constant is an ObjectHandle_t, counting from 1.
 */
// The copy made at start-up is never read. It is there for the linker, which may drop unused data but not
// the code that initialises it: that code refers to the table's definition in every program.
#define GUI_DECLARE_OBJECT_HANDLES(TABLE)                                                                    \
    enum EApplicationHandle : eC_Int                                                                         \
    {                                                                                                        \
        eBeforeApplicationHandles = 0,                                                                       \
        TABLE(GUI_HANDLE_AS_ENUMERATOR_) eAfterApplicationHandles                                            \
    };                                                                                                       \
    TABLE(GUI_HANDLE_AS_CONSTANT_)                                                                           \
    extern const eC_UInt cuiApplicationHandleTableIsDefined;                                                 \
    [[gnu::used]] inline const eC_UInt cuiApplicationHandleTableIsLinked = cuiApplicationHandleTableIsDefined;

/** Defines an application's table of handles. For exactly one source file, at namespace scope, after
 *  GUI_DECLARE_OBJECT_HANDLES of the same table.
 */
#define GUI_DEFINE_OBJECT_HANDLES(TABLE)                                                                     \
    namespace                                                                                                \
    {                                                                                                        \
    constexpr ObjectHandleName_t cakApplicationHandles[] = {TABLE(GUI_HANDLE_AS_LINE_)};                     \
    }                                                                                                        \
    const ObjectHandleName_t* const cpkApplicationHandles = cakApplicationHandles;                           \
    const eC_UInt cuiNOFApplicationHandles = eAfterApplicationHandles - 1;                                   \
    const eC_UInt cuiNOFObjectHandles = cuiNOFFrameworkHandles + eAfterApplicationHandles - 1;               \
    const eC_UInt cuiApplicationHandleTableIsDefined = 1;

#define GUI_HANDLE_AS_ENUMERATOR_(Name) eApplicationHandle_##Name,
#define GUI_HANDLE_AS_CONSTANT_(Name)                                                                        \
    constexpr ObjectHandle_t Name = static_cast<ObjectHandle_t>(eApplicationHandle_##Name);
#define GUI_HANDLE_AS_LINE_(Name) {#Name, Name},

#endif

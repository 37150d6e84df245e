// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_APPLICATION_VALUES_H
#define EXAMPLES_COFFEEMACHINE_APPLICATION_VALUES_H

/** @file
 *  The changing values on the screen.
 */

#include "Core/Utils/eC_Types.h"

// clang-format off
/** Every value, with its name in dialog files. */
#define COFFEE_MACHINE_VALUES(VALUE)                                                                         \
    VALUE(NONE)                                                                                              \
    VALUE(WATER)                                                                                             \
    VALUE(BEANS)                                                                                             \
    VALUE(DRINK)                                                                                             \
    VALUE(STRENGTH)                                                                                          \
    VALUE(CUP)                                                                                               \
    VALUE(STATUS)                                                                                            \
    VALUE(PROGRESS)                                                                                          \
    VALUE(LANGUAGE)                                                                                          \
    VALUE(VALVE)                                                                                             \
    VALUE(CUPS)                                                                                              \
    VALUE(MESSAGE_TIME)                                                                                      \
    VALUE(HOME_LAYOUT)                                                                                       \
    VALUE(REMINDER)
// clang-format on

#define COFFEE_MACHINE_VALUE_ENUMERATOR_(Name) VALUE_##Name,

/** Identifies a value. */
enum EValue : unsigned char
{
    COFFEE_MACHINE_VALUES(COFFEE_MACHINE_VALUE_ENUMERATOR_) NOF_VALUES
};

/** Finds a value by its name.
 *  @param pcName the name, as in COFFEE_MACHINE_VALUES, zero-terminated
 *  @param eValueOUT receives the value; unchanged if none has that name
 *  @return true if found
 */
eC_Bool FindValue(const eC_Char* pcName, EValue& eValueOUT);

#endif

#ifndef EXAMPLES_COFFEEMACHINE_APPLICATION_VALUES_H
#define EXAMPLES_COFFEEMACHINE_APPLICATION_VALUES_H

/** @file
 *  The changing values that the screen shows.
 */

#include "Application/Texts.h"
#include "Core/Utils/eC_String.h"
#include "Core/Utils/eC_Types.h"

// clang-format off
/** Every value by its name in dialog files. */
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

/** Names a value. */
enum EValue : unsigned char
{
    COFFEE_MACHINE_VALUES(COFFEE_MACHINE_VALUE_ENUMERATOR_) NOF_VALUES
};

/** Finds a value by its name.
 *  @param pcName the name as it stands in COFFEE_MACHINE_VALUES, zero-terminated
 *  @param eValueOUT receives the value; untouched when there is none of that name
 *  @return true when found
 */
eC_Bool FindValue(const eC_Char* pcName, EValue& eValueOUT);

/** Where widgets read the values from while they are drawn. */
class CValueSource
{
public:
    /** @return the language of the texts */
    virtual ELanguage GetLanguage() const = 0;

    /** @return the value as text in that language, empty for VALUE_NONE */
    virtual eC_String GetValueText(EValue eValue) const = 0;

    /** @return the value in percent, 0 to 100, for one that is a level; otherwise 0 */
    virtual eC_UInt GetPercent(EValue eValue) const = 0;

protected:
    ~CValueSource() = default;
};

#endif

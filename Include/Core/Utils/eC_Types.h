// SPDX-License-Identifier: MIT
#ifndef CORE_UTILS_EC_TYPES_H
#define CORE_UTILS_EC_TYPES_H

/** @file
 *  The framework's names for the built-in types.
 *
 *  Every public declaration uses these names, so that a port to a compiler with other widths changes
 *  one file. The widths are part of the contract and are checked here.
 */

using eC_Bool = bool;         ///< true or false
using eC_Char = char;         ///< a byte of a text
using eC_Int = int;           ///< 32 bits, signed
using eC_UInt = unsigned int; ///< 32 bits, unsigned
using eC_Value = float;       ///< 32 bits, floating point

static_assert(sizeof(eC_Int) == 4, "eC_Int has 32 bits");
static_assert(sizeof(eC_UInt) == 4, "eC_UInt has 32 bits");
static_assert(sizeof(eC_Value) == 4, "eC_Value has 32 bits");

/** Marks what programs and the other libraries see of a shared library, which hides everything else. The
 * build defines GUI_SHARED_LIBRARIES for the libraries and the programs that use them.
 */
#ifdef GUI_SHARED_LIBRARIES
#define GUI_API [[gnu::visibility("default")]]
#else
#define GUI_API
#endif

#endif

// SPDX-License-Identifier: MIT
#ifndef CORE_UTILS_EC_NEVERDESTROYED_H
#define CORE_UTILS_EC_NEVERDESTROYED_H

/** @file
 *  A static object that exists before and after every other one.
 */

/** Holds a static object whose default constructor is constexpr. The object exists before the program runs
 *  its first line and is never destroyed, so the constructors and destructors of all other static objects may
 *  use it: those of any translation unit, of functions, of templates and of inline variables, in whatever
 *  order. What the object owns at the end of the program is left to the system.
 */
template <typename T>
union eC_NeverDestroyed
{
    /** Makes the object. */
    constexpr eC_NeverDestroyed() : m_tObject() {}

    // Not defaulted: the default would be deleted, or destroy the object.
    ~eC_NeverDestroyed() {} // NOLINT(modernize-use-equals-default)

    eC_NeverDestroyed(const eC_NeverDestroyed&) = delete;
    eC_NeverDestroyed& operator=(const eC_NeverDestroyed&) = delete;

    T m_tObject; ///< the object
};

#endif

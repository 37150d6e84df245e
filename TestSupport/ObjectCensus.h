// SPDX-License-Identifier: MIT
#ifndef TESTSUPPORT_OBJECTCENSUS_H
#define TESTSUPPORT_OBJECTCENSUS_H

/** @file
 *  Counts what must be gone at the end of a test.
 */

#include "Core/Utils/eC_Types.h"

#include <string>

/** How many GUI objects and safe pointers are alive in the program, and whether the timer has callbacks. */
struct ObjectCensus_t
{
    eC_UInt m_uiObjects = 0;
    eC_UInt m_uiSafePointers = 0;
    eC_Bool m_bTimerCallbacks = false;
};

/** @return the current counts */
ObjectCensus_t TakeObjectCensus();

/** @return one line for each count that differs, saying how many are too many or too few; empty if both are
 *         equal
 */
std::string CompareObjectCensus(const ObjectCensus_t& kBefore, const ObjectCensus_t& kAfter);

#endif

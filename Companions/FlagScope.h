// SPDX-License-Identifier: MIT
#ifndef COMPANIONS_FLAGSCOPE_H
#define COMPANIONS_FLAGSCOPE_H

/** @file
 *  A flag that is set during a scope.
 */

#include "Core/Utils/eC_Types.h"

/** Sets a flag, and clears it at the end of the scope, also when that ends with an exception. */
class CFlagScope
{
public:
    /** @param bFlag not owned */
    explicit CFlagScope(eC_Bool& bFlag) : m_bFlag(bFlag) { m_bFlag = true; }
    CFlagScope(const CFlagScope&) = delete;
    CFlagScope& operator=(const CFlagScope&) = delete;
    ~CFlagScope() { m_bFlag = false; }

private:
    eC_Bool& m_bFlag;
};

#endif

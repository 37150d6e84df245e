// SPDX-License-Identifier: MIT
#ifndef TESTS_FLOW_RANDOMFLOW_H
#define TESTS_FLOW_RANDOMFLOW_H

/** @file
 *  Flows at random.
 */

#include "Core/Utils/eC_Types.h"

#include <string>

/** @return a flow of up to six dialogs and three popups, always the same one for a seed */
std::string MakeRandomFlow(eC_UInt uiSeed);

#endif

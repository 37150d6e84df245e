// SPDX-License-Identifier: MIT
#ifndef FLOW_PROGRAMS_HEAPCOUNT_H
#define FLOW_PROGRAMS_HEAPCOUNT_H

/** @file
 *  How much memory a program has got from operator new. Only programs that count link it.
 */

#include <cstddef>

/** @return the bytes in use, with what each block is rounded up to */
std::size_t GetHeapInUse();

#endif

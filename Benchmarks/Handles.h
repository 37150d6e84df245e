// SPDX-License-Identifier: MIT
#ifndef BENCHMARKS_HANDLES_H
#define BENCHMARKS_HANDLES_H

#include "GUIConfig/GUIObjectHandleResource.h"

#define BENCHMARK_HANDLES(HANDLE)                                                                            \
    HANDLE(BTN_FIRST)                                                                                        \
    HANDLE(BTN_SECOND)                                                                                       \
    HANDLE(BTN_THIRD)                                                                                        \
    HANDLE(BTN_FOURTH)                                                                                       \
    HANDLE(BTN_FIFTH)
GUI_DECLARE_OBJECT_HANDLES(BENCHMARK_HANDLES)

#endif

// SPDX-License-Identifier: MIT
#ifndef TESTS_LVGL_FROMC_FAILINGMEMORY_H
#define TESTS_LVGL_FROMC_FAILINGMEMORY_H

/** @file
 *  Memory that runs out, for tests in C. The memory of LVGL does not.
 */

#ifdef __cplusplus
extern "C"
{
#endif

    /** Lets some allocations of the library succeed, and then one fail, or all. */
    void let_memory_fail(unsigned granted, int all);

    /** Ends that. @return how many allocations have failed */
    unsigned stop_failing(void);

#ifdef __cplusplus
}
#endif

#endif

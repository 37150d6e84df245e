// SPDX-License-Identifier: MIT
#ifndef APPLICATION_H
#define APPLICATION_H

/** Runs the application; exported even if it is part of a shared library. @return 0 */
[[gnu::visibility("default")]] int RunApplication();

#endif

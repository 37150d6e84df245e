// SPDX-License-Identifier: MIT
// GoogleTest refers to mkdir, for reports in files. The device has no files, so its C library has none.

#include <cerrno>
#include <sys/stat.h>

extern "C" int mkdir(const char*, mode_t)
{
    errno = ENOSYS;
    return -1;
}

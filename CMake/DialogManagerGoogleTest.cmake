# SPDX-License-Identifier: MIT
# Sets GoogleTest to the library that tests link: GoogleTest, GoogleMock and a main function.
#
# Tests without run-time type information need a GoogleTest without it, too. The libraries of the distribution
# have it, but its sources can be built without. There is no library for the device either, whose C library
# lacks much of what GoogleTest uses elsewhere.
if(DIALOGMANAGER_RTTI AND NOT DIALOGMANAGER_BUILD_DEVICE)
    find_package(GTest REQUIRED)
    set(GoogleTest GTest::gmock_main)
else()
    set(INSTALL_GTEST OFF)
    if(DIALOGMANAGER_BUILD_DEVICE)
        set(gtest_disable_pthreads ON CACHE BOOL "" FORCE)
    endif()
    add_subdirectory(/usr/src/googletest "${CMAKE_CURRENT_BINARY_DIR}/GoogleTest" EXCLUDE_FROM_ALL SYSTEM)
    if(NOT DIALOGMANAGER_RTTI)
        target_compile_options(gtest PUBLIC -fno-rtti)
    endif()
    if(DIALOGMANAGER_BUILD_DEVICE)
        target_compile_definitions(gtest PUBLIC _GNU_SOURCE GTEST_HAS_PTHREAD=0 GTEST_HAS_DEATH_TEST=0
            GTEST_HAS_STREAM_REDIRECTION=0 GTEST_HAS_POSIX_RE=0 _POSIX_PATH_MAX=255 PATH_MAX=255)
    endif()
    set(GoogleTest gmock_main)
endif()

# SPDX-License-Identifier: MIT
# Makes the target EXPAT::EXPAT: an installed expat, or the sources in DIALOGMANAGER_EXPAT_SOURCE. These are for
# machines without an installed one, like WebAssembly.
if(NOT DIALOGMANAGER_EXPAT_SOURCE)
    find_package(EXPAT REQUIRED)
    return()
endif()
set(ExpatLibrary "${DIALOGMANAGER_EXPAT_SOURCE}/lib")
if(NOT EXISTS "${ExpatLibrary}/expat.h")
    message(FATAL_ERROR "${DIALOGMANAGER_EXPAT_SOURCE} has no lib/expat.h; expected the sources of expat 2")
endif()
if(DIALOGMANAGER_INSTALL)
    message(FATAL_ERROR "A library that is installed uses an installed expat; set DIALOGMANAGER_INSTALL to OFF")
endif()
enable_language(C)
# What its own configuration would find out, in twenty trials.
file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/Expat/expat_config.h" [[
#define BYTEORDER 1234
#define HAVE_UNISTD_H 1
#define XML_CONTEXT_BYTES 1024
#define XML_DEV_URANDOM 1
#define XML_DTD 1
#define XML_GE 1
#define XML_NS 1
]])
add_library(DialogManagerExpat STATIC EXCLUDE_FROM_ALL
    "${ExpatLibrary}/xmlparse.c" "${ExpatLibrary}/xmlrole.c" "${ExpatLibrary}/xmltok.c")
target_compile_definitions(DialogManagerExpat PUBLIC XML_STATIC)
target_compile_options(DialogManagerExpat PRIVATE -w)
target_include_directories(DialogManagerExpat PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/Expat")
target_include_directories(DialogManagerExpat SYSTEM INTERFACE "${ExpatLibrary}")
add_library(EXPAT::EXPAT ALIAS DialogManagerExpat)

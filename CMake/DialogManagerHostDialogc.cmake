# SPDX-License-Identifier: MIT
# Provides the program DialogManager::dialogc when you build for another machine: it is built from these sources
# for the machine that builds, as soon as something uses it.
include(ExternalProject)

set(HostDirectory "${CMAKE_CURRENT_BINARY_DIR}/Host")
ExternalProject_Add(HostDialogc
    SOURCE_DIR "${DialogManager_SOURCE_DIR}"
    BINARY_DIR "${HostDirectory}"
    CMAKE_ARGS
        -DCMAKE_BUILD_TYPE=Release
        -DDIALOGMANAGER_BUILD_TESTS=OFF
        -DDIALOGMANAGER_BUILD_EXAMPLES=OFF
        -DDIALOGMANAGER_INSTALL=OFF
    BUILD_COMMAND "${CMAKE_COMMAND}" --build "${HostDirectory}" --target dialogc
    BUILD_ALWAYS ON
    BUILD_BYPRODUCTS "${HostDirectory}/dialogc"
    INSTALL_COMMAND ""
    EXCLUDE_FROM_ALL ON)

add_executable(DialogManager::dialogc IMPORTED GLOBAL)
set_target_properties(DialogManager::dialogc PROPERTIES IMPORTED_LOCATION "${HostDirectory}/dialogc")
add_dependencies(DialogManager::dialogc HostDialogc)

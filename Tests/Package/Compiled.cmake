# SPDX-License-Identifier: MIT
# Adds the program with a compiled dialog, using either the numbers of its handles or their names.
function(add_compiled Target)
    add_executable(${Target} ../Compiled.cpp)
    target_include_directories(${Target} PRIVATE ..)
    dialogmanager_add_compiled_dialogs(${Target} NAME Home BASE_DIRECTORY .. FILES ../Home.xml ${ARGN})
endfunction()

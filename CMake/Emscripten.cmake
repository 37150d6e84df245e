# SPDX-License-Identifier: MIT
# Toolchain file: emscripten for WebAssembly, wherever it is installed, with the exceptions that browsers have themselves.
execute_process(COMMAND em-config EMSCRIPTEN_ROOT OUTPUT_VARIABLE EmscriptenRoot OUTPUT_STRIP_TRAILING_WHITESPACE
    COMMAND_ERROR_IS_FATAL ANY)
include("${EmscriptenRoot}/cmake/Modules/Platform/Emscripten.cmake")
string(APPEND CMAKE_CXX_FLAGS_INIT " -fwasm-exceptions")
string(APPEND CMAKE_EXE_LINKER_FLAGS_INIT " -fwasm-exceptions")

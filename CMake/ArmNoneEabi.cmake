# SPDX-License-Identifier: MIT
# Toolchain file: GNU for bare-metal Arm Cortex-M processors, with newlib.
#
# DEVICE_CPU names the processor, with its default floating-point unit: cortex-m3, which has none,
# cortex-m4, cortex-m7 or cortex-m33. ctest runs programs for the processor of the board in Device/ with QEMU,
# like programs of the host.
set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR arm)
# CMake must not try to link test programs: they have no start-up.
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)

set(DEVICE_CPU cortex-m4 CACHE STRING "The device's processor")
set_property(CACHE DEVICE_CPU PROPERTY STRINGS cortex-m3 cortex-m4 cortex-m7 cortex-m33)
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES DEVICE_CPU)

set(DEVICE_COMPILER gcc CACHE STRING "gcc, or clang with the libraries and the linker of gcc")
set_property(CACHE DEVICE_COMPILER PROPERTY STRINGS gcc clang)
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES DEVICE_COMPILER)

set(DeviceFlags "-mthumb -mcpu=${DEVICE_CPU}")
if(DEVICE_CPU STREQUAL "cortex-m3")
    string(APPEND DeviceFlags " -mfloat-abi=soft")
else()
    string(APPEND DeviceFlags " -mfloat-abi=hard")
endif()

if(DEVICE_COMPILER STREQUAL "clang")
    # The directories where gcc finds the headers of the standard library for this processor.
    separate_arguments(DeviceFlagList UNIX_COMMAND "${DeviceFlags}")
    execute_process(COMMAND arm-none-eabi-g++ ${DeviceFlagList} -E -v -x c++ /dev/null
        OUTPUT_QUIET ERROR_VARIABLE GccReport COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCH "#include <\\.\\.\\.> search starts here:\n(.*)\nEnd of search list" GccReport "${GccReport}")
    string(REGEX MATCHALL "[^ \n]+" GccDirectories "${CMAKE_MATCH_1}")
    # Each compiler has its own headers for the language itself.
    list(FILTER GccDirectories EXCLUDE REGEX "/lib/gcc/arm-none-eabi/[0-9.]+/include(-fixed)?$")

    set(CMAKE_C_COMPILER clang-14)
    set(CMAKE_CXX_COMPILER clang++-14)
    set(CMAKE_CXX_COMPILER_TARGET arm-none-eabi)
    set(CMAKE_C_COMPILER_TARGET arm-none-eabi)
    list(TRANSFORM GccDirectories PREPEND "-isystem " OUTPUT_VARIABLE DeviceIncludes)
    list(JOIN DeviceIncludes " " DeviceIncludes)
    # gcc gives enumerations the smallest type that holds them, and its libraries were compiled that way.
    set(CMAKE_CXX_FLAGS_INIT
        "${DeviceFlags} -fshort-enums -nostdinc++ ${DeviceIncludes} -ffunction-sections -fdata-sections")
    set(CMAKE_CXX_LINK_EXECUTABLE
        "arm-none-eabi-g++ ${DeviceFlags} <LINK_FLAGS> <OBJECTS> -o <TARGET> <LINK_LIBRARIES>")
else()
    set(CMAKE_C_COMPILER arm-none-eabi-gcc)
    set(CMAKE_CXX_COMPILER arm-none-eabi-g++)
    # Notes about changes since older versions of the compiler do not matter: none of its objects are linked.
    set(CMAKE_CXX_FLAGS_INIT "${DeviceFlags} -ffunction-sections -fdata-sections -Wno-psabi")
    # Toolkits are in C.
    set(CMAKE_C_FLAGS_INIT "${DeviceFlags} -ffunction-sections -fdata-sections")
    set(CMAKE_ASM_FLAGS_INIT "${DeviceFlags}")
endif()
set(CMAKE_EXE_LINKER_FLAGS_INIT "-Wl,--gc-sections")

if(DEVICE_CPU STREQUAL "cortex-m4")
    set(CMAKE_CROSSCOMPILING_EMULATOR
        qemu-system-arm -M mps2-an386 -cpu cortex-m4 -display none -serial null -monitor none
        -semihosting-config enable=on,target=native
        # An instruction takes one nanosecond and waiting takes no time, so every run is the same.
        -icount shift=0,sleep=off
        -kernel)
endif()

set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

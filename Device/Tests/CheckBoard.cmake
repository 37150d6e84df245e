# SPDX-License-Identifier: MIT
# Runs a case of BoardCheck: cmake -DRUN=<emulator and program> -DCASE=<case> -P <this>
set(ExpectedStatus 1)
if(CASE STREQUAL "read-null")
    set(ExpectedError
        "^The board stops: an access to protected memory, address 0x00000000, at instruction 0x[0-9A-F]+, ")
elseif(CASE STREQUAL "call-null")
    set(ExpectedError "^The board stops: an access to protected memory, at instruction 0x00000000, fault")
elseif(CASE STREQUAL "write-constant")
    set(ExpectedError
        "^The board stops: an access to protected memory, address 0x[0-9A-F]+, at instruction 0x[0-9A-F]+, ")
elseif(CASE STREQUAL "read-no-memory")
    set(ExpectedError "^The board stops: an access to memory that is not there, address 0x30000000, at instruct")
elseif(CASE STREQUAL "overflow-stack")
    set(ExpectedError "^The board stops: the stack has overflowed\n$")
elseif(CASE STREQUAL "throw")
    set(ExpectedError "^The board stops: nobody catches this\n$")
elseif(CASE STREQUAL "assert")
    set(ExpectedError "^assertion .bThisAssertionHolds. failed: file \"Device/Tests/BoardCheck.cpp\"")
elseif(CASE STREQUAL "exhaust-heap")
    set(ExpectedStatus 0)
    set(ExpectedOutput "^bad_alloc after more than 40 KiB: yes\nthe heap is usable again\n$")
elseif(CASE STREQUAL "status")
    set(ExpectedStatus 42)
else()
    message(FATAL_ERROR "There is no case '${CASE}'")
endif()

execute_process(COMMAND ${RUN} -append "${CASE}" TIMEOUT 30
    RESULT_VARIABLE Status OUTPUT_VARIABLE Output ERROR_VARIABLE Error)
if(NOT Status STREQUAL ExpectedStatus OR NOT Output MATCHES "${ExpectedOutput}"
    OR NOT Error MATCHES "${ExpectedError}")
    message(FATAL_ERROR "${CASE} ends with status ${Status} instead of ${ExpectedStatus},\n"
        "output (expected ${ExpectedOutput}):\n${Output}\nerror output (expected ${ExpectedError}):\n${Error}")
endif()

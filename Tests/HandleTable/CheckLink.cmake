# SPDX-License-Identifier: MIT
# Links a program and checks the outcome.
#   Linker     the command that links, as a list
#   Objects    what it links, as a list
#   Program    the file to make
#   Complaint  a regular expression for the linker's complaint; without one the program must link and run
file(REMOVE "${Program}")
execute_process(COMMAND ${Linker} ${Objects} -o "${Program}"
    RESULT_VARIABLE Result OUTPUT_VARIABLE Output ERROR_VARIABLE Output)

if(Complaint)
    if(Result EQUAL 0 OR EXISTS "${Program}")
        message(FATAL_ERROR "The program links, although it must not.\n${Output}")
    elseif(NOT Output MATCHES "${Complaint}")
        message(FATAL_ERROR "The linker does not complain of \"${Complaint}\" but says:\n${Output}")
    endif()
else()
    if(NOT Result EQUAL 0)
        message(FATAL_ERROR "The program does not link:\n${Output}")
    endif()
    execute_process(COMMAND "${Program}" RESULT_VARIABLE Result)
    if(NOT Result EQUAL 0)
        message(FATAL_ERROR "The program ends with ${Result}.")
    endif()
endif()

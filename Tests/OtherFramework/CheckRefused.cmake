# SPDX-License-Identifier: MIT
# Compiles a source that must be refused.
#   Compiler   the command that compiles, with its arguments, as a list
#   Complaint  a regular expression for the compiler's complaint; without one the source must compile
execute_process(COMMAND ${Compiler} RESULT_VARIABLE Result OUTPUT_VARIABLE Output ERROR_VARIABLE Output)
if(Complaint)
    if(Result EQUAL 0)
        message(FATAL_ERROR "This compiles, although it must not.\n${Output}")
    elseif(NOT Output MATCHES "${Complaint}")
        message(FATAL_ERROR "The compiler does not complain of \"${Complaint}\" but says:\n${Output}")
    endif()
elseif(NOT Result EQUAL 0)
    message(FATAL_ERROR "This does not compile:\n${Output}")
endif()

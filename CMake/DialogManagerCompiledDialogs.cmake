# SPDX-License-Identifier: MIT
# Compiles dialog description files into a target, from which CGUIDialogROMReader loads them.
#
#   dialogmanager_add_compiled_dialogs(<target>
#       NAME <name>                  the constant is ck<name>, its header <name>.h
#       FILES <file> ...             the description files, below BASE_DIRECTORY. They exist, or a rule above
#                                    this call makes them
#       [BASE_DIRECTORY <directory>] the application loads the dialogs by their paths below this directory;
#                                    the default is the current source directory
#       [HANDLES <header>])          the header with the application's table of handles, as the target's
#                                    sources include it. It exists, or a rule makes it. Without a header,
#                                    identifiers are looked up by name whenever a dialog is loaded
#
# The compiler runs on the machine that builds: DIALOGMANAGER_DIALOGC if that is set, else the library's own
# dialogc. A library that was installed for another machine has none.

set(DIALOGMANAGER_DIALOGC "" CACHE FILEPATH "dialogc, built for the machine that builds")

function(dialogmanager_add_compiled_dialogs Target)
    set(Call "dialogmanager_add_compiled_dialogs(${Target})")
    cmake_parse_arguments(PARSE_ARGV 1 Dialogs "" "NAME;BASE_DIRECTORY;HANDLES" "FILES")
    _dialogmanager_check_compiled_dialogs(${ARGN})

    if(DIALOGMANAGER_DIALOGC)
        set(Compiler "${DIALOGMANAGER_DIALOGC}")
        _dialogmanager_check_file("${Compiler}" "DIALOGMANAGER_DIALOGC is ${Compiler}")
    elseif(TARGET DialogManager::dialogc)
        set(Compiler DialogManager::dialogc)
    else()
        message(FATAL_ERROR "${Call}: set DIALOGMANAGER_DIALOGC to the path of dialogc, built for this machine")
    endif()

    set(BaseDirectory "${CMAKE_CURRENT_SOURCE_DIR}")
    if(Dialogs_BASE_DIRECTORY)
        cmake_path(ABSOLUTE_PATH Dialogs_BASE_DIRECTORY NORMALIZE OUTPUT_VARIABLE BaseDirectory)
    endif()
    set(Files)
    foreach(File IN LISTS Dialogs_FILES)
        cmake_path(ABSOLUTE_PATH File NORMALIZE OUTPUT_VARIABLE Path)
        _dialogmanager_check_file("${Path}" "FILES names ${File}")
        if("${Path}" IN_LIST Files)
            message(FATAL_ERROR "${Call}: FILES names ${File} twice")
        endif()
        if(NOT IsMade)
            _dialogmanager_check_base("${Path}")
        endif()
        list(APPEND Files "${Path}")
    endforeach()

    set(Handles)
    set(Includes)
    if(Dialogs_HANDLES)
        if(IS_ABSOLUTE "${Dialogs_HANDLES}")
            _dialogmanager_check_file("${Dialogs_HANDLES}" "HANDLES names ${Dialogs_HANDLES}")
        else()
            # The rest of the project may still add include directories, and rules that make the header.
            cmake_language(EVAL CODE "cmake_language(DEFER DIRECTORY [[${CMAKE_SOURCE_DIR}]]
                CALL _dialogmanager_check_handles [[${Target}]] [[${Dialogs_HANDLES}]]
                [[${CMAKE_CURRENT_SOURCE_DIR}]] [[${CMAKE_CURRENT_BINARY_DIR}]])")
        endif()
        set(Directories "$<TARGET_PROPERTY:${Target},INCLUDE_DIRECTORIES>")
        set(Handles --handles "${Dialogs_HANDLES}")
        set(Includes "$<$<BOOL:${Directories}>:--include=$<JOIN:${Directories},;--include=>>")
    endif()

    set(Directory "${CMAKE_CURRENT_BINARY_DIR}/${Target}Dialogs")
    set(Stem "${Directory}/${Dialogs_NAME}")
    file(MAKE_DIRECTORY "${Directory}")
    add_custom_command(
        OUTPUT "${Stem}.h" "${Stem}.cpp"
        COMMAND "${Compiler}" --output "${Stem}" --name "ck${Dialogs_NAME}" --base "${BaseDirectory}" ${Handles}
            "${Includes}" ${Files}
        DEPENDS ${Files} "${Compiler}"
        COMMENT "Compiling dialogs ${Dialogs_NAME}"
        COMMAND_EXPAND_LISTS
        VERBATIM)
    target_sources(${Target} PRIVATE "${Stem}.h" "${Stem}.cpp")
    # Tools that read sources need all headers before anything else is built.
    if(NOT TARGET DialogManagerCompiledDialogs)
        add_custom_target(DialogManagerCompiledDialogs)
    endif()
    add_custom_target(${Target}${Dialogs_NAME} DEPENDS "${Stem}.h" "${Stem}.cpp")
    add_dependencies(DialogManagerCompiledDialogs ${Target}${Dialogs_NAME})
    add_dependencies(${Target} ${Target}${Dialogs_NAME})
    target_include_directories(${Target} PRIVATE "${Directory}")
    target_link_libraries(${Target} PRIVATE DialogManager::ROMLoader)
endfunction()

# Refuses a header of handles that no include directory of the target has. What cannot be known yet, generator
# expressions and libraries that are no targets at the top level, is left to dialogc.
function(_dialogmanager_check_handles Target Handles SourceDirectory BinaryDirectory)
    get_property(Directories TARGET ${Target} PROPERTY INCLUDE_DIRECTORIES)
    get_property(Libraries TARGET ${Target} PROPERTY LINK_LIBRARIES)
    set(Visited)
    while(Libraries)
        list(POP_FRONT Libraries Library)
        if(Library IN_LIST Visited OR Library MATCHES [[^-|/|^::@|^\$<LINK_ONLY:]])
            continue()
        elseif(NOT TARGET "${Library}")
            return()
        endif()
        list(APPEND Visited "${Library}")
        get_property(Inherited TARGET ${Library} PROPERTY INTERFACE_INCLUDE_DIRECTORIES)
        list(APPEND Directories ${Inherited})
        get_property(Inherited TARGET ${Library} PROPERTY INTERFACE_LINK_LIBRARIES)
        list(APPEND Libraries ${Inherited})
    endwhile()

    # dialogc looks in its working directory and beside its output as well.
    list(APPEND Directories "${BinaryDirectory}" "${BinaryDirectory}/${Target}Dialogs")
    list(TRANSFORM Directories REPLACE [[^\$<BUILD_INTERFACE:([^<>]*)>$]] [[\1]])
    list(FILTER Directories EXCLUDE REGEX [[^\$<INSTALL_INTERFACE:[^<>]*>$]])
    foreach(Directory IN LISTS Directories)
        if(Directory MATCHES [[\$<]])
            return()
        endif()
        cmake_path(ABSOLUTE_PATH Directory BASE_DIRECTORY "${SourceDirectory}")
        cmake_path(APPEND Directory "${Handles}" OUTPUT_VARIABLE Path)
        cmake_path(NORMAL_PATH Path)
        get_source_file_property(IsMade "${Path}" DIRECTORY "${SourceDirectory}" GENERATED)
        if(IsMade OR (EXISTS "${Path}" AND NOT IS_DIRECTORY "${Path}"))
            return()
        endif()
    endforeach()
    message(FATAL_ERROR "dialogmanager_add_compiled_dialogs(${Target}): HANDLES names ${Handles}, which is in none "
        "of the target's include directories, and no rule makes it there")
endfunction()

# The parts of the first function that check its arguments; they use its variables.

macro(_dialogmanager_check_compiled_dialogs)
    set(Given ${ARGN})
    if(NOT TARGET ${Target})
        message(FATAL_ERROR "${Call}: there is no target ${Target}; add it before this call")
    endif()
    foreach(Argument IN LISTS Dialogs_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "${Call} does not know the argument '${Argument}'; it takes NAME, FILES, "
            "BASE_DIRECTORY and HANDLES")
    endforeach()
    foreach(Argument IN ITEMS NAME FILES BASE_DIRECTORY HANDLES)
        if("${Argument}" IN_LIST Given AND "${Dialogs_${Argument}}" STREQUAL "")
            message(FATAL_ERROR "${Call}: ${Argument} has no value")
        endif()
        set(Times ${Given})
        list(FILTER Times INCLUDE REGEX "^${Argument}$")
        list(LENGTH Times Times)
        if(Times GREATER 1)
            message(FATAL_ERROR "${Call}: ${Argument} is given twice; give it once")
        endif()
    endforeach()
    foreach(Argument IN ITEMS NAME FILES)
        if("${Dialogs_${Argument}}" STREQUAL "")
            message(FATAL_ERROR "${Call}: ${Argument} is missing")
        endif()
    endforeach()
    if(NOT Dialogs_NAME MATCHES "^[A-Za-z0-9_]+$")
        message(FATAL_ERROR "${Call}: NAME is '${Dialogs_NAME}', which cannot be a part of the constant's name; "
            "it takes letters, digits and '_'")
    endif()
    if(Dialogs_NAME MATCHES "__|_t$")
        message(FATAL_ERROR "${Call}: NAME is '${Dialogs_NAME}', which cannot be a part of the constant's name: names "
            "with '__' are reserved, and names that end in '_t' are for types")
    endif()
    if(TARGET ${Target}${Dialogs_NAME})
        message(FATAL_ERROR "${Call}: NAME is ${Dialogs_NAME}, and there is a target ${Target}${Dialogs_NAME} "
            "already; give each call another name")
    endif()
endmacro()

# Sets IsMade if a rule makes the file.
macro(_dialogmanager_check_file Path What)
    get_source_file_property(IsMade "${Path}" GENERATED)
    if(NOT IsMade AND (NOT EXISTS "${Path}" OR IS_DIRECTORY "${Path}"))
        message(FATAL_ERROR "${Call}: ${What}, and there is no such file; a rule that makes it must be above "
            "this call")
    endif()
endmacro()

# Like dialogc, follows links to directories, but not a file that is a link itself.
macro(_dialogmanager_check_base Path)
    if(NOT IS_DIRECTORY "${BaseDirectory}")
        message(FATAL_ERROR "${Call}: BASE_DIRECTORY names ${Dialogs_BASE_DIRECTORY}, which is not a directory")
    endif()
    file(REAL_PATH "${BaseDirectory}" RealBase)
    cmake_path(GET Path PARENT_PATH RealDirectory)
    file(REAL_PATH "${RealDirectory}" RealDirectory)
    cmake_path(IS_PREFIX RealBase "${RealDirectory}" IsBelow)
    if(NOT IsBelow)
        message(FATAL_ERROR "${Call}: FILES names ${File}, which is not below the base directory "
            "${BaseDirectory}")
    endif()
endmacro()

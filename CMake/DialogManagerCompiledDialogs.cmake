# Compiles dialog description files into a target, from which CGUIDialogROMReader loads them.
#
#   dialogmanager_add_compiled_dialogs(<target>
#       NAME <name>                  the constant is ck<name>, its header <name>.h
#       FILES <file> ...             the description files
#       [BASE_DIRECTORY <directory>] the application loads the dialogs by their paths below this directory;
#                                    the default is the current source directory
#       [HANDLES <header>])          the header with the application's table of handles, as the target's
#                                    sources include it; without it the handles are looked up by their
#                                    names whenever a dialog is loaded
#
# The compiler is a program of the machine that builds. It is DIALOGMANAGER_DIALOGC if that is set, else the one
# of the library. A library that was installed for another machine has none.

set(DIALOGMANAGER_DIALOGC "" CACHE FILEPATH "dialogc as a program of the machine that builds")

function(dialogmanager_add_compiled_dialogs Target)
    cmake_parse_arguments(PARSE_ARGV 1 Dialogs "" "NAME;BASE_DIRECTORY;HANDLES" "FILES")
    if(NOT Dialogs_NAME OR NOT Dialogs_FILES OR Dialogs_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "dialogmanager_add_compiled_dialogs(${Target}) takes NAME, FILES, BASE_DIRECTORY "
            "and HANDLES, of which the first two are needed; ${Dialogs_UNPARSED_ARGUMENTS}")
    endif()

    if(DIALOGMANAGER_DIALOGC)
        set(Compiler "${DIALOGMANAGER_DIALOGC}")
    elseif(TARGET DialogManager::dialogc)
        set(Compiler DialogManager::dialogc)
    else()
        message(FATAL_ERROR "dialogmanager_add_compiled_dialogs(${Target}): set DIALOGMANAGER_DIALOGC to the "
            "path of dialogc, built for this machine")
    endif()

    set(BaseDirectory "${CMAKE_CURRENT_SOURCE_DIR}")
    if(Dialogs_BASE_DIRECTORY)
        cmake_path(ABSOLUTE_PATH Dialogs_BASE_DIRECTORY NORMALIZE OUTPUT_VARIABLE BaseDirectory)
    endif()
    set(Handles)
    set(Includes)
    if(Dialogs_HANDLES)
        set(Directories "$<TARGET_PROPERTY:${Target},INCLUDE_DIRECTORIES>")
        set(Handles --handles "${Dialogs_HANDLES}")
        set(Includes "$<$<BOOL:${Directories}>:--include=$<JOIN:${Directories},;--include=>>")
    endif()
    set(Files)
    foreach(File IN LISTS Dialogs_FILES)
        cmake_path(ABSOLUTE_PATH File NORMALIZE)
        list(APPEND Files "${File}")
    endforeach()

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
    # Tools that read sources want all headers to be there before anything else is built.
    if(NOT TARGET DialogManagerCompiledDialogs)
        add_custom_target(DialogManagerCompiledDialogs)
    endif()
    add_custom_target(${Target}${Dialogs_NAME} DEPENDS "${Stem}.h" "${Stem}.cpp")
    add_dependencies(DialogManagerCompiledDialogs ${Target}${Dialogs_NAME})
    add_dependencies(${Target} ${Target}${Dialogs_NAME})
    target_include_directories(${Target} PRIVATE "${Directory}")
    target_link_libraries(${Target} PRIVATE DialogManager::ROMLoader)
endfunction()

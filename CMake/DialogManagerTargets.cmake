# SPDX-License-Identifier: MIT
# Functions that give the targets of the project the same rules.

# Compiles a target by the rules of the project. Warnings are errors only for those who develop the project: a
# newer compiler must not stop somebody who only uses the library.
function(dialogmanager_apply_rules Target)
    target_compile_features(${Target} PUBLIC cxx_std_17)
    set_target_properties(${Target} PROPERTIES CXX_EXTENSIONS OFF)
    target_compile_options(${Target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow
        "-fmacro-prefix-map=${DialogManager_SOURCE_DIR}/=")
    # The start-up of a board and the hooks of its C library have reserved names.
    if(NOT DIALOGMANAGER_BUILD_DEVICE)
        target_compile_options(${Target} PRIVATE
            $<$<CXX_COMPILER_ID:Clang>:-Wreserved-identifier -Wreserved-macro-identifier>)
    endif()
    if(DIALOGMANAGER_WARNINGS_AS_ERRORS)
        target_compile_options(${Target} PRIVATE -Werror)
    endif()

    if(NOT DIALOGMANAGER_RTTI)
        target_compile_options(${Target} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-fno-rtti>)
    endif()
    if(DIALOGMANAGER_SANITIZE)
        list(JOIN DIALOGMANAGER_SANITIZE "," Sanitizers)
        target_compile_options(${Target} PRIVATE -fsanitize=${Sanitizers} -fno-sanitize-recover=all
            -fno-omit-frame-pointer)
        # With these checks g++ does not see that the standard library initialises what it uses.
        target_compile_options(${Target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
        target_link_options(${Target} PUBLIC -fsanitize=${Sanitizers})
    endif()
    if(DIALOGMANAGER_COVERAGE)
        target_compile_options(${Target} PRIVATE -fprofile-instr-generate -fcoverage-mapping)
        target_link_options(${Target} PUBLIC -fprofile-instr-generate)
    endif()
endfunction()

# Compiles all targets of a directory by the rules of the project.
function(dialogmanager_apply_rules_to_all Directory)
    get_property(Targets DIRECTORY "${Directory}" PROPERTY BUILDSYSTEM_TARGETS)
    foreach(Target IN LISTS Targets)
        get_target_property(Type ${Target} TYPE)
        if(NOT Type STREQUAL "UTILITY")
            dialogmanager_apply_rules(${Target})
        endif()
    endforeach()
endfunction()

# Adds the library DialogManager<Name>, alias DialogManager::<Name>.
#   SOURCES             its source files
#   INCLUDE_ROOT        the directory from which its headers are included
#   HEADER_DIRECTORIES  the directories below that root which hold its public headers; directories Browser
#                       and Compiler below them belong to programs
#   HEADERS             public headers of a library that shares their directory with another one
#   LINKS               libraries whose headers its own headers include
#   DESCRIPTION         what it is, in one line, for pkg-config
#   PKG_CONFIG          modules of pkg-config that it needs besides LINKS
#   PKG_CONFIG_LIBRARIES libraries that it needs and pkg-config does not know
#   SHAREABLE           its headers mark with GUI_API what a shared library shows: where DIALOGMANAGER_SHARED is
#                       set it is one
function(dialogmanager_add_library Name)
    cmake_parse_arguments(PARSE_ARGV 1 Library "SHAREABLE" "INCLUDE_ROOT;DESCRIPTION"
        "SOURCES;HEADER_DIRECTORIES;HEADERS;LINKS;PKG_CONFIG;PKG_CONFIG_LIBRARIES")
    set(Target DialogManager${Name})
    cmake_path(ABSOLUTE_PATH Library_INCLUDE_ROOT NORMALIZE OUTPUT_VARIABLE IncludeRoot)

    if(Library_SOURCES)
        set(Kind STATIC)
        if(DIALOGMANAGER_SHARED AND Library_SHAREABLE)
            set(Kind SHARED)
        endif()
        add_library(${Target} ${Kind} ${Library_SOURCES})
        set(Visibility PUBLIC)
        dialogmanager_apply_rules(${Target})
        if(Kind STREQUAL SHARED)
            # Before version 1.0 every minor version may change what programs were compiled for.
            set_target_properties(${Target} PROPERTIES
                VERSION ${DialogManager_VERSION}
                SOVERSION ${DialogManager_VERSION_MAJOR}.${DialogManager_VERSION_MINOR}
                CXX_VISIBILITY_PRESET hidden)
            target_compile_definitions(${Target} PUBLIC GUI_SHARED_LIBRARIES)
        endif()
    else()
        add_library(${Target} INTERFACE)
        set(Visibility INTERFACE)
    endif()
    add_library(DialogManager::${Name} ALIAS ${Target})
    set_target_properties(${Target} PROPERTIES
        EXPORT_NAME ${Name}
        DIALOGMANAGER_INCLUDE_ROOT "${IncludeRoot}"
        DIALOGMANAGER_HEADER_DIRECTORIES "${Library_HEADER_DIRECTORIES}"
        DIALOGMANAGER_HEADERS "${Library_HEADERS}"
        DIALOGMANAGER_LINKS "${Library_LINKS}"
        DIALOGMANAGER_DESCRIPTION "${Library_DESCRIPTION}"
        DIALOGMANAGER_PKG_CONFIG "${Library_PKG_CONFIG}"
        DIALOGMANAGER_PKG_CONFIG_LIBRARIES "${Library_PKG_CONFIG_LIBRARIES}")
    target_include_directories(${Target} ${Visibility}
        "$<BUILD_INTERFACE:${IncludeRoot}>"
        "$<INSTALL_INTERFACE:include/DialogManager>")
    target_link_libraries(${Target} ${Visibility} ${Library_LINKS})
    set_property(GLOBAL APPEND PROPERTY DIALOGMANAGER_LIBRARIES ${Target})
endfunction()

# Adds a program <Name>, alias DialogManager::<Name>, that is installed with the libraries; where nothing is
# installed, only who uses it builds it.
#   SOURCES  its source files
#   LINKS    libraries that it uses
function(dialogmanager_add_tool Name)
    cmake_parse_arguments(PARSE_ARGV 1 Tool "" "" "SOURCES;LINKS")
    add_executable(${Name} ${Tool_SOURCES})
    dialogmanager_apply_rules(${Name})
    target_link_libraries(${Name} PRIVATE ${Tool_LINKS})
    add_executable(DialogManager::${Name} ALIAS ${Name})
    if(NOT DIALOGMANAGER_INSTALL)
        set_target_properties(${Name} PROPERTIES EXCLUDE_FROM_ALL ON)
    endif()
    set_property(GLOBAL APPEND PROPERTY DIALOGMANAGER_TOOLS ${Name})
endfunction()

# Adds the target HeaderCheck, which compiles every public header alone, and twice in one unit.
function(dialogmanager_add_header_check)
    get_property(Libraries GLOBAL PROPERTY DIALOGMANAGER_LIBRARIES)
    set(Units)
    foreach(Library IN LISTS Libraries)
        get_target_property(IncludeRoot ${Library} DIALOGMANAGER_INCLUDE_ROOT)
        get_target_property(Directories ${Library} DIALOGMANAGER_HEADER_DIRECTORIES)
        foreach(Directory IN LISTS Directories)
            file(GLOB_RECURSE Headers CONFIGURE_DEPENDS RELATIVE "${IncludeRoot}"
                "${IncludeRoot}/${Directory}/*.h")
            foreach(Header IN LISTS Headers)
                set(Unit "${CMAKE_CURRENT_BINARY_DIR}/HeaderCheck/${Header}.cpp")
                file(CONFIGURE OUTPUT "${Unit}"
                    CONTENT "#include \"${Header}\"\n#include \"${Header}\"\n" @ONLY)
                list(APPEND Units "${Unit}")
            endforeach()
        endforeach()
    endforeach()

    add_library(HeaderCheck OBJECT EXCLUDE_FROM_ALL ${Units})
    dialogmanager_apply_rules(HeaderCheck)
    target_link_libraries(HeaderCheck PRIVATE ${Libraries})
endfunction()

# SPDX-License-Identifier: MIT
# Makes the target DialogManagerLVGLLibrary: LVGL 9, the first of
#   - a target lvgl that the project around this one has
#   - the sources in DIALOGMANAGER_LVGL_SOURCE
#   - an installed one
#   - the tag DIALOGMANAGER_LVGL_TAG of the repository DIALOGMANAGER_LVGL_REPOSITORY
# Sources are built with DIALOGMANAGER_LVGL_CONFIGURATION, the path of an lv_conf.h. Says which one it takes.
set(DIALOGMANAGER_LVGL_SOURCE "" CACHE PATH "Sources of LVGL 9; empty: an installed one, or fetched")
set(DIALOGMANAGER_LVGL_REPOSITORY https://github.com/lvgl/lvgl.git CACHE STRING "Where LVGL is fetched from")
set(DIALOGMANAGER_LVGL_TAG v9.5.0 CACHE STRING "The tag of LVGL that is fetched")
set(DIALOGMANAGER_LVGL_CONFIGURATION "${CMAKE_CURRENT_SOURCE_DIR}/Configuration/lv_conf.h" CACHE FILEPATH
    "The lv_conf.h for sources of LVGL")

add_library(DialogManagerLVGLLibrary INTERFACE)

# Sources of LVGL in a folder, with our settings. It adds itself to the installation otherwise.
function(dialogmanager_add_lvgl Source)
    enable_language(C)
    set(LV_BUILD_CONF_PATH "${DIALOGMANAGER_LVGL_CONFIGURATION}" CACHE PATH "" FORCE)
    set(CONFIG_LV_BUILD_DEMOS OFF CACHE BOOL "" FORCE)
    set(CONFIG_LV_BUILD_EXAMPLES OFF CACHE BOOL "" FORCE)
    set(CONFIG_LV_USE_THORVG_INTERNAL OFF CACHE BOOL "" FORCE)
    add_subdirectory("${Source}" "${CMAKE_BINARY_DIR}/LVGL" EXCLUDE_FROM_ALL)
    if(DIALOGMANAGER_SANITIZE)
        # Leaks of LVGL's own objects are leaks of the adapter.
        list(JOIN DIALOGMANAGER_SANITIZE "," Sanitizers)
        target_compile_options(lvgl PRIVATE "-fsanitize=address" -fno-omit-frame-pointer)
    endif()
endfunction()

# Links a target of LVGL without the rules of this project for its headers.
function(dialogmanager_link_lvgl Target)
    target_link_libraries(DialogManagerLVGLLibrary INTERFACE ${Target})
    get_target_property(Includes ${Target} INTERFACE_INCLUDE_DIRECTORIES)
    if(Includes)
        target_include_directories(DialogManagerLVGLLibrary SYSTEM INTERFACE ${Includes})
    endif()
endfunction()

if(TARGET lvgl)
    message(STATUS "LVGL: the target lvgl of the project around")
    dialogmanager_link_lvgl(lvgl)
    return()
endif()
if(DIALOGMANAGER_LVGL_SOURCE)
    if(NOT EXISTS "${DIALOGMANAGER_LVGL_SOURCE}/lvgl.h")
        message(FATAL_ERROR "${DIALOGMANAGER_LVGL_SOURCE} has no lvgl.h; expected the sources of LVGL 9")
    endif()
    message(STATUS "LVGL: the sources in ${DIALOGMANAGER_LVGL_SOURCE}")
    dialogmanager_add_lvgl("${DIALOGMANAGER_LVGL_SOURCE}")
    dialogmanager_link_lvgl(lvgl)
    return()
endif()
find_package(lvgl 9 CONFIG QUIET)
if(TARGET lvgl::lvgl)
    message(STATUS "LVGL: installed, ${lvgl_VERSION} in ${lvgl_DIR}")
    dialogmanager_link_lvgl(lvgl::lvgl)
    return()
endif()
find_package(PkgConfig QUIET)
if(PkgConfig_FOUND)
    pkg_check_modules(LVGL IMPORTED_TARGET QUIET lvgl>=9)
    if(LVGL_FOUND)
        message(STATUS "LVGL: installed, ${LVGL_VERSION}, found by pkg-config")
        dialogmanager_link_lvgl(PkgConfig::LVGL)
        return()
    endif()
endif()
message(STATUS "LVGL: fetching ${DIALOGMANAGER_LVGL_TAG} of ${DIALOGMANAGER_LVGL_REPOSITORY}")
include(FetchContent)
if(NOT FETCHCONTENT_SOURCE_DIR_LVGL AND NOT FETCHCONTENT_FULLY_DISCONNECTED
    AND NOT EXISTS "${FETCHCONTENT_BASE_DIR}/lvgl-src/lvgl.h")
    # Asked first: a clone that fails says much, but not what to do.
    find_package(Git QUIET)
    set(Answer 1)
    set(Reason "git is missing")
    if(GIT_FOUND)
        execute_process(COMMAND "${CMAKE_COMMAND}" -E env GIT_TERMINAL_PROMPT=0 "${GIT_EXECUTABLE}" ls-remote
            --exit-code --tags "${DIALOGMANAGER_LVGL_REPOSITORY}" "${DIALOGMANAGER_LVGL_TAG}"
            RESULT_VARIABLE Answer OUTPUT_QUIET ERROR_VARIABLE Reason)
    endif()
    if(NOT Answer STREQUAL "0")
        string(REGEX REPLACE "\n.*" "" Reason "${Reason}")
        if(Reason STREQUAL "")
            set(Reason "it has no such tag")
        endif()
        message(FATAL_ERROR "There is no LVGL: it is not installed, and ${DIALOGMANAGER_LVGL_TAG} of "
            "${DIALOGMANAGER_LVGL_REPOSITORY} cannot be fetched (${Reason}). Set DIALOGMANAGER_LVGL_SOURCE to its "
            "sources, install it, or set DIALOGMANAGER_LVGL_REPOSITORY to a copy.")
    endif()
endif()
FetchContent_Declare(lvgl GIT_REPOSITORY "${DIALOGMANAGER_LVGL_REPOSITORY}" GIT_TAG ${DIALOGMANAGER_LVGL_TAG}
    GIT_SHALLOW ON)
FetchContent_GetProperties(lvgl)
if(NOT lvgl_POPULATED)
    FetchContent_Populate(lvgl)
endif()
dialogmanager_add_lvgl("${lvgl_SOURCE_DIR}")
dialogmanager_link_lvgl(lvgl)

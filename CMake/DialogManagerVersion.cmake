# SPDX-License-Identifier: MIT
# Checks that the numbers GUI_VERSION_MAJOR, GUI_VERSION_MINOR and GUI_VERSION_PATCH in a header are those of a
# version. The build does not generate the header, because sources copied into another build need it, too.
function(dialogmanager_check_version Header Version)
    file(STRINGS "${Header}" Numbers REGEX "^#define GUI_VERSION_(MAJOR|MINOR|PATCH) [0-9]+$")
    list(TRANSFORM Numbers REPLACE "^.* " "")
    list(JOIN Numbers "." Found)
    if(NOT Found STREQUAL Version)
        message(FATAL_ERROR "${Header} says version '${Found}' and project() says ${Version}; correct the header")
    endif()
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${Header}")
endfunction()

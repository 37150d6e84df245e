# SPDX-License-Identifier: MIT
# Debian packages, which cpack makes of the components: the shared libraries, what compiles with them, and dialogc.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME dialogmanager)
set(CPACK_PACKAGE_VERSION ${DialogManager_VERSION})
set(CPACK_PACKAGE_VENDOR "the dialog manager's developers")
set(CPACK_PACKAGE_CONTACT "the dialog manager's developers <developers@example.com>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Dialogs, their history and popups for devices with a screen")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_ALL Runtime Development Tools)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_CURRENT_BINARY_DIR}")

set(RuntimePackage libdialogmanager${DialogManager_VERSION_MAJOR}.${DialogManager_VERSION_MINOR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${RuntimePackage})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "Dialogs, their history and popups: the shared libraries")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libdialogmanager-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${RuntimePackage} (= ${DialogManager_VERSION}), libexpat1-dev")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "Dialogs, their history and popups: what programs are compiled with")
set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME dialogmanager-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${RuntimePackage} (= ${DialogManager_VERSION})")
set(CPACK_DEBIAN_TOOLS_DESCRIPTION "Dialogs, their history and popups: the compiler of dialogs")

# Only packages want a copy each; an installation at once has LICENSE.
foreach(Component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${Component} Name)
    install(FILES "${DialogManager_SOURCE_DIR}/LICENSE" RENAME copyright
        DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${Name}_PACKAGE_NAME}"
        COMPONENT ${Component} EXCLUDE_FROM_ALL)
endforeach()
include(CPack)

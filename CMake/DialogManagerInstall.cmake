# SPDX-License-Identifier: MIT
# Install rules and the package that find_package(DialogManager) finds. Each library is exported by
# itself: an application that uses the core alone needs no expat.
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)
include(DialogManagerPkgConfig)

set(PackageDirectory "${CMAKE_INSTALL_LIBDIR}/cmake/DialogManager")

# Shared libraries find each other, and dialogc finds them, wherever they are installed.
cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBDIR BASE_DIRECTORY "${CMAKE_INSTALL_FULL_BINDIR}"
    OUTPUT_VARIABLE FromProgramsToLibraries)

get_property(Libraries GLOBAL PROPERTY DIALOGMANAGER_LIBRARIES)
foreach(Library IN LISTS Libraries)
    set_target_properties(${Library} PROPERTIES INSTALL_RPATH "$ORIGIN")
    install(TARGETS ${Library} EXPORT ${Library}Targets
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Runtime NAMELINK_COMPONENT Development
        ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Development)
    install(EXPORT ${Library}Targets NAMESPACE DialogManager:: DESTINATION "${PackageDirectory}"
        COMPONENT Development)
    dialogmanager_install_pkg_config(${Library})

    get_target_property(IncludeRoot ${Library} DIALOGMANAGER_INCLUDE_ROOT)
    get_target_property(Directories ${Library} DIALOGMANAGER_HEADER_DIRECTORIES)
    foreach(Directory IN LISTS Directories)
        cmake_path(GET Directory PARENT_PATH Parent)
        install(DIRECTORY "${IncludeRoot}/${Directory}" DESTINATION "include/DialogManager/${Parent}"
            COMPONENT Development
            FILES_MATCHING PATTERN "*.h" PATTERN Browser EXCLUDE PATTERN Compiler EXCLUDE)
    endforeach()
    get_target_property(Headers ${Library} DIALOGMANAGER_HEADERS)
    foreach(Header IN LISTS Headers)
        cmake_path(GET Header PARENT_PATH Directory)
        install(FILES "${IncludeRoot}/${Header}" DESTINATION "include/DialogManager/${Directory}"
            COMPONENT Development)
    endforeach()
endforeach()

install(FILES "${DialogManager_SOURCE_DIR}/LICENSE" DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT Development)
set(Schemas "${DialogManager_SOURCE_DIR}/Docs/DialogFile.xsd")
if(DIALOGMANAGER_BUILD_WIDGETS)
    list(APPEND Schemas "${DialogManager_SOURCE_DIR}/Docs/Widgets.xsd")
endif()
if(DIALOGMANAGER_BUILD_INSPECTION)
    list(APPEND Schemas "${DialogManager_SOURCE_DIR}/Inspection/InspectionProtocol.schema.json")
endif()
install(FILES ${Schemas} DESTINATION "${CMAKE_INSTALL_DATADIR}/DialogManager" COMPONENT Development)

set(Printers "${DialogManager_SOURCE_DIR}/Debugger/DialogManagerPrinters.py")
install(FILES "${Printers}" DESTINATION "${CMAKE_INSTALL_DATADIR}/DialogManager" COMPONENT Development)
if(DIALOGMANAGER_SHARED)
    # GDB looks for it by this name.
    install(FILES "${Printers}" RENAME libDialogManagerCore.so.${DialogManager_VERSION}-gdb.py
        DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Development)
endif()

get_property(Tools GLOBAL PROPERTY DIALOGMANAGER_TOOLS)
foreach(Tool IN LISTS Tools)
    set_target_properties(${Tool} PROPERTIES INSTALL_RPATH "$ORIGIN/${FromProgramsToLibraries}")
    install(TARGETS ${Tool} EXPORT ${Tool}Targets RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
        COMPONENT Tools)
    install(EXPORT ${Tool}Targets NAMESPACE DialogManager:: DESTINATION "${PackageDirectory}" COMPONENT Tools)
endforeach()

list(TRANSFORM Libraries REPLACE "^DialogManager" "" OUTPUT_VARIABLE Components)
configure_package_config_file(
    "${CMAKE_CURRENT_LIST_DIR}/DialogManagerConfig.cmake.in"
    "${CMAKE_CURRENT_BINARY_DIR}/DialogManagerConfig.cmake"
    INSTALL_DESTINATION "${PackageDirectory}")
write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/DialogManagerConfigVersion.cmake"
    COMPATIBILITY SameMinorVersion)
install(FILES
    "${CMAKE_CURRENT_BINARY_DIR}/DialogManagerConfig.cmake"
    "${CMAKE_CURRENT_BINARY_DIR}/DialogManagerConfigVersion.cmake"
    "${CMAKE_CURRENT_LIST_DIR}/DialogManagerCompiledDialogs.cmake"
    DESTINATION "${PackageDirectory}" COMPONENT Development)

include(DialogManagerPackages)

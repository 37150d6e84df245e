# Install rules and the package that find_package(DialogManager) finds. Each library is exported by
# itself: an application that uses the core alone needs no pugixml.
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

set(PackageDirectory "${CMAKE_INSTALL_LIBDIR}/cmake/DialogManager")

get_property(Libraries GLOBAL PROPERTY DIALOGMANAGER_LIBRARIES)
foreach(Library IN LISTS Libraries)
    install(TARGETS ${Library} EXPORT ${Library}Targets ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
    install(EXPORT ${Library}Targets NAMESPACE DialogManager:: DESTINATION "${PackageDirectory}")

    get_target_property(IncludeRoot ${Library} DIALOGMANAGER_INCLUDE_ROOT)
    get_target_property(Directories ${Library} DIALOGMANAGER_HEADER_DIRECTORIES)
    foreach(Directory IN LISTS Directories)
        install(DIRECTORY "${IncludeRoot}/${Directory}" DESTINATION include/DialogManager
            FILES_MATCHING PATTERN "*.h" PATTERN Compiler EXCLUDE)
    endforeach()
    get_target_property(Headers ${Library} DIALOGMANAGER_HEADERS)
    foreach(Header IN LISTS Headers)
        cmake_path(GET Header PARENT_PATH Directory)
        install(FILES "${IncludeRoot}/${Header}" DESTINATION "include/DialogManager/${Directory}")
    endforeach()
endforeach()

install(FILES "${DialogManager_SOURCE_DIR}/LICENSE" DESTINATION "${CMAKE_INSTALL_DOCDIR}")
set(Schemas "${DialogManager_SOURCE_DIR}/Docs/DialogFile.xsd")
if(DIALOGMANAGER_BUILD_WIDGETS)
    list(APPEND Schemas "${DialogManager_SOURCE_DIR}/Docs/Widgets.xsd")
endif()
install(FILES ${Schemas}
    DESTINATION "${CMAKE_INSTALL_DATADIR}/DialogManager")

get_property(Tools GLOBAL PROPERTY DIALOGMANAGER_TOOLS)
foreach(Tool IN LISTS Tools)
    install(TARGETS ${Tool} EXPORT ${Tool}Targets RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
    install(EXPORT ${Tool}Targets NAMESPACE DialogManager:: DESTINATION "${PackageDirectory}")
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
    DESTINATION "${PackageDirectory}")

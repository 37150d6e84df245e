# SPDX-License-Identifier: MIT
# The files that pkg-config finds: dialogmanager-<name in lower case> for each library.

# Writes and installs that of a library. It says where things are from its own place, so that what is installed may be
# moved.
function(dialogmanager_install_pkg_config Library)
    set(Directory "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}/${Directory}"
        OUTPUT_VARIABLE Up)
    _dialogmanager_pkg_config_name(${Library} Name)
    get_target_property(Description ${Library} DIALOGMANAGER_DESCRIPTION)
    get_target_property(Needed ${Library} DIALOGMANAGER_PKG_CONFIG)
    get_target_property(Links ${Library} DIALOGMANAGER_LINKS)
    get_target_property(Type ${Library} TYPE)

    set(Requires)
    foreach(Link IN LISTS Links)
        _dialogmanager_pkg_config_name(${Link} Other)
        list(APPEND Requires "${Other} = ${DialogManager_VERSION}")
    endforeach()
    set(RequiresPrivate)
    if(Type STREQUAL SHARED_LIBRARY)
        set(RequiresPrivate ${Needed})
    else()
        list(APPEND Requires ${Needed})
    endif()
    list(JOIN Requires ", " Requires)
    list(JOIN RequiresPrivate ", " RequiresPrivate)
    set(Libs)
    if(NOT Type STREQUAL INTERFACE_LIBRARY)
        set(Libs "-L\${libdir} -l${Library}")
    endif()
    get_target_property(Others ${Library} DIALOGMANAGER_PKG_CONFIG_LIBRARIES)
    foreach(Other IN LISTS Others)
        string(APPEND Libs " -l${Other}")
    endforeach()
    set(Definitions "$<REMOVE_DUPLICATES:$<TARGET_PROPERTY:${Library},INTERFACE_COMPILE_DEFINITIONS>>")
    set(Options "$<REMOVE_DUPLICATES:$<TARGET_PROPERTY:${Library},INTERFACE_COMPILE_OPTIONS>>")

    set(File "${CMAKE_CURRENT_BINARY_DIR}/${Name}.pc")
    file(GENERATE OUTPUT "${File}" CONTENT "\
prefix=\${pcfiledir}/${Up}
libdir=\${prefix}/${CMAKE_INSTALL_LIBDIR}
includedir=\${prefix}/include/DialogManager

Name: ${Name}
Description: ${Description}
Version: ${DialogManager_VERSION}
Requires: ${Requires}
Requires.private: ${RequiresPrivate}
Cflags: -I\${includedir}$<$<BOOL:${Definitions}>: -D$<JOIN:${Definitions}, -D>>$<$<BOOL:${Options}>: $<JOIN:${Options}, >>
Libs: ${Libs}
"
        TARGET ${Library})
    install(FILES "${File}" DESTINATION "${Directory}" COMPONENT Development)
endfunction()

# The name of a library for pkg-config.
function(_dialogmanager_pkg_config_name Library NameOUT)
    string(REGEX REPLACE "^DialogManager" "" Name ${Library})
    string(TOLOWER "dialogmanager-${Name}" Name)
    set(${NameOUT} ${Name} PARENT_SCOPE)
endfunction()

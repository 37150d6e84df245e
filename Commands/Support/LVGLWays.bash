# SPDX-License-Identifier: MIT
# The ways in which an application's build gets LVGL, tried with a program outside the project. Needs OutsidePrograms.bash
# and the build lvgl, whose library is not built again.

outside=build/lvgl-outside

# Configures the outside program, and checks what is said: <name of the way> <expected text> <CMake argument> ...
configure_way()
{
    local log=build/logs/lvgl-way-$1.log expected=$2 way=$1 status=0
    shift 2
    rm -rf "${outside:?}/$way"
    watched "lvgl-way-$way" "$log" cmake -S Tests/Package/WithLVGL -B "$outside/$way" -G Ninja -DCMAKE_CXX_COMPILER=g++ \
        "-DDIALOGMANAGER_DIRECTORY=$PWD" "$@" || status=$?
    tr -s ' \n' '  ' <"$log" | grep -q -F "$expected" ||
        fail "LVGL that is $way: expected '$expected' in $log"
    return "$status"
}

# A build that must not find any LVGL: <name of the way> <expected text> <CMake argument> ...
refuse_way()
{
    ! configure_way "$@" || fail "LVGL that is $1 is no error"
    printf 'LVGL that is %s: said so\n' "$1"
}

# Builds the outside program with a library compiled by the build lvgl, and runs it: <name of the way> <expected text>
# <CMake argument> ...
build_way()
{
    local way=$1
    configure_way "$@" -DCMAKE_BUILD_TYPE=Debug -DCMAKE_EXE_LINKER_FLAGS=-fsanitize=address ||
        fail "an application cannot take LVGL that is $way; see build/logs/lvgl-way-$way.log"
    quietly "lvgl-way-$way-build" cmake --build "$outside/$way" --target LVGL
    run_outside_program "$way" LVGL
}

# A repository of its own with the sources as a tag: <sources> <repository> <tag>
make_repository()
{
    rm -rf "$2"
    cp -r "$1" "$2"
    # What it would take over from the user who runs this.
    (cd "$2" && export GIT_CONFIG_GLOBAL=/dev/null GIT_CONFIG_NOSYSTEM=1 && git init -q && git add -A -f &&
        git -c user.name=test -c user.email=test@localhost commit -q -m "$3" && git tag "$3")
}

# An LVGL as package managers install it, whose own installation has no CMake package: <sources> <library> <folder>
make_package()
{
    mkdir -p "$3"
    printf '%s\n' 'add_library(lvgl::lvgl STATIC IMPORTED)' \
        "set_target_properties(lvgl::lvgl PROPERTIES IMPORTED_LOCATION \"$2\" INTERFACE_INCLUDE_DIRECTORIES \"$1\")" \
        >"$3/lvglConfig.cmake"
    printf '%s\n' 'set(PACKAGE_VERSION 9.5.0)' 'set(PACKAGE_VERSION_COMPATIBLE ON)' >"$3/lvglConfigVersion.cmake"
}

# All ways: <sources> <library of the build lvgl>
try_ways()
{
    local installed=$PWD/$outside/prefix repository=$PWD/$outside/repository package=$PWD/$outside/package
    rm -rf "$installed"
    quietly lvgl-install cmake --install build/lvgl/LVGL --prefix "$installed"
    build_way around 'LVGL: the target lvgl of the project around' "-DLVGL_LIBRARY=$2" "-DLVGL_SOURCE=$1" \
        "-DLVGL_CONFIGURATION=$PWD/Adapters/LVGL/Configuration/lv_conf.h"
    # It was installed to another place than it was built for.
    build_way installed 'LVGL: installed, 9.5.0, found by pkg-config' "-DCMAKE_PREFIX_PATH=$installed" \
        -DPKG_CONFIG_ARGN=--define-prefix
    make_package "$1" "$2" "$package"
    configure_way packaged "LVGL: installed, 9.5.0 in $package" "-DCMAKE_PREFIX_PATH=$package" ||
        fail 'an application cannot take LVGL from a package; see build/logs/lvgl-way-packaged.log'
    configure_way folder "LVGL: the sources in $1" "-DDIALOGMANAGER_LVGL_SOURCE=$1" ||
        fail 'an application cannot take LVGL from a folder; see build/logs/lvgl-way-folder.log'
    refuse_way wrong-folder 'has no lvgl.h; expected the sources of LVGL 9' "-DDIALOGMANAGER_LVGL_SOURCE=$PWD/Docs"
    make_repository "$1" "$repository" v9.5.0
    # One that is installed here would be taken.
    export PKG_CONFIG_LIBDIR=/nowhere
    configure_way fetched "LVGL: fetching v9.5.0 of file://$repository" -DCMAKE_DISABLE_FIND_PACKAGE_lvgl=ON \
        "-DDIALOGMANAGER_LVGL_REPOSITORY=file://$repository" ||
        fail 'an application cannot fetch LVGL; see build/logs/lvgl-way-fetched.log'
    # From then on it needs no network.
    rm -rf "$repository"
    quietly lvgl-way-fetched-again cmake "$outside/fetched"
    refuse_way nowhere 'There is no LVGL: it is not installed, and v9.5.0 of file:///nowhere cannot be fetched (' \
        -DCMAKE_DISABLE_FIND_PACKAGE_lvgl=ON -DDIALOGMANAGER_LVGL_REPOSITORY=file:///nowhere
    unset PKG_CONFIG_LIBDIR
    printf 'LVGL in a folder, packaged and fetched: configured\n'
    rm -rf "$outside/fetched"
}

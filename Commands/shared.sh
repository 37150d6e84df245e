# SPDX-License-Identifier: MIT
# Group: check
# Help: [--update] | shared libraries: programs compiled with the recorded interface still fit; Debian packages
# Arguments: 1
# Needs: @build abigail-tools binutils dpkg-dev pkg-config
# Gate: 064
source Commands/Support/Command.bash
source Commands/Support/OutsidePrograms.bash

# Writes what compiled programs depend on, symbols, sizes, members and virtual functions, but not where the library was
# built: <library> <file>
dump_interface()
{
    abidw --exported-interfaces-only --drop-private-types --headers-dir Include --headers-dir Loader --no-corpus-path \
        --no-comp-dir-path --no-show-locs --no-parameter-names --type-id-style hash \
        "build/shared/libDialogManager$1.so" | sed "s|path='$PWD/|path='|" >"$2"
}

# Compares the interface of a library with the recorded one, or records it. What is new harms no program: <library>
check_interface()
{
    local recorded=Tests/Shared/$1.abi
    dump_interface "$1" "build/shared/$1.abi"
    if [ "$update" = yes ]; then
        cp "build/shared/$1.abi" "$recorded"
        return
    fi
    # Programs call no private functions, so these may go.
    awk "/<member-function access='private'/ { getline
        if (match(\$0, /elf-symbol-id='[^']*'/))
            printf \"[suppress_function]\n  change_kind = deleted-function\n  symbol_name = %s\n\",
                substr(\$0, RSTART + 15, RLENGTH - 16) }" "$recorded" >build/shared/private.txt
    abidiff --no-added-syms --suppressions build/shared/private.txt "$recorded" "build/shared/$1.abi" \
        >"build/logs/shared-$1.log" || {
        cat "build/logs/shared-$1.log"
        fail "programs compiled with libDialogManager$1.so would break by the above; if that is meant, say so in \
CHANGELOG.md and record it with ./run shared --update"
    }
}

# Fails unless a package holds a file: <package> <file>
check_package()
{
    dpkg-deb --contents "build/shared/$1"_*.deb >"build/logs/shared-$1.log"
    grep -q -E " \./usr/$2( -> .*)?$" "build/logs/shared-$1.log" || fail "the package $1 lacks /usr/$2"
}

only_option --update "$@"
update=no
[ $# -eq 0 ] || update=yes
# What is kept of another version would not be of this one.
rm -f build/shared/*.deb
build shared
version=$(sed -n 's/^project(DialogManager VERSION \([0-9]*\.[0-9]*\)\..*/\1/p' CMakeLists.txt)
for library in Core ROMLoader Loader; do
    file=build/shared/libDialogManager$library.so
    readelf -d "$file" | grep -q -F "soname: [libDialogManager$library.so.$version]" ||
        fail "$file should ask for libDialogManager$library.so.$version"
    check_interface "$library"
done
if nm -D -C --defined-only build/shared/libDialogManagerLoader.so | grep -F 'ReadRegularFile('; then
    fail 'libDialogManagerLoader.so shows the function above, which is its own'
fi
printf 'The shared libraries show the recorded interface\n'

outside=build/outside-shared
rm -rf "$outside"
quietly shared-install cmake --install build/shared --prefix "$outside/installed"
prefix=$PWD/$outside/installed
outside_programs Installed "-DCMAKE_PREFIX_PATH=$prefix" Application Loading Compiled
pkg_config_program "$prefix" dialogmanager-core Application Tests/Package/{Application,Main}.cpp
pkg_config_program "$prefix" 'dialogmanager-testsupport dialogmanager-loader' Loading Tests/Package/Loading.cpp

quietly shared-packages cpack --config build/shared/CPackConfig.cmake -B build/shared
check_package "libdialogmanager$version" "lib/[^/]*/libDialogManagerLoader\.so\.$version"
check_package "libdialogmanager$version" "share/doc/libdialogmanager$version/copyright"
check_package libdialogmanager-dev 'lib/[^/]*/libDialogManagerCore\.so'
check_package libdialogmanager-dev 'lib/[^/]*/pkgconfig/dialogmanager-loader\.pc'
check_package libdialogmanager-dev 'lib/[^/]*/cmake/DialogManager/DialogManagerConfig\.cmake'
check_package libdialogmanager-dev 'include/DialogManager/Core/GUIDialogManager\.h'
check_package libdialogmanager-dev 'lib/[^/]*/libDialogManagerCore\.so\.[0-9.]*-gdb\.py'
check_package libdialogmanager-dev share/doc/libdialogmanager-dev/copyright
check_package dialogmanager-tools bin/dialogc
check_package dialogmanager-tools share/doc/dialogmanager-tools/copyright
printf 'The Debian packages hold the libraries, what programs are compiled with, and dialogc\n'

# SPDX-License-Identifier: MIT
# Builds programs outside the project, like its users do, in the directory `outside`.

# Configures and builds outside programs: <directory> <CMake argument> ...
build_outside_programs()
{
    local name=$1
    shift
    quietly "${outside##*/}-$name" cmake -S "Tests/Package/$name" -B "$outside/$name" -G Ninja \
        -DCMAKE_CXX_COMPILER=g++ -DCMAKE_BUILD_TYPE=Release "$@"
    quietly "${outside##*/}-$name-build" cmake --build "$outside/$name"
}

# Runs an outside program and compares its output with the expected one: <directory> <program>
run_outside_program()
{
    local program=$outside/$1/$2
    "$program" >"$program.txt" || fail "$program ends with an error"
    diff -u "Tests/Package/$2.expected" "$program.txt" || fail "$program does not print what it should"
    printf '%s: %s works\n' "$1" "$2"
}

# Configures, builds and runs outside programs: <directory> <CMake argument> <program> ...
outside_programs()
{
    local name=$1 program
    build_outside_programs "$1" "$2"
    shift 2
    for program in "$@"; do
        run_outside_program "$name" "$program"
    done
}

# Builds a program with what pkg-config says of an installation, and runs it: <prefix> <modules> <program> <source> ...
pkg_config_program()
{
    local prefix=$1 modules=$2 program=$3 libraries said
    local -a flags wanted
    shift 3
    libraries=$(dirname "$(find "$prefix" -name 'dialogmanager-core.pc')")
    read -ra wanted <<<"$modules"
    said=$(PKG_CONFIG_PATH=$libraries pkg-config --cflags --libs "${wanted[@]}") ||
        fail "pkg-config finds no $modules in $libraries"
    read -ra flags <<<"$said"
    mkdir -p "$outside/PkgConfig"
    quietly "${outside##*/}-pkg-config" g++ -std=c++17 -fvisibility=hidden \
        "-DDESCRIPTION_DIRECTORY=\"$PWD/Tests/Package\"" "$@" "${flags[@]}" -o "$outside/PkgConfig/$program"
    LD_LIBRARY_PATH=$(dirname "$libraries") run_outside_program PkgConfig "$program"
}

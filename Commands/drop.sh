# SPDX-License-Identifier: MIT
# Group: everyday
# Help: <folder> | write the core and its reader of compiled dialogs as one header and one source file
# Help: | check it: write to build/drop and build outside programs with it, with every warning
# Arguments: 1
# Needs: @build @clang python3
# Gate: 063
source Commands/Support/Command.bash

# All warnings of these compilers, except those about other versions of C++, those that contradict each other, and those
# about padding, casts that another processor needs, statics, and virtual tables that headers put into every unit.
warnings_of_g=(-Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wundef -Wold-style-cast -Wcast-qual
    -Wcast-align=strict -Wnull-dereference -Wduplicated-cond -Wduplicated-branches -Wlogical-op -Wnon-virtual-dtor
    -Woverloaded-virtual -Wformat=2 -Wmissing-declarations -Wredundant-decls -Wswitch-enum -Wdouble-promotion)
warnings_of_clang=(-Weverything -Wno-c++98-compat -Wno-c++98-compat-pedantic -Wno-covered-switch-default -Wno-padded
    -Wno-exit-time-destructors -Wno-global-constructors -Wno-weak-vtables -Wno-documentation-unknown-command)

# Builds an outside program with the two files and runs it: <name> <source ...> -- <compiler> <option ...>
outside_program()
{
    local name=$1 program
    local -a program_sources=()
    shift
    while [ "$1" != -- ]; do
        program_sources+=("$1")
        shift
    done
    shift
    program="build/drop-test/$name-$1$2"
    quietly "drop-$1" "$@" -std=c++17 -fno-rtti -Werror -Ibuild/drop -Ibuild/drop-test \
        -DGUI_TRACE_LEVEL=GUI_TRACE_ERROR "${program_sources[@]}" build/drop/DialogManager.cpp -o "$program"
    "$program" >"$program.txt" || fail "$program ends with an error"
    diff -u "Tests/Drop/$name.expected" "$program.txt" || fail "$program does not print what it should"
    printf 'The two files, compiled by %s %s with every warning: %s works\n' "$1" "$2" "$name"
}

if [ $# -gt 0 ]; then
    [[ $1 != -* ]] || wrong_usage "drop knows no option $1"
    [ -n "$1" ] || wrong_usage 'drop takes the folder to write to, not an empty text'
    folder=$1
    [[ $folder = /* ]] || folder=$RUN_FROM/$folder
    for file in DialogManager.h DialogManager.cpp LICENSE README.md library.properties; do
        [ ! -e "$folder/$file" ] || fail "$folder/$file exists already; name another folder, or remove it" 2
    done
    said=$(mkdir -p -- "$folder" 2>&1) || fail "cannot write $folder: ${said##*: }"
    said=$(python3 -B Commands/Support/Drop.py "$folder" 2>&1) || fail "cannot write $folder: ${said##*: }"
    printf 'DialogManager.h and DialogManager.cpp are in %s; README.md there says how to build them\n' "$folder"
    exit
fi

build release dialogc
rm -rf build/drop build/drop-test
python3 -B Commands/Support/Drop.py build/drop
mkdir -p build/drop-test/Loader
printf '#include "DialogManager.h"\n' >build/drop-test/Loader/DialogROMTable.h
quietly drop-dialogc build/release/dialogc --output build/drop-test/Home --name ckHome --base Tests/Package Tests/Package/Home.xml
for level in -O0 -O2; do
    outside_program Application Tests/Drop/Application.cpp build/drop-test/Home.cpp -- g++ "$level" "${warnings_of_g[@]}"
    outside_program Application Tests/Drop/Application.cpp build/drop-test/Home.cpp -- clang++-14 "$level" \
        "${warnings_of_clang[@]}"
done
outside_program WithoutHandles Tests/Drop/WithoutHandles.cpp -- g++ -O2 -DDIALOGMANAGER_WITHOUT_HANDLES \
    "${warnings_of_g[@]}"

# SPDX-License-Identifier: MIT
# Compiles all sources of the core in one call, like a project into which they were copied.

# Links them with an application that has a table of handles, and with one that has none: <compiler> [option ...]
compile_all_sources()
{
    local directory=build/all-sources
    local -a sources command
    mapfile -d '' -t sources < <(find Source -name '*.cpp' -print0)
    command=("$@" -std=c++17 -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror -IInclude -I. "${sources[@]}")
    mkdir -p "$directory"
    quietly "all-sources-$1" "${command[@]}" Tests/HandleTable/{UsesTable,DefinesTable}.cpp -o "$directory/$1-own"
    quietly "all-sources-$1" "${command[@]}" Tests/HandleTable/UsesNoTable.cpp -o "$directory/$1-none"
    printf 'All sources compiled at once by %s: links with and without handles\n' "$1"
}

# SPDX-License-Identifier: MIT
# What commands need on the machine. Only the presence of a program or file counts, whoever installed it;
# Commands/Support/Packages.txt says what to look for, and which Debian package has it.

# Looks for one thing: program <name> | header <name> | library <compiler> <file> | file <pattern> ...
is_there()
{
    local kind=$1 pattern
    shift
    case $kind in
    program) command -v "$1" >/dev/null ;;
    header) g++ -E -x c++ - >/dev/null 2>&1 <<<"#if !__has_include(<$1>)
#error
#endif" ;;
    library) [ -f "$("$1" "-print-file-name=$2" 2>/dev/null)" ] ;;
    file)
        for pattern in "$@"; do
            if compgen -G "$pattern" >/dev/null; then
                return
            fi
        done
        return 1
        ;;
    esac
}

# Adds packages that are missing to the list missing_packages, and what was looked for to missing_things:
# <package or @set> ...
find_missing()
{
    local wanted line
    local -a words
    for wanted in "$@"; do
        line=$(grep -e "^$wanted " Commands/Support/Packages.txt) ||
            fail "Commands/Support/Packages.txt does not know '$wanted'"
        read -ra words <<<"${line#"$wanted" }"
        if [[ $wanted == @* ]]; then
            find_missing "${words[@]}"
            continue
        fi
        is_there "${words[@]}" || {
            missing_packages+=("$wanted")
            missing_things+=("the ${words[*]:0:2} (Debian: $wanted)")
        }
    done
}

# Installs packages that are missing, or says what is missing: <package or @set> ...
need()
{
    local -a missing_packages=() missing_things=() privileged=()
    find_missing "$@"
    [ ${#missing_packages[@]} -gt 0 ] || return 0

    local list
    printf -v list ', %s' "${missing_things[@]}"
    [ "$(id -u)" -eq 0 ] || privileged=(sudo -n)
    if ! command -v apt-get >/dev/null || ! "${privileged[@]}" true 2>/dev/null; then
        fail "this is missing and cannot be installed from here: ${list#, }. On Debian, as root: apt-get update &&\
 apt-get install -y --no-install-recommends ${missing_packages[*]}"
    fi
    printf 'Installing what is missing: %s\n' "${missing_packages[*]}"
    quietly install-update "${privileged[@]}" apt-get update
    quietly install "${privileged[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y \
        --no-install-recommends -o DPkg::Lock::Timeout=300 "${missing_packages[@]}"
}

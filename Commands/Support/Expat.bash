# SPDX-License-Identifier: MIT
# Where the sources of expat come from that are compiled to WebAssembly: Debian's, which has it for machines only as a
# library.

expat_source=build/expat

# Looks for sources in the repositories that this machine installs from, in a list of our own: <folder>
list_sources()
{
    local keys=/usr/share/keyrings/debian-archive-keyring.gpg
    apt-get indextargets --format "deb-src [signed-by=$keys] \$(REPO_URI) \$(RELEASE) \$(COMPONENT)" \
        'Identifier: Packages' 'Origin: Debian' 'Component: main' | sort -u >"$1/sources.list"
    [ -s "$1/sources.list" ]
}

# The same after the lists of packages were fetched, if there were none: <folder>
list_sources_anew()
{
    local -a privileged=()
    [ "$(id -u)" -eq 0 ] || privileged=(sudo -n)
    list_sources "$1" || { "${privileged[@]}" apt-get update && list_sources "$1"; }
}

# Unpacks the newest version that can be had: <folder>
unpack_expat()
{
    local version
    local -a options=(-o "Dir::Etc::SourceList=$1/sources.list" -o Dir::Etc::SourceParts=- -o "Dir::State::Lists=$1/lists"
        -o "Dir::Cache=$1/cache")
    mkdir -p "$1/lists/partial" "$1/cache/archives/partial"
    cd "$1" && list_sources_anew "$1" && apt-get "${options[@]}" update || return
    # A server may know a version whose files it does not have any more, or not yet.
    while read -r version; do
        if apt-get "${options[@]}" source "expat=$version"; then
            mv expat-*/ unpacked
            return
        fi
    done < <(apt-cache "${options[@]}" showsrc expat | sed -n 's/^Version: //p' | sort -u --version-sort --reverse)
    return 1
}

# Leaves sources of expat in $expat_source, or a link to those that DIALOGMANAGER_EXPAT_SOURCE names.
# @return 1 if there are none
find_expat()
{
    local place=$PWD/build/expat-download header
    if [ -n "${DIALOGMANAGER_EXPAT_SOURCE:-}" ]; then
        rm -rf "$expat_source"
        ln -s "$(realpath "$DIALOGMANAGER_EXPAT_SOURCE")" "$expat_source"
    fi
    [ ! -e "$expat_source/lib/expat.h" ] || return 0
    [ -z "${DIALOGMANAGER_EXPAT_SOURCE:-}" ] || fail "$DIALOGMANAGER_EXPAT_SOURCE has no lib/expat.h; expected the sources of expat"
    command -v apt-get >/dev/null || return 1
    need dpkg-dev
    rm -rf "$place" "$expat_source"
    mkdir -p "$place" build/logs
    watched expat build/logs/expat.log unpack_expat "$place" || return
    header=$(find "$place/unpacked" -path '*/lib/expat.h' | head -n 1)
    mv "$(dirname "$(dirname "$header")")" "$expat_source"
    rm -rf "$place"
}

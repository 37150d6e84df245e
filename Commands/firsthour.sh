# SPDX-License-Identifier: MIT
# Group: all
# Help: | seconds and lines of a first ./run demo and ./run test, in an empty Debian
# Needs: debootstrap git
# Figure: firsthour
source Commands/Support/Command.bash
source Commands/Support/BareDebian.bash

# Runs a command in the empty Debian and prints its seconds and lines: <command>
measure()
{
    local log=build/logs/firsthour-$1.log
    SECONDS=0
    watched "./run $1" "$log" in_debian "/root/checkout/run" "$1" || {
        tail -n 60 "$log" >&2
        fail "./run $1 fails in an empty Debian; the whole output is in $log"
    }
    printf './run %s %d s and %d lines' "$1" "$SECONDS" "$(wc -l <"$log")"
}

make_bare_debian "$PWD/build/firsthour"
quietly firsthour-clone git clone --quiet --no-hardlinks . "$debian/root/checkout"

demo=$(measure demo)
tests=$(measure test)
report_figure "in an empty Debian on $(nproc) processors, packages and all: $demo; $tests"

# SPDX-License-Identifier: MIT
# Group: check
# Help: | build each trace level; the libraries must contain its texts and no others
# Needs: @build python3
# Gate: 065
source Commands/Support/Command.bash

# Builds a preset, whose libraries must contain exactly the texts up to a level: <preset> <level>
check_trace_level()
{
    build "$1"
    local -a libraries
    # The inspection has texts of the manager at every level: it recognises hazards by them in what a sink gets.
    mapfile -t libraries < <(find "build/$1" -name 'libDialogManager*.a' ! -name libDialogManagerInspection.a)
    python3 -B Commands/Support/MessageTexts.py "$2" "${libraries[@]}" ||
        fail "the libraries of $1 do not contain the texts of their level"
}

check_trace_level release DEBUG
check_trace_level trace-warning WARNING
check_trace_level trace-error ERROR
check_trace_level trace-off OFF
printf 'All %d texts are in the libraries of their levels and in no others\n' \
    "$(python3 -B Commands/Support/MessageTexts.py | wc -l)"

# SPDX-License-Identifier: MIT
# Figures that must not grow.

# Records figures, also in README.md, or fails if one has grown: <recorded> <counted> [--update]
record_or_compare()
{
    if [ $# -gt 2 ]; then
        cp "$2" "$1"
        python3 -B Commands/Support/Promises.py --update
    else
        python3 -B Commands/Support/Growth.py "$1" "$2" ||
            fail "the figures differ from those in $1; if that is intended, ./run $command_name --update"
    fi
}

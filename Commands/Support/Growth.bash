# Figures that may not grow.

# Records figures, or fails when one has grown: <recorded> <counted> [--update]
record_or_compare()
{
    if [ $# -gt 2 ]; then
        cp "$2" "$1"
    else
        python3 -B Commands/Support/Growth.py "$1" "$2" ||
            fail "these are not the figures recorded in $1; if that is meant, ./run $command_name --update"
    fi
}

# Group: check
# Help: | build each trace level and look for texts that should be gone
# Needs: @build python3
# Gate: 065
source Commands/Support/Command.bash

# Builds a preset and expects in its libraries exactly the texts up to a level: <preset> <level>
check_trace_level()
{
    build "$1"
    python3 -B Commands/Support/MessageTexts.py "$2" "build/$1"/libDialogManager*.a || fail "$1 holds other texts"
}

check_trace_level release DEBUG
check_trace_level trace-warning WARNING
check_trace_level trace-error ERROR
check_trace_level trace-off OFF
printf 'All %d texts are where their level keeps them, and nowhere else\n' \
    "$(python3 -B Commands/Support/MessageTexts.py | wc -l)"

# SPDX-License-Identifier: MIT
# Every command begins with this: it installs what the head of the command needs, and has the functions that several
# commands use. The working directory is the project's.
set -euo pipefail

command_name=$(basename "$0" .sh)

fail()
{
    printf 'run: %s\n' "$1" >&2
    exit "${2:-1}"
}

wrong_usage()
{
    fail "$1; ./run help lists the commands" 2
}

# For a command with one option: fails if its argument is anything else: <option> [argument]
only_option()
{
    [ $# -eq 1 ] || [ "$2" = "$1" ] || wrong_usage "$command_name knows $1, not '$2'"
}

# Fails unless all arguments are unsigned numbers.
only_numbers()
{
    local number
    for number in "$@"; do
        [[ $number =~ ^[0-9]+$ ]] || wrong_usage "$command_name takes numbers, not '$number'"
    done
}

source Commands/Support/Needs.bash
source Commands/Support/Build.bash

while read -ra named; do
    need "${named[@]}"
done < <(sed -n 's/^# Needs: //p' "$0")

# Prints a figure and keeps it for ./run figures: <text> [name, if not that of the command]
report_figure()
{
    printf '%s\n' "$1" | tee "build/figures/${2:-$command_name}"
}

# What every command begins with: installs what its head asks for, and offers what several commands use. The working
# directory is that of the project.
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

# For a command with one optional argument: fails unless that is missing or the one given: <option> [argument]
only_option()
{
    [ $# -eq 1 ] || [ "$2" = "$1" ] || wrong_usage "$command_name knows $1, not '$2'"
}

# Fails unless all arguments are numbers without a sign.
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

# Prints a figure and keeps it for ./run figures: <text> [name, if it is not that of the command]
report_figure()
{
    printf '%s\n' "$1" | tee "build/figures/${2:-$command_name}"
}

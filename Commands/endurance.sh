# Group: check
# Help: [operations [seed]] | a million random switches and popups; the heap must not grow
# Arguments: 2
# Needs: @tests
# Gate: 030
# Figure: endurance
source Commands/Support/Command.bash

only_numbers "$@"
build test EnduranceTests
figure=$(build/test/Tests/Endurance/EnduranceTests "$@") || {
    printf '%s\n' "$figure"
    fail 'the manager does not endure'
}
report_figure "$figure"

# SPDX-License-Identifier: MIT
# Group: check
# Help: [operations [seed]] | a million random switches and popups; the heap must not grow
# Arguments: 2
# Needs: @tests
# Gate: 022
# Figure: endurance
source Commands/Support/Command.bash

only_numbers "$@"
build test EnduranceTests
watched EnduranceTests build/logs/endurance.log build/test/Tests/Endurance/EnduranceTests "$@" || {
    cat build/logs/endurance.log
    fail 'the above went wrong over many operations'
}
report_figure "$(cat build/logs/endurance.log)"

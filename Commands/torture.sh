# SPDX-License-Identifier: MIT
# Group: check
# Help: | every scenario, with each allocation, load and hook failing in turn
# Needs: @tests
# Gate: 021
# Figure: torture
source Commands/Support/Command.bash

# Runs a torture program with every possible failure, and prints its last line: <program>
torture_with()
{
    watched "$1" "build/logs/$1.log" "build/test/Tests/Torture/$1" || {
        cat "build/logs/$1.log" >&2
        fail "$1 found the above"
    }
    tail -n 1 "build/logs/$1.log"
}

build test TortureTests TourTortureTests
scenarios=$(torture_with TortureTests)
tour=$(torture_with TourTortureTests)
report_figure "$scenarios; $tour"

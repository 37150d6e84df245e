# SPDX-License-Identifier: MIT
# Group: check
# Help: [--update] | instructions and heap allocations of operations: none has grown, or record them
# Arguments: 1
# Needs: @build @benchmarks
# Gate: 084
# Figure: instructions
source Commands/Support/Command.bash
source Commands/Support/Counts.bash
source Commands/Support/Growth.bash

only_option --update "$@"
build bench CountOperations
build bench-off CountOperations
count_all_operations
counted=build/counts/counted
{
    printf '# Instructions and heap allocations per operation: ./run instructions --update writes this file.\n'
    cat build/counts/bench-off/counts build/counts/bench/counts
} >"$counted"
record_or_compare Benchmarks/Instructions.recorded "$counted" "$@"
report_figure "$(python3 -B Benchmarks/Report/Counts.py summarise "$counted")"

# SPDX-License-Identifier: MIT
# Instructions and heap allocations of the workloads of the benchmarks.

# Counts them for a preset, into build/counts/<preset>/counts: <preset> [program]
count_operations()
{
    local counts=build/counts/$1
    rm -rf "$counts"
    mkdir -p "$counts"
    valgrind --tool=callgrind --instr-atstart=no --callgrind-out-file="$counts/dump" \
        "build/$1/Benchmarks/${2:-CountOperations}" >"$counts/printed" 2>"build/logs/count-$1.log" || {
        tail -n 20 "build/logs/count-$1.log" >&2
        return 1
    }
    python3 -B Benchmarks/Report/Counts.py collect "$counts/printed" "$counts"/dump.* >"$counts/counts"
}

# Counts them for both presets of the benchmarks, side by side.
count_side_by_side()
{
    local all_messages
    count_operations bench &
    all_messages=$!
    count_operations bench-off || fail 'counting without messages failed'
    wait "$all_messages" || fail 'counting with all messages failed'
}

count_all_operations()
{
    printf 'Counting instructions\n'
    quietly count-operations count_side_by_side
}

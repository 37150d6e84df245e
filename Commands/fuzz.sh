# SPDX-License-Identifier: MIT
# Group: check
# Help: [seconds] | random inputs for each fuzz target; without seconds the same ones as last time, for 60
# Help: --repeat <target> <file> | run one input again and show its steps
# Help: --keep | add what the last run found to the kept inputs
# Arguments: 3
# Needs: @tests @clang
# Gate: 030
# Figure: fuzz
source Commands/Support/Command.bash
source Commands/Support/FuzzTargets.bash

# Fuzzes one target, with its log in build/logs/fuzz-<target>.log: <target> <seconds>
#
# It works on a copy of the kept corpus, so that the checkout does not change. Addresses guide the fuzzer too, so
# they and the environment are the same every time: with the same seed it draws the same inputs again.
fuzz_target()
{
    local directory=build/fuzz/found/$1
    local -a options=("$directory/corpus" "-artifact_prefix=$directory/" "-max_total_time=$2" -timeout=20
        -max_len=2000 -len_control=10 -reload=0 -print_final_stats=1 "-seed=$seed")
    rm -rf "$directory"
    mkdir -p "$directory"
    cp -r "Tests/Fuzz/Corpus/$1" "$directory/corpus"
    [ ! -f "Tests/Fuzz/$1.dict" ] || options+=("-dict=Tests/Fuzz/$1.dict")
    env -i "ASAN_SYMBOLIZER_PATH=$ASAN_SYMBOLIZER_PATH" "${same_addresses[@]}" \
        "build/fuzz/Tests/Fuzz/Fuzz$1" "${options[@]}" >"build/logs/fuzz-$1.log" 2>&1
}

# Prints how many inputs a target was run with: <target>
count_fuzzed()
{
    sed -n 's/^stat::number_of_executed_units: *//p' "build/logs/fuzz-$1.log"
}

# Shows what a target found and how to repeat it: <target>
report_finding()
{
    local log=build/logs/fuzz-$1.log input
    tail -n 60 "$log" >&2
    input=$(sed -n 's/.*Test unit written to //p' "$log" | tail -n 1)
    [ -n "$input" ] || fail "Fuzz$1 ended badly, see $log"
    fail "Fuzz$1 fails with the input $input; to repeat it: ./run fuzz --repeat $1 $input"
}

# Fuzzes targets side by side, at most as many as the smallest server has processors: <seconds> <target> ...
fuzz_together()
{
    local seconds=$1 target place
    local -a processes=() findings=()
    shift
    for target in "$@"; do
        fuzz_target "$target" "$seconds" &
        processes+=($!)
    done
    for place in "${!processes[@]}"; do
        wait "${processes[place]}" || findings+=("${*:place + 1:1}")
    done
    [ ${#findings[@]} -eq 0 ] || report_finding "${findings[0]}"
}

cat_and_stop()
{
    cat build/logs/fuzz.txt >&2
    exit 1
}

repeat_finding()
{
    [ $# -eq 2 ] || wrong_usage 'fuzz --repeat takes a target and a file'
    [[ " ${fuzz_targets[*]} " == *" $1 "* ]] || wrong_usage "the targets are ${fuzz_targets[*]}, not '$1'"
    build fuzz "Fuzz$1"
    FUZZ_STEPS=1 "build/fuzz/Tests/Fuzz/Fuzz$1" "$2"
}

# Adds what the last run found to the kept corpora, except inputs that reach nothing new. A corpus stays small: of more
# than forty inputs it keeps the longest, which do most.
keep_found()
{
    local target kept merged input
    local -a inputs
    for target in "${fuzz_targets[@]}"; do
        kept=Tests/Fuzz/Corpus/$target
        merged=build/fuzz/merged/$target
        [ -d "build/fuzz/found/$target/corpus" ] || fail 'there is nothing to keep yet; run ./run fuzz first'
        rm -rf "$merged"
        mkdir -p "$merged"
        quietly "fuzz-keep-$target" "build/fuzz/Tests/Fuzz/Fuzz$target" -set_cover_merge=1 -use_counters=0 \
            "$merged" "$kept" "build/fuzz/found/$target/corpus"
        rm -rf "$kept"
        mkdir "$kept"
        mapfile -t inputs < <(find "$merged" -type f -printf '%s %p\n' | sort -rn | cut -d ' ' -f 2-)
        for input in "${inputs[@]:0:40}"; do
            cp "$input" "$kept"
        done
        printf '%s: %d inputs are kept\n' "$target" "$(find "$kept" -type f | wc -l)"
    done
}

export ASAN_SYMBOLIZER_PATH=/usr/lib/llvm-14/bin/llvm-symbolizer
# The gate draws the same inputs every time, so that it fails because of a change and not by chance. A run of some length
# is there to find what nobody has seen yet.
seed=1
[ $# -eq 0 ] || seed=$RANDOM
seconds=${1:-60}
# Some containers do not let a program turn the randomised addresses off.
same_addresses=(setarch --addr-no-randomize)
"${same_addresses[@]}" true 2>/dev/null || same_addresses=()
case $seconds in
--repeat)
    repeat_finding "${@:2}"
    exit
    ;;
--keep)
    keep_found
    exit
    ;;
*[!0-9]* | 0) wrong_usage "fuzz takes a number of seconds, --repeat or --keep, not '$seconds'" ;;
esac

build fuzz "${fuzz_targets[@]/#/Fuzz}"
for targets in 'Operations String' 'DialogFile List' 'Inspection Viewer' Restore; do
    read -ra together <<<"$targets"
    watched "${targets/ / and }" build/logs/fuzz.txt fuzz_together "$seconds" "${together[@]}" || cat_and_stop
done

executions=
for target in "${fuzz_targets[@]}"; do
    count=$(count_fuzzed "$target")
    [ "${count:-0}" -gt 0 ] || fail "Fuzz$target ran with no input; see build/logs/fuzz-$target.log"
    executions+=", $count of $target"
done
report_figure "fuzzing for $seconds s each, inputs without a finding: ${executions#, }"

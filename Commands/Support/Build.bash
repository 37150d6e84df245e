# Building, and running the tests of a build.

# Runs a command with its output in build/logs/<name>.log, of which the end is shown if it fails: <name> <command ...>
quietly()
{
    local log=build/logs/$1.log
    shift
    if ! "$@" >"$log" 2>&1; then
        tail -n 60 "$log" >&2
        fail "this failed; the whole output is in $log"
    fi
}

# Configures a preset and builds targets of it: <preset> [target ...]
build()
{
    local preset=$1
    shift
    printf 'Building %s\n' "$preset"
    quietly "configure-$preset" cmake --preset "$preset"
    [ $# -gt 0 ] || set -- all
    quietly "build-$preset" cmake --build "build/$preset" --target "$@"
}

# Runs all tests of a build and ends with their numbers: <preset>
run_tests()
{
    local log=build/logs/$1-tests.log counted=build/logs/$1-tests.txt result=0
    GTEST_BRIEF=1 ctest --test-dir "build/$1" --verbose >"$log" 2>&1 || true
    python3 -B Commands/Support/CountTests.py "$log" >"$counted" || result=$?
    cat "$counted"
    report_figure "tests of the build $1: $(tail -n 1 "$counted")" "$1"
    return "$result"
}

# Files with one of the endings below the project's directories, each followed by a zero byte: <ending> ...
sources()
{
    local ending
    local -a names=()
    for ending in "$@"; do
        names+=(-o -name "*.$ending")
    done
    find Include Source Loader Scenario TestSupport Tests Examples Benchmarks Device Commands/Template -type f \
        '(' "${names[@]:1}" ')' -print0
}

# Runs a command for each file of a list, with as many at once as there are processors, and shows the output of those
# that fail: the files on standard input, each followed by a zero byte, <command ...>
for_each_in_parallel()
{
    python3 -B Commands/Support/InParallel.py "$@"
}

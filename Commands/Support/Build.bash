# SPDX-License-Identifier: MIT
# Building, and running the tests of a build.

# Shows the progress of a command that takes more than five seconds: its name, the last step in its log, as [3/10] or
# 3/10 Test, and the seconds so far. A terminal shows it in one line that changes; anything else gets a line every 30
# seconds: <name> <log>
show_progress()
{
    local began=$SECONDS pause=30 begin='' end=$'\n' step
    if [ -t 2 ]; then
        pause=1 begin=$'\r\e[K' end=
    fi
    # The sleep must not keep the pipe to the reader of this output open.
    sleep 5 >/dev/null 2>&1
    # The shell that started this may have been killed.
    while kill -0 $$ 2>/dev/null; do
        step=$(sed -n -E 's#^\[ *([0-9]+)/([0-9]+)\].*#step \1 of \2, #p; s#^ *([0-9]+)/([0-9]+) Test .*#step \1 of \2, #p' "$2" |
            tail -n 1)
        printf '%s%s: %s%d s%s' "$begin" "$1" "$step" $((SECONDS - began)) "$end" >&2
        sleep "$pause" >/dev/null 2>&1
    done
}

# Runs a command with its output in a file, and shows its progress: <name> <file> <command ...>
watched()
{
    local name=$1 log=$2 status=0 watcher
    shift 2
    : >"$log"
    # Its sleep may outlive it for a moment, and must not hold the turn or the lock of a build.
    show_progress "$name" "$log" 8>&- 9>&- &
    watcher=$!
    ("$@") >"$log" 2>&1 || status=$?
    kill "$watcher"
    wait "$watcher" 2>/dev/null || true
    [ ! -t 2 ] || printf '\r\e[K' >&2
    return "$status"
}

# Runs a command with its output in build/logs/<name>.log, and shows the end of it on failure: <name> <command ...>
quietly()
{
    local name=$1 log=build/logs/$1.log
    shift
    watched "$name" "$log" "$@" || {
        tail -n 60 "$log" >&2
        fail "this failed; the whole output is in $log"
    }
}

# Configures a preset and builds it or some of its targets: <preset> [target ...]
build()
{
    local preset=$1
    shift
    # Gates that run side by side may need the same build.
    mkdir -p build/locks
    exec 8>"build/locks/$preset"
    if command -v flock >/dev/null; then
        flock 8
    fi
    printf 'Building %s\n' "$preset"
    quietly "configure-$preset" cmake --preset "$preset"
    [ $# -gt 0 ] || set -- all
    quietly "build-$preset" cmake --build "build/$preset" --target "$@"
    exec 8>&-
}

# Runs all tests of a build; the last line counts them: <preset>
run_tests()
{
    local log=build/logs/$1-tests.log counted=build/logs/$1-tests.txt result=0
    printf 'Testing %s\n' "$1"
    GTEST_BRIEF=1 watched "tests-$1" "$log" ctest --test-dir "build/$1" --verbose --parallel "$(nproc)" || true
    python3 -B Commands/Support/CountTests.py "$log" >"$counted" || result=$?
    cat "$counted"
    report_figure "tests of the build $1: $(tail -n 1 "$counted")" "$1"
    return "$result"
}

# The project's files with one of the endings, each followed by a zero byte: <ending> ...
sources()
{
    local ending
    local -a names=()
    for ending in "$@"; do
        names+=(-o -name "*.$ending")
    done
    find . '(' -path ./build -o -path './.*' ')' -prune -o -type f '(' "${names[@]:1}" ')' -print0
}

# Runs a command for each file of a list, as many at once as there are processors. Prints the progress and the output of
# commands that fail. The files are on standard input, each followed by a zero byte: <command ...>
for_each_in_parallel()
{
    python3 -B Commands/Support/InParallel.py "$@"
}

# Shows what for_each_in_parallel has printed, without its progress: <log>
show_findings()
{
    grep -v -E '^\[[0-9]+/[0-9]+\]$' "$1" || true
}

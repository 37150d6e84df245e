# SPDX-License-Identifier: MIT
# Group: everyday
# Help: | before a commit, in a minute: format, scripts, includes, clang-tidy and tests of what changed
# Needs: @tests @clang clang-format-14 clang-tidy-14 git shellcheck
source Commands/Support/Command.bash
source Commands/Support/CompiledSources.bash

# What has no time is left to the gates, and the last lines say so.
most_seconds=55
left=()

# Prints the files with one of the endings that differ from main, or are new, each followed by a zero byte: <ending> ...
changed()
{
    local ending
    local -a patterns=()
    for ending in "$@"; do
        patterns+=("*.$ending")
    done
    {
        git diff --name-only -z --diff-filter=d "$base" -- "${patterns[@]}"
        git ls-files -z --others --exclude-standard -- "${patterns[@]}"
    } | sort -z -u
}

# Runs a command until the time is over, with its output in a file. One that fails ends the check; one that has no time is
# left: <name> <command ...>
in_time()
{
    local name=$1 status=0
    shift
    if [ "$SECONDS" -ge "$most_seconds" ]; then
        left+=("$name")
        return 1
    fi
    watched "$name" "build/logs/check-$name.log" timeout $((most_seconds - SECONDS)) "$@" || status=$?
    if [ "$status" -eq 124 ]; then
        left+=("$name")
        return 1
    fi
    if [ "$status" -ne 0 ]; then
        show_findings "build/logs/check-$name.log" | tail -n 60
        fail "$name found the above"
    fi
}

base=$(git merge-base HEAD main 2>/dev/null || git merge-base HEAD origin/main 2>/dev/null || git rev-parse HEAD)
mapfile -d '' -t cpp_files < <(changed h cpp)
mapfile -d '' -t scripts < <(changed sh)

if [ ${#cpp_files[@]} -gt 0 ]; then
    printf '%s\0' "${cpp_files[@]}" | in_time format python3 -B Commands/Support/InParallel.py clang-format-14 --dry-run \
        -Werror || true
fi
if [ ${#scripts[@]} -gt 0 ]; then
    in_time shellcheck shellcheck --shell bash --external-sources --check-sourced "${scripts[@]}" || true
fi
in_time includes python3 -B Commands/Support/House.py || true

# The unit tests need nearly all sources, and fail for nearly all faults; ./run test has the others.
if in_time configure cmake --preset test && in_time build cmake --build build/test --target UnitTests; then
    in_time tests build/test/Tests/UnitTests --gtest_brief=1 || true
fi

# Sources that changed and are compiled here; examples on pages and outside programs are not.
if [ ${#cpp_files[@]} -gt 0 ] && in_time clang-configure cmake --preset clang &&
    in_time tables cmake --build build/clang --target DialogManagerCompiledDialogs; then
    mkdir -p build/analysis/check
    python3 -B Commands/Support/CompiledSources.py build/clang/compile_commands.json build/analysis/check
    printf '%s\n' "${cpp_files[@]/#/$PWD/}" | grep -F -x -f build/analysis/check/sources | tr '\n' '\0' \
        >build/analysis/check/changed || true
    if [ -s build/analysis/check/changed ]; then
        in_time tidy python3 -B Commands/Support/InParallel.py clang-tidy-14 --quiet -p build/analysis/check \
            <build/analysis/check/changed || true
    fi
fi

printf 'Checked %d changed files of C++ and %d scripts in %d s\n' "${#cpp_files[@]}" "${#scripts[@]}" "$SECONDS"
[ ${#left[@]} -eq 0 ] || printf 'No time was left for: %s; ./run test and ./run tidy do it\n' "${left[*]}"

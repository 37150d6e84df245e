# SPDX-License-Identifier: MIT
# Group: check
# Help: | the tests with valgrind's memory checker
# Needs: @tests librapidcheck-dev valgrind
# Gate: 020
# Figure: memcheck
source Commands/Support/Command.bash
source Commands/Support/FuzzTargets.bash

# Runs a program in the memory checker: <program> [argument ...]
#
# The unit tests keep their own operators new and delete, because tests make them fail. These put a header before each
# block, so pointers point into the middle of blocks, which the checker calls possibly lost; only definitely lost blocks
# count. The process of a death test ends with memory in use: the checker is silent there, because the test reads the
# output, and an error shows as an unexpected exit status.
check_memory()
{
    local log=build/logs/memcheck-${1##*/}${GTEST_SHARD_INDEX:-}.log
    valgrind --quiet --error-exitcode=99 --soname-synonyms=somalloc=nouserintercepts --leak-check=full \
        --show-leak-kinds=definite,indirect --errors-for-leak-kinds=definite,indirect \
        --child-silent-after-fork=yes --num-callers=30 "$@" >"$log" 2>&1 || {
        tail -n 80 "$log" >&2
        fail "the memory checker, or a test in it, reports an error in $1; the whole output is in $log"
    }
}

# Checks a part of the unit tests, which take longer than all the others: <part, from 0> <number of parts>
check_memory_of_unit_tests()
{
    GTEST_BRIEF=1 GTEST_SHARD_INDEX=$1 GTEST_TOTAL_SHARDS=$2 check_memory build/test/Tests/UnitTests
}

check_memory_of_others()
{
    local program target
    for program in ScenarioTests OtherFramework/OtherFrameworkTests HandleTable/NoTableTests \
        HandleTable/OwnTableTests; do
        GTEST_BRIEF=1 check_memory "build/test/Tests/$program"
    done
    GTEST_BRIEF=1 check_memory build/test/Examples/CoffeeMachine/CoffeeMachineTests
    check_memory build/test/Tests/Model/ModelTests 2000
    for target in "${fuzz_targets[@]}"; do
        check_memory "build/test/Tests/Fuzz/Fuzz$target" "Tests/Fuzz/Corpus/$target"
    done
}

check_memory_of_all()
{
    local job failed=0
    local -a jobs=()
    check_memory_of_unit_tests 0 2 &
    jobs+=($!)
    check_memory_of_unit_tests 1 2 &
    jobs+=($!)
    check_memory_of_others &
    jobs+=($!)
    for job in "${jobs[@]}"; do
        wait "$job" || failed=1
    done
    return "$failed"
}

build test
watched 'valgrind' build/logs/memcheck.log check_memory_of_all || {
    cat build/logs/memcheck.log
    fail 'the memory checker found the above'
}
report_figure 'memcheck: no finding in eleven test programs'

# Group: check
# Help: | the tests under valgrind's memory checker
# Needs: @tests librapidcheck-dev valgrind
# Gate: 020
# Figure: memcheck
source Commands/Support/Command.bash
source Commands/Support/FuzzTargets.bash

# Runs a program under the memory checker: <program> [argument ...]
#
# The unit tests' own operators new and delete stay in place, since tests let them fail. They keep notes before
# each block, so that pointers lead to the middle of blocks in use, which the checker calls possibly lost;
# lost is what it calls definitely so. A death test forks a process that ends with its memory in use: the
# checker writes nothing there, where the test reads, and an error shows by the unexpected exit status.
check_memory()
{
    local log=build/logs/memcheck-${1##*/}.log
    valgrind --quiet --error-exitcode=99 --soname-synonyms=somalloc=nouserintercepts --leak-check=full \
        --show-leak-kinds=definite,indirect --errors-for-leak-kinds=definite,indirect \
        --child-silent-after-fork=yes --num-callers=30 "$@" >"$log" 2>&1 || {
        tail -n 80 "$log" >&2
        fail "the memory checker, or a test under it, complains of $1; the whole output is in $log"
    }
}

# Checks everything but the unit tests, which take as long as all the others.
check_memory_of_others()
{
    local program target
    for program in ScenarioTests OtherFramework/OtherFrameworkTests HandleTable/NoTableTests \
        HandleTable/OwnTableTests; do
        GTEST_BRIEF=1 check_memory "build/test/Tests/$program"
    done
    check_memory build/test/Tests/Model/ModelTests 2000
    for target in "${fuzz_targets[@]}"; do
        check_memory "build/test/Tests/Fuzz/Fuzz$target" "Tests/Fuzz/Corpus/$target"
    done
}

check_memory_of_all()
{
    check_memory_of_others &
    local others=$! failed=0
    (GTEST_BRIEF=1 check_memory build/test/Tests/UnitTests) || failed=1
    wait "$others" || failed=1
    return "$failed"
}

build test
watched 'valgrind' build/logs/memcheck.log check_memory_of_all || {
    cat build/logs/memcheck.log
    fail 'the memory checker found the above'
}
report_figure 'memcheck: no finding in ten test programs'

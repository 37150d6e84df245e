# SPDX-License-Identifier: MIT
# Group: check
# Help: [--html] | the tests run every line and branch of the core and the companions; or write a report to read
# Arguments: 1
# Needs: @tests
# Gate: 070
# Figure: coverage
source Commands/Support/Command.bash

# Builds and runs the tests that count as coverage: <preset>
run_covered_tests()
{
    local tests
    build "$1" UnitTests ScenarioTests
    for tests in UnitTests ScenarioTests; do
        GTEST_BRIEF=1 watched "$tests" "build/logs/$1-$tests.log" "build/$1/Tests/$tests" || {
            tail -n 60 "build/logs/$1-$tests.log"
            fail 'tests failed'
        }
    done
}

# Writes a report for people, with another compiler.
report_coverage()
{
    need gcovr
    mkdir -p build/coverage-html/report
    find build/coverage-html -name '*.gcda' -delete
    run_covered_tests coverage-html
    gcovr --root . --object-directory build/coverage-html --filter 'Source/Core/' --filter 'Include/Core/' --filter 'Companions/' \
        --exclude-throw-branches --html-details build/coverage-html/report/index.html --html-title 'The core and the companions' \
        --print-summary build/coverage-html
    printf 'The report is build/coverage-html/report/index.html\n'
}

only_option --html "$@"
if [ $# -gt 0 ]; then
    report_coverage
    exit
fi
need @clang
rm -rf build/coverage/profiles
export LLVM_PROFILE_FILE=$PWD/build/coverage/profiles/%p.profraw
run_covered_tests coverage
llvm-profdata-14 merge -sparse build/coverage/profiles/*.profraw -o build/coverage/tests.profdata
llvm-cov-14 export build/coverage/Tests/UnitTests -object build/coverage/Tests/ScenarioTests \
    -instr-profile build/coverage/tests.profdata Source/Core Include/Core Companions \
    >build/coverage/coverage.json 2>build/logs/llvm-cov.log
python3 Tests/Coverage/CheckCoverage.py build/coverage/coverage.json >build/coverage/coverage.txt || {
    cat build/coverage/coverage.txt
    fail 'no test runs the above'
}
report_figure "$(tail -n 1 build/coverage/coverage.txt)"

# SPDX-License-Identifier: MIT
# Group: check
# Help: | what an inspection sends follows its schema, is the state of transcripts, and can be viewed
# Needs: @tests python3-jsonschema
# Gate: 068
# Figure: inspection
source Commands/Support/Command.bash

# dialogtrace refuses what it cannot read, in one line: <status> <what it says> <argument ...>
expect_refusal()
{
    local status=0 said=build/logs/dialogtrace.txt
    build/test/dialogtrace "${@:3}" >"$said" 2>&1 || status=$?
    [ "$status $(cat "$said")" = "$1 dialogtrace: $2" ] ||
        fail "dialogtrace ${*:3}: expected status $1 and '$2', found status $status and '$(cat "$said")'"
}

build test UnitTests InspectScenarios dialogtrace dialogsim
sent=build/logs/inspection-unit-tests.jsonl
rm -f "$sent"
DIALOGMANAGER_INSPECTION_LINES=$sent build/test/Tests/UnitTests --gtest_brief=1 \
    --gtest_filter='*Inspection*:*Hazard*' >build/logs/inspection.txt || {
    tail -n 40 build/logs/inspection.txt >&2
    fail 'tests of the inspection fail'
}
[ -s "$sent" ] || fail 'the tests of the inspection have sent nothing'
build/test/Tests/Inspection/InspectScenarios Tests/Scenario/*.scenario >build/logs/inspection-scenarios.txt
/usr/bin/python3 -B Tests/Inspection/CheckLines.py Inspection/InspectionProtocol.schema.json "$sent" \
    build/logs/inspection-scenarios.txt >build/logs/inspection-checked.txt || fail 'the line above is wrong'

run=build/logs/inspection-run.jsonl
build/test/Tests/Inspection/InspectScenarios Tests/Scenario/TimedPopups.scenario | sed -n '/^{/p' >"$run"
build/test/dialogtrace --columns 60 "$run" >build/logs/inspection-run.txt
diff -u Tests/Inspection/TimedPopups.timeline build/logs/inspection-run.txt || fail 'dialogtrace prints the run differently'
build/test/dialogtrace --columns 60 - <"$run" | cmp - Tests/Inspection/TimedPopups.timeline
expect_refusal 2 'expected a log; see --help'
expect_refusal 2 'unknown option --png; see --help' --png "$run"
expect_refusal 2 '--columns: expected a number from 10 to 10000, found 9; see --help' --columns 9 "$run"
expect_refusal 2 '--columns: expected a number from 10 to 10000, found none; see --help' --columns
expect_refusal 2 'expected --svg or --columns, found both; see --help' --svg --columns 20 "$run"
expect_refusal 2 'expected one log, found two as well; see --help' "$run" two
expect_refusal 1 'build/none: cannot open (No such file or directory)' build/none
expect_refusal 1 'Commands: cannot read (Is a directory)' Commands
expect_refusal 1 '/dev/null: expected lines of an inspection, found none' /dev/null
expect_refusal 1 'README.md: line 1: expected an object of JSON on one line, found no JSON' README.md
/usr/bin/python3 -B Tests/Inspection/TryAttaching.py build/test/Flow/dialogsim || fail 'dialogsim does not attach as it should'
report_figure "inspection: $(cat build/logs/inspection-checked.txt)"

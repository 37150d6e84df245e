# SPDX-License-Identifier: MIT
# Group: check
# Help: | what an inspection sends follows its schema, and is the state that transcripts show
# Needs: @tests python3-jsonschema
# Gate: 068
# Figure: inspection
source Commands/Support/Command.bash

build test UnitTests InspectScenarios
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
report_figure "inspection: $(cat build/logs/inspection-checked.txt)"

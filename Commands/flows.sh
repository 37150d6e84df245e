# SPDX-License-Identifier: MIT
# Group: check
# Help: | explore the flows of the examples, and find the planted defects
# Help: --mutants | change these flows in small ways, and tell which changes alter a verdict
# Help: --update | record which changes of one of the flows alter a verdict
# Help: --random N | compare both explorations on N random flows
# Help: --graph FLOW FILE | draw a flow as .svg, .png or .dot
# Arguments: 3
# Needs: @tests libxml2-utils
# Gate: 067
# Figure: flows
source Commands/Support/Command.bash

check=build/test/Flow/dialogcheck
if [ "${1:-}" = --graph ]; then
    [ $# -eq 3 ] || wrong_usage 'flows --graph takes a flow and the file to be written'
    [[ $3 == *.dot ]] || need graphviz
    build test dialogcheck
    status=0
    "$check" "$2" --graph "$3" || status=$?
    exit "$status"
fi
build test FlowTests dialogcheck dialogsim CheckCoffeeMachine
reports=build/logs/flows
rm -rf "$reports"
mkdir -p "$reports"

# The status that a check ends with, its messages in a log: <status> <what> <arguments ...>
expect_status()
{
    local expected=$1 what=$2 status=0
    shift 2
    "$check" "$@" >"$reports/status.txt" 2>"$reports/status.log" || status=$?
    [ "$status" -eq "$expected" ] || fail "$what ends with status $status instead of $expected; see $reports/status.txt"
}

# Runs tests of the flows, with so many random ones: <number> [filter]
run_flow_tests()
{
    DIALOGMANAGER_RANDOM_FLOWS=$1 build/test/Tests/Flow/FlowTests --gtest_brief=1 --gtest_filter="${2:-*}" \
        >"$reports/tests.txt" 2>&1 || {
        tail -n 40 "$reports/tests.txt" >&2
        fail 'tests of the flows fail'
    }
}

recorded=Tests/Flow/Mutants.recorded
case ${1:-} in
'') ;;
--mutants)
    python3 -B Tests/Flow/Mutants.py --all "$check" Examples/Flows/*.xml
    exit
    ;;
--update)
    python3 -B Tests/Flow/Mutants.py "$check" Examples/Flows/CarSettings.xml >"$recorded"
    exit
    ;;
--random)
    only_numbers "${2:-}"
    run_flow_tests "$2" '*RandomFlows'
    grep 'random flows:' "$reports/tests.txt"
    exit
    ;;
*) wrong_usage "flows knows --mutants, --update, --random and --graph, not '$1'" ;;
esac

run_flow_tests 500

states=0
flows=0
for flow in Examples/Flows/*.xml; do
    name=$(basename "$flow" .xml)
    "$check" "$flow" --json --junit "$reports/$name.junit.xml" --sarif "$reports/$name.sarif" >"$reports/$name.json" || {
        "$check" "$flow" >&2 || true
        fail "$flow has a violation that it does not expect"
    }
    xmllint --noout "$reports/$name.junit.xml"
    python3 -B Tests/Flow/CheckSARIF.py "$reports/$name.sarif" >&2 || fail "the SARIF report of $flow is wrong"
    [ "$(grep -c '"bound": "with any history' "$reports/$name.json")" -eq 12 ] ||
        fail "not all properties of $flow are decided for all histories"
    states=$((states + $(python3 -B -c 'import json, sys; print(json.load(open(sys.argv[1]))["states"])' "$reports/$name.json")))
    flows=$((flows + 1))
done

# The coffee machine in C++ has a known ERROR: going home past a window whose home screen was deleted.
status=0
build/test/Examples/CoffeeMachine/CheckCoffeeMachine --bounded --states 8000 --only P1,P2,P3,P4,P7 --json \
    >"$reports/program.json" || status=$?
[ "$status" -le 1 ] || fail 'the coffee machine cannot be checked'
python3 -B Tests/Flow/CompareReports.py "$reports/CoffeeMachine.json" "$reports/program.json" || fail 'see above'

sed 's|<On button="BTN_BACK"><back/></On>||' Examples/Flows/WashingMachine.xml >"$reports/DeadEnd.xml"
expect_status 1 'a flow with a dead end' "$reports/DeadEnd.xml" --only P2 --scenarios "$reports/scenarios"
build/test/Flow/dialogsim "$reports/DeadEnd.xml" --play "$reports/scenarios/P2-1.scenario" >"$reports/played.txt" ||
    fail 'the scenario of a violation cannot be played'
[ -s "$reports/scenarios/P2-1.scenario" ] || fail 'a violation has no scenario'
# A history that grows for ever is a violation; what can be reached with it is decided all the same.
cat >"$reports/Endless.xml" <<'FLOW'
<Flow name="Endless">
  <Key name="ok" input="activate"/>
  <DialogDefinition id="DLG_A"><Screen><Button id="BTN_A"/></Screen></DialogDefinition>
  <DialogDefinition id="DLG_B"><Screen><Button id="BTN_B"/></Screen></DialogDefinition>
  <Start><create dialog="DLG_A"/></Start>
  <On button="BTN_A"><create dialog="DLG_B"/></On>
  <On button="BTN_B"><create dialog="DLG_A"/></On>
</Flow>
FLOW
expect_status 1 'a flow whose history grows for ever' "$reports/Endless.xml"
for property in P2 P3 P6 P7 P9 P10 P11; do
    grep -q "^$property .*: no violation with any history\$" "$reports/status.txt" ||
        fail "a flow without bound is not decided for $property"
done
"$check" "$reports/Endless.xml" --sarif "$reports/Endless.sarif" --junit "$reports/Endless.junit.xml" >/dev/null || true
python3 -B Tests/Flow/CheckSARIF.py "$reports/Endless.sarif" >&2 || fail 'the SARIF report of a violation is wrong'
xmllint --noout "$reports/Endless.junit.xml"
[ "$(xmllint --xpath 'count(//testcase/failure)' "$reports/Endless.junit.xml")" -ge 1 ] ||
    fail 'the JUnit report of a violation has no failure'
"$check" Examples/Flows/WashingMachine.xml --only P1 --graph "$reports/WashingMachine.dot" --tests "$reports/ways" \
    >/dev/null
grep -q '"DLG_PAUSED" -> "DLG_RUNNING"' "$reports/WashingMachine.dot" || fail 'an edge is missing in the graph'
[ "$(find "$reports/ways" -name '*.golden' -size +0 | wc -l)" -gt 100 ] || fail 'the edges are not covered'

python3 -B Tests/Flow/Mutants.py "$check" Examples/Flows/CarSettings.xml >"$reports/mutants.txt"
diff -u "$recorded" "$reports/mutants.txt" >&2 ||
    fail 'other changes of a flow alter its verdict; read the difference, then ./run flows --update'

mkdir -p "$reports/page"
python3 -B Tests/Flow/TryPage.py Docs/Flows.md "$check" "$reports/page" || fail 'Docs/Flows.md shows something else'

expect_status 0 'a property that holds' "$reports/DeadEnd.xml" --only P4
sed 's|bytes="8000"|bytes="1000"|' Examples/Flows/CarSettings.xml >"$reports/Small.xml"
expect_status 1 'a flow with too little memory' "$reports/Small.xml" --only P5
grep -q 'violation: at most 1000 bytes: ' "$reports/status.txt" || fail 'too little memory is not reported'
sed 's|</Flow>|<Expect property="P2" about="DLG_SOUND" reason="long gone"/></Flow>|' Examples/Flows/CarSettings.xml \
    >"$reports/Gone.xml"
expect_status 1 'a flow that expects what does not happen' "$reports/Gone.xml" --only P2
expect_status 0 'an expectation that is not looked at' "$reports/Gone.xml" --only P4
expect_status 2 'no file' --only P2
expect_status 2 'an unknown property' Examples/Flows/CarSettings.xml --only P13
expect_status 2 'a flow that is not there' "$reports/Nowhere.xml"
printf '<Flow name="x"><Start><go/></Start></Flow>\n' >"$reports/Wrong.xml"
expect_status 2 'a wrong flow' "$reports/Wrong.xml"
grep -q "Wrong.xml:1:23: unknown action 'go'; expected one of" "$reports/status.log" || fail 'a mistake is not reported'

report_figure "flows: $flows flows of $states states have no unexpected violation; $(grep -o '[0-9]* tests' "$reports/tests.txt" | tail -n 1) pass; $(grep -o "[0-9]* random flows:.*" "$reports/tests.txt")"

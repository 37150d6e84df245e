# SPDX-License-Identifier: MIT
# Group: check
# Help: [--update] | the demo prints the recorded transcript; or record a new one
# Arguments: 1
# Needs: @build
# Gate: 066
source Commands/Support/Command.bash
source Commands/Support/Tour.bash

only_option --update "$@"
recorded=Examples/CoffeeMachine/Tour.golden
played=build/logs/Tour.transcript
build_demo
play_tour >"$played" 2>&1 || fail "the tour stopped; see $played"
if [ $# -gt 0 ]; then
    cp "$played" "$recorded"
elif ! diff -u "$recorded" "$played"; then
    fail "the demo's transcript differs from $recorded; if the difference is right, ./run golden --update"
fi
printf '%d lines of transcript are as recorded\n' "$(wc -l <"$recorded")"

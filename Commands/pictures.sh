# SPDX-License-Identifier: MIT
# Group: check
# Help: [--check] | draw the pictures of the documents from real runs; or find those that are out of date
# Arguments: 1
# Needs: @tests
# Gate: 067 --check
source Commands/Support/Command.bash

only_option --check "$@"
build test CoffeeMachine CoffeeMachinePictures dialogtrace
pictures=build/test/Examples/CoffeeMachine/CoffeeMachinePictures
drawn=build/pictures
rm -rf "$drawn"
mkdir -p "$drawn"
"$pictures" film Examples/CoffeeMachine/Tour.scenario 2 5 >"$drawn/Tour.svg"
build/test/Examples/CoffeeMachine/CoffeeMachine --from Docs/Pictures/Simulator.session --shot "$drawn/Simulator.svg" \
    --size 104x36
for scenario in Docs/Pictures/*.scenario; do
    name=$(basename "$scenario" .scenario)
    "$pictures" lines "$scenario" >"$drawn/$name.jsonl"
    build/test/dialogtrace --svg "$drawn/$name.jsonl" >"$drawn/$name.svg"
done
count=0
for picture in "$drawn"/*.svg; do
    name=$(basename "$picture")
    grep -q -r -F "Pictures/$name" --include='*.md' README.md Docs || fail "no document shows Docs/Pictures/$name"
    if [ $# -eq 0 ]; then
        cp "$picture" Docs/Pictures/
    elif ! cmp -s "$picture" "Docs/Pictures/$name"; then
        fail "Docs/Pictures/$name is out of date; look at $picture, and draw it with ./run pictures"
    fi
    count=$((count + 1))
done
for picture in Docs/Pictures/*.svg; do
    [ -f "$drawn/$(basename "$picture")" ] || fail "nothing draws $picture"
done
printf '%d pictures show what happens in real runs\n' "$count"

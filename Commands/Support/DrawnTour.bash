# SPDX-License-Identifier: MIT
# The coffee machine as a toolkit draws it: its transcript and its pictures.

# Plays the tour and the pictures, and compares both with what is recorded, or records the pictures:
# <toolkit> <what operates it> <program> [--update]
compare_drawn_tour()
{
    local toolkit=$1 input=$2 program=$3
    local machine=Examples/CoffeeMachine
    local name=${toolkit,,} recorded=$machine/$toolkit/Pictures
    local pictures=build/$name-pictures
    rm -rf "$pictures"
    mkdir -p "$pictures"
    "$program" "$machine/Tour.scenario" "$pictures" >"build/logs/$name-tour.txt"
    diff -u "$machine/Tour.golden" "build/logs/$name-tour.txt" ||
        fail "the tour on $toolkit differs from the recorded one; see the lines above"
    printf 'The tour with %s gives the recorded transcript\n' "$input"

    "$program" "$machine/Drawn/Pictures.scenario" "$pictures" >"build/logs/$name-pictures.txt"
    if [ "${4:-}" = --update ]; then
        rm -rf "$recorded"
        cp -r "$pictures" "$recorded"
    fi
    python3 -B Commands/Support/ComparePictures.py "$recorded" "$pictures" >"build/logs/$name-compared.txt" || {
        cat "build/logs/$name-compared.txt" >&2
        fail "pictures differ; those drawn now are in $pictures. Look at them before ./run $name --update"
    }
    report_figure "$(tail -n 1 "build/logs/$name-compared.txt")"
}

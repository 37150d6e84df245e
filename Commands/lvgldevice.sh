# SPDX-License-Identifier: MIT
# Group: check
# Help: [--update] | the coffee machine on LVGL on a Cortex-M4, as on the host; its flash and RAM, or record them
# Arguments: 1
# Needs: @tests @device libpng-dev git
# Gate: 084
# Figure: lvgldevice
source Commands/Support/Command.bash
source Commands/Support/Device.bash
source Commands/Support/Growth.bash
source Commands/Support/LVGL.bash

recorded=Device/Footprint/LVGL.recorded
counted=build/logs/lvgl-device
scenarios=(Tour.scenario Drawn/Pictures.scenario) # by the number that the program on the board knows

# Plays a scenario here and on the board, and compares the transcripts and the pictures: <number>
compare_scenario()
{
    local scenario=Examples/CoffeeMachine/${scenarios[$1]} here=build/lvgl-device/here there=build/lvgl-device/there
    build/lvgl/Examples/CoffeeMachine/CoffeeMachineLVGL --small "$scenario" "$here" >"$here/$1.txt" ||
        fail "${scenarios[$1]} stopped here on a display of 320 x 240"
    run_on_device build/size-lvgl/Examples/CoffeeMachine/CoffeeMachineLVGL "$there/$1.txt" "build/lvgl-device/$1.report" \
        "$1" "$there" || {
        cat "build/lvgl-device/$1.report" >&2
        fail "${scenarios[$1]} stopped on the device; its transcript is $there/$1.txt"
    }
    diff -u "$here/$1.txt" "$there/$1.txt" || fail "the transcript of ${scenarios[$1]} on the device differs from that here"
}

only_option --update "$@"
configure_lvgl lvgl size-lvgl
build release dialogc
build size-lvgl CoffeeMachineLVGL
build lvgl CoffeeMachineLVGL
rm -rf build/lvgl-device
mkdir -p build/lvgl-device/here build/lvgl-device/there
compare_scenario 0
compare_scenario 1
diff -u Examples/CoffeeMachine/Tour.golden build/lvgl-device/there/0.txt ||
    fail 'the tour on a small display differs from the recorded one; see the lines above'
diff -rq build/lvgl-device/here build/lvgl-device/there || fail 'the pictures on the device differ from those here'

python3 -B Device/Footprint/LVGL.py collect build/size-lvgl/Examples/CoffeeMachine/CoffeeMachineLVGL.map \
    build/lvgl-device/0.report >"$counted" || fail 'the program could not be measured'
record_or_compare "$recorded" "$counted" "$@"
if [ $# -gt 0 ]; then
    python3 -B Device/Footprint/LVGL.py document "$recorded" Docs/Footprint.md
fi
cp Docs/Footprint.md build/logs/Footprint-LVGL.md
python3 -B Device/Footprint/LVGL.py document "$recorded" build/logs/Footprint-LVGL.md
cmp Docs/Footprint.md build/logs/Footprint-LVGL.md || fail 'Docs/Footprint.md does not show the recorded figures'
report_figure "$(python3 -B Device/Footprint/LVGL.py summarise "$counted")"

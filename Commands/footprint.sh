# SPDX-License-Identifier: MIT
# Group: check
# Help: [--update] | flash, RAM and stack on the Cortex-M4: nothing has grown, or record them
# Arguments: 1
# Needs: @build @device
# Gate: 083
# Figure: footprint
source Commands/Support/Command.bash
source Commands/Support/Growth.bash

only_option --update "$@"
recorded=Device/Footprint/Footprint.recorded
counted=build/logs/footprint
build release dialogc
builds=()
for level in debug error off; do
    build "size-$level" CoffeeMachine FootprintSizes DialogManagerCompanions InspectionExtent{0,1,2,3}
    builds+=("$level=build/size-$level")
done
python3 -B Device/Footprint/Footprint.py collect "${builds[@]}" >"$counted" || fail 'the programs could not be measured'
record_or_compare "$recorded" "$counted" "$@"
if [ $# -gt 0 ]; then
    python3 -B Device/Footprint/Footprint.py document "$recorded" Docs/Footprint.md
    python3 -B Device/Bars.py "$recorded" Device/Footprint/Bars.txt Docs/Footprint.md 'bars of flash'
fi
cp Docs/Footprint.md build/logs/Footprint.md
python3 -B Device/Footprint/Footprint.py document "$recorded" build/logs/Footprint.md
python3 -B Device/Bars.py "$recorded" Device/Footprint/Bars.txt build/logs/Footprint.md 'bars of flash'
cmp Docs/Footprint.md build/logs/Footprint.md || fail 'Docs/Footprint.md does not show the recorded figures'
grep '^|' Docs/Footprint.md
python3 -B Device/Bars.py "$counted" Device/Footprint/Bars.txt
report_figure "$(python3 -B Device/Footprint/Footprint.py summarise "$counted")"

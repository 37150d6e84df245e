# SPDX-License-Identifier: MIT
# Group: check
# Help: [--update] | instructions of operations on the Cortex-M4: none has grown, or record them
# Arguments: 1
# Needs: @build @device
# Gate: 081
# Figure: deviceinstructions
source Commands/Support/Command.bash
source Commands/Support/Device.bash
source Commands/Support/Growth.bash

# Prints the instructions of every operation on the board: <program> <beginning of each line>
count_instructions_on_device()
{
    local run
    for run in first second; do
        run_on_device "build/device/Device/$1" "build/logs/$1.$run" "build/logs/$1-errors" || {
            cat "build/logs/$1-errors" >&2
            fail "$1 stopped on the device"
        }
    done
    cmp "build/logs/$1.first" "build/logs/$1.second" || fail "$1 does not count the same every time"
    sed "s/^/$2/" "build/logs/$1.first"
}

only_option --update "$@"
build release dialogc
build device Instructions InstructionsTraceOff InstructionsInspection
counted=build/logs/instructions.device
count_instructions_on_device Instructions 'all messages  ' >"$counted"
count_instructions_on_device InstructionsTraceOff 'no messages   ' >>"$counted"
count_instructions_on_device InstructionsInspection 'inspection    ' >>"$counted"
cat "$counted"
record_or_compare Device/Instructions.recorded "$counted" "$@"
if [ $# -gt 0 ]; then
    python3 -B Device/Bars.py Device/Instructions.recorded Device/Instructions/Bars.txt Docs/Footprint.md \
        'bars of instructions'
    quietly profile-instructions python3 -B Device/Instructions/Profile.py build/device/Device/InstructionsTraceOff \
        Docs/Footprint.md "${simulated_board[@]}"
fi
python3 -B Device/Bars.py "$counted" Device/Instructions/Bars.txt
report_figure "instructions on the Cortex-M4 without messages: $(
    sed -n -E 's/^no messages +(.*[^ ]) +empty history, 100 objects +([0-9]+)$/\1 \2/p' "$counted" | paste -s -d , |
        sed 's/,/, /g')"

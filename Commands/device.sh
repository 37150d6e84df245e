# SPDX-License-Identifier: MIT
# Group: check
# Help: | the tests and the demo on a Cortex-M4, in QEMU
# Needs: @build @device
# Gate: 080
# Figure: device
source Commands/Support/Command.bash
source Commands/Support/Device.bash

build release dialogc
build device
run_tests device
python3 -B Device/Footprint/DialogsInFlash.py build/device/Examples/CoffeeMachine/CoffeeMachine.map ||
    fail 'the dialogs of the demo are not where they should be'
play_tour_on_device device 'on the device'
cat build/logs/Tour.device-memory
printf '\nWhat operations allocate from fixed blocks instead of a heap:\n'
run_on_device build/device/Examples/FixedBlocks/FixedBlocks build/logs/FixedBlocks build/logs/FixedBlocks-errors || {
    cat build/logs/FixedBlocks-errors >&2
    fail 'the example with fixed blocks fails on the device'
}
cat build/logs/FixedBlocks
report_figure "on the Cortex-M4: $(tail -n 1 build/logs/device-tests.txt), the demo's transcript as here, $(
    sed -n 's/^heap: //p' build/logs/Tour.device-memory) (heap)"

# SPDX-License-Identifier: MIT
# Group: check
# Help: | the tests and the demo on a Cortex-M4, in QEMU
# Help: --inspect | start the coffee machine there and look into it (: types its input, q leaves)
# Arguments: 1
# Needs: @build @device
# Gate: 080
# Figure: device
source Commands/Support/Command.bash
source Commands/Support/Device.bash

# Starts the coffee machine in real time, with its serial line at a pseudo-terminal, and attaches to that.
inspect_board()
{
    local log=build/logs/device-inspect.log line='' tries=0
    need @tests
    build release dialogc
    build device CoffeeMachineInspected
    build test dialogsim
    qemu-system-arm -M mps2-an386 -cpu cortex-m4 -display none -monitor none -serial pty \
        -semihosting-config enable=on,target=native \
        -kernel build/device/Examples/CoffeeMachine/CoffeeMachineInspected >"$log" 2>&1 </dev/null &
    board=$!
    trap 'kill "$board" 2>/dev/null || true' EXIT
    while [ -z "$line" ] && [ $((tries += 1)) -le 100 ]; do
        sleep 0.1
        line=$(sed -n 's/^char device redirected to \([^ ]*\) .*/\1/p' "$log")
    done
    [ -n "$line" ] || fail "the board does not start; see $log"
    build/test/Flow/dialogsim --attach "$line"
}

only_option --inspect "$@"
if [ $# -gt 0 ]; then
    inspect_board
    exit
fi

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

# SPDX-License-Identifier: MIT
# Group: check
# Help: [seed] | a trace of the coffee machine on the board gives the same trace and states on the host
# Arguments: 1
# Needs: @tests @device
# Gate: 081
# Figure: fieldreplay
source Commands/Support/Command.bash

only_numbers "$@"
seed=${1:-$RANDOM}
log=build/logs/fieldreplay.jsonl
build release dialogc
build device CoffeeMachineInspected
build test ReplayCoffeeMachine
printf 'Recording, seed %d\n' "$seed"
quietly fieldreplay python3 -B Device/Tests/RecordRun.py "$log" "$seed" 400 \
    qemu-system-arm -M mps2-an386 -cpu cortex-m4 -display none -monitor none -serial stdio \
    -semihosting-config enable=on,target=native -icount shift=0,sleep=off \
    -kernel build/device/Examples/CoffeeMachine/CoffeeMachineInspected
build/test/Examples/CoffeeMachine/ReplayCoffeeMachine "$log" >build/logs/fieldreplay.txt ||
    fail "the log $log cannot be replayed; to record it again: ./run fieldreplay $seed"

# A byte that differs is found.
sed 's/Home\.xml/Hame.xml/' "$log" >build/logs/fieldreplay-other.jsonl
if build/test/Examples/CoffeeMachine/ReplayCoffeeMachine build/logs/fieldreplay-other.jsonl 2>/dev/null; then
    fail 'a log with another file name replays as well'
fi
report_figure "recorded on the board and replayed on the host: $(cat build/logs/fieldreplay.txt)"

# SPDX-License-Identifier: MIT
# Programs on the board, which QEMU simulates.

simulated_board=(qemu-system-arm -M mps2-an386 -cpu cortex-m4 -display none -serial null -monitor none
    -semihosting-config 'enable=on,target=native' -icount 'shift=0,sleep=off')

# Starts the board with a program, like CMake/ArmNoneEabi.cmake does for ctest: <program> <file for its output>
# [argument ...]
start_board()
{
    local -a arguments=()
    [ $# -lt 3 ] || arguments=(-append "${*:3}")
    timeout 300 "${simulated_board[@]}" -kernel "$1" "${arguments[@]}" >"$2"
}

# Runs a program on the board: <program> <file for its output> <file for its errors> [argument ...]
run_on_device()
{
    watched "$(basename "$1")" "$3" start_board "$1" "$2" "${@:4}"
}

# Plays the tour on the board and compares its transcript with the host's: <build> <name>
play_tour_on_device()
{
    run_on_device "build/$1/Examples/CoffeeMachine/CoffeeMachine" "build/logs/Tour.$1" "build/logs/Tour.$1-memory" || {
        cat "build/logs/Tour.$1-memory" >&2
        fail "the tour stopped on the device; its transcript is build/logs/Tour.$1"
    }
    diff -u Examples/CoffeeMachine/Tour.golden "build/logs/Tour.$1" ||
        fail "the demo's transcript on the device differs from that on the host"
    printf 'The demo %s: %d lines of transcript are as recorded\n' "$2" \
        "$(wc -l <Examples/CoffeeMachine/Tour.golden)"
}

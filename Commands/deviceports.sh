# SPDX-License-Identifier: MIT
# Group: check
# Help: | build for other processors and with clang
# Needs: @build @device clang-14
# Gate: 082
# Figure: deviceports
source Commands/Support/Command.bash
source Commands/Support/Device.bash
source Commands/Support/AllSources.bash

# Builds for a processor, and checks the architecture of the programs without running them: <build> <architecture>
build_for_other_device()
{
    local program=build/$1/Examples/CoffeeMachine/CoffeeMachine text data
    build "$1"
    arm-none-eabi-readelf -A "$program" >"build/logs/$1.attributes"
    grep -q "Tag_CPU_arch: $2\$" "build/logs/$1.attributes" ||
        fail "the programs of $1 are not for the architecture $2"
    read -r text data _ < <(arm-none-eabi-size "$program" | tail -n 1)
    printf '%s: %d bytes of flash for the demo, built for %s\n' "$1" $((text + data)) "$2"
}

compile_all_sources arm-none-eabi-g++ -mcpu=cortex-m4 -mthumb --specs=rdimon.specs
build release dialogc
build_for_other_device device-m3 v7
build_for_other_device device-m7 v7E-M
build_for_other_device device-m33 v8-M.mainline
build_for_other_device device-clang v7E-M
play_tour_on_device device-clang 'compiled by clang on the device'
report_figure 'the demo builds for Cortex-M3, M7 and M33, and runs on the M4 compiled by clang'

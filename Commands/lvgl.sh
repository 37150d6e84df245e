# SPDX-License-Identifier: MIT
# Group: check
# Help: [--update] | the adapter for LVGL, in C++ and C; pictures of the coffee machine, or record them
# Help: --window | open the coffee machine on LVGL in a window, which needs SDL2
# Arguments: 1
# Needs: @tests libpng-dev git
# Gate: 068
# Figure: lvgl
source Commands/Support/Command.bash
source Commands/Support/DrawnTour.bash
source Commands/Support/LVGL.bash
source Commands/Support/OutsidePrograms.bash

outside=build/lvgl-outside

# Opens the window until it is closed.
open_window()
{
    need libsdl2-dev
    configure_lvgl lvgl
    build lvgl CoffeeMachineLVGLWindow
    printf 'Tab, arrows and Return or the mouse; Esc is back, h home, s the service key\n'
    # What SDL2 and the libraries that it loads leave is not ours.
    ASAN_OPTIONS=detect_leaks=0 build/lvgl/Examples/CoffeeMachine/CoffeeMachineLVGLWindow
}

if [ "${1:-}" = --window ]; then
    open_window
    exit
fi
only_option --update "$@"
configure_lvgl lvgl
build lvgl LVGLTests LVGLFromC CoffeeMachineLVGL

printf 'Testing the adapter, with 100,000 random switches and popups\n'
quietly lvgl-tests env LVGL_RANDOM_TURNS=100000 build/lvgl/Tests/LVGL/LVGLTests --gtest_brief=1
quietly lvgl-from-c build/lvgl/Tests/LVGL/LVGLFromC
cat build/logs/lvgl-from-c.log

# An application that has LVGL already takes the adapter into its build.
library=$PWD/build/lvgl/LVGL/lib/liblvgl.a
if [ -e "$library" ]; then
    sources=$(sed -n 's/^-- LVGL: the sources in //p' build/logs/configure-lvgl-source.log)
    build_outside_programs VendoredLVGL "-DDIALOGMANAGER_DIRECTORY=$PWD" "-DLVGL_LIBRARY=$library" \
        "-DLVGL_SOURCE=${sources:-$PWD/build/lvgl/_deps/lvgl-src}" \
        "-DLVGL_CONFIGURATION=$PWD/Adapters/LVGL/Configuration/lv_conf.h" \
        -DLVGL_LINK_OPTIONS=-fsanitize=address -DCMAKE_BUILD_TYPE=Debug
    run_outside_program VendoredLVGL LVGL
fi

compare_drawn_tour LVGL 'touches and keys of LVGL' build/lvgl/Examples/CoffeeMachine/CoffeeMachineLVGL "$@"

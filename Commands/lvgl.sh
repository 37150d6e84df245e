# SPDX-License-Identifier: MIT
# Group: check
# Help: [--update] | the adapter for LVGL, in C++ and C; pictures of the coffee machine, or record them
# Help: --window | open the coffee machine on LVGL in a window of SDL2
# Arguments: 1
# Needs: @tests libpng-dev libsdl2-dev git pkg-config
# Gate: 068
# Figure: lvgl
source Commands/Support/Command.bash
source Commands/Support/Display.bash
source Commands/Support/DrawnTour.bash
source Commands/Support/LVGL.bash
source Commands/Support/LVGLWays.bash
source Commands/Support/OutsidePrograms.bash

# Opens the window until it is closed.
open_window()
{
    configure_lvgl lvgl
    build lvgl CoffeeMachineLVGLWindow
    printf 'Tab, arrows and Return or the mouse; Esc is back, h home, s the service key\n'
    # What SDL2 and the libraries that it loads leave is not ours.
    ASAN_OPTIONS=detect_leaks=0 build/lvgl/Examples/CoffeeMachine/CoffeeMachineLVGLWindow
}

# Opens the window on a display without a screen, and presses its keys: the settings are shown like on the recorded picture.
check_window()
{
    local shown=build/lvgl-window/shown expected=build/lvgl-window/expected window process
    rm -rf build/lvgl-window
    mkdir -p "$shown" "$expected"
    cp Examples/CoffeeMachine/LVGL/Pictures/Settings.png "$expected"
    start_display 640x480
    ASAN_OPTIONS=detect_leaks=0 build/lvgl/Examples/CoffeeMachine/CoffeeMachineLVGLWindow "$shown" Settings \
        >build/logs/lvgl-window.log 2>&1 &
    process=$!
    window=$(timeout 100 xdotool search --sync --onlyvisible --name '^Coffee machine$' | head -n 1) ||
        fail 'no window opens; see build/logs/lvgl-window.log'
    xdotool windowfocus --sync "$window" key Tab Left Down Right Up Return Tab Left q
    wait "$process" || fail 'the window ends with an error; see build/logs/lvgl-window.log'
    python3 -B Commands/Support/ComparePictures.py "$expected" "$shown" >build/logs/lvgl-window-compared.txt ||
        fail "the keys do not work in the window, which shows $shown/Settings.png"
    printf 'The window of SDL2 and its keys work\n'
}

if [ "${1:-}" = --window ]; then
    open_window
    exit
fi
only_option --update "$@"
configure_lvgl lvgl
need xvfb xdotool
build lvgl LVGLTests LVGLFromC CoffeeMachineLVGL CoffeeMachineLVGLWindow

printf 'Testing the adapter, with 100,000 random switches and popups\n'
quietly lvgl-tests env LVGL_RANDOM_TURNS=100000 build/lvgl/Tests/LVGL/LVGLTests --gtest_brief=1
quietly lvgl-from-c build/lvgl/Tests/LVGL/LVGLFromC
cat build/logs/lvgl-from-c.log

library=$PWD/build/lvgl/LVGL/lib/liblvgl.a
if [ -e "$library" ]; then
    sources=$(sed -n 's/^-- LVGL: the sources in //p' build/logs/configure-lvgl-source.log)
    try_ways "${sources:-$PWD/build/lvgl/_deps/lvgl-src}" "$library"
fi

# New pictures are recorded first.
[ $# -gt 0 ] || check_window
compare_drawn_tour LVGL 'touches and keys of LVGL' build/lvgl/Examples/CoffeeMachine/CoffeeMachineLVGL "$@"

# SPDX-License-Identifier: MIT
# Group: check
# Help: | open the coffee machine in a window of FLTK
# Help: --check or --update | the adapter for FLTK; pictures of the coffee machine, or record them
# Arguments: 1
# Needs: @build libfltk1.3-dev libpng-dev fonts-dejavu-core
# Gate: 068 --check
# Figure: fltk --check
source Commands/Support/Command.bash
source Commands/Support/DrawnTour.bash

if [ $# -eq 0 ]; then
    [ -n "${DISPLAY:-}" ] || fail 'there is no display (DISPLAY is empty); run this on a desktop, or ./run fltk --check'
    build fltk-window CoffeeMachineFLTK
    # Other commands need not wait until somebody closes the window.
    exec 9>&-
    exec build/fltk-window/Examples/CoffeeMachine/CoffeeMachineFLTK
fi

[ "$1" = --check ] || [ "$1" = --update ] || wrong_usage "fltk knows --check and --update, not '$1'"
need @tests xvfb xdotool
source Commands/Support/Display.bash
mkdir -p build/logs
build sanitize-g++ FLTKTests FLTKDocuments CoffeeMachineFLTK

start_display 640x480
# The same letters on all machines, and what the libraries of the display keep until the end is no leak.
export FONTCONFIG_FILE=$PWD/Tests/FLTK/Fonts.conf
export LSAN_OPTIONS=suppressions=$PWD/Tests/FLTK/LeakSuppressions.txt:print_suppressions=0

printf 'Testing the adapter, with 100,000 random switches and popups\n'
quietly fltk-tests env FLTK_RANDOM_TURNS=100000 build/sanitize-g++/Tests/FLTK/FLTKTests --gtest_brief=1

program=build/sanitize-g++/Examples/CoffeeMachine/CoffeeMachineFLTK
if DISPLAY='' "$program" 2>build/logs/fltk-no-display.txt; then
    fail 'CoffeeMachineFLTK runs without a display'
fi
grep -q -x "CoffeeMachineFLTK: cannot open the display ''; run it on a desktop, or set DISPLAY" \
    build/logs/fltk-no-display.txt || fail 'CoffeeMachineFLTK does not say that there is no display'
compare_drawn_tour FLTK 'mouse and keys of the display' "$program" "$@"

# SPDX-License-Identifier: MIT
# Group: all
# Help: [--peers] [--update] | time of operations and of hand-written code; FLTK, Qt, GTK; for Docs/Performance.md
# Help: --lvgl [--update] | what switching screens costs by hand in LVGL, with the adapter and with lv_fragment
# Arguments: 2
# Needs: @tests @benchmarks gnuplot-nox
source Commands/Support/Command.bash
source Commands/Support/Counts.bash
source Commands/Support/LVGL.bash

# Runs a measuring program, into build/bench-results/time-<name>.json: <name> <program> [what starts it ...]
time_operations()
{
    local name=$1 program=$2
    shift 2
    printf 'Measuring %s\n' "$name"
    watched "bench-$name" "build/logs/bench-$name.log" "$@" "$program" \
        --benchmark_out="$PWD/build/bench-results/time-$name.json" --benchmark_out_format=json || {
        tail -n 20 "build/logs/bench-$name.log" >&2
        fail "$program stopped"
    }
}

time_peers()
{
    local directory=build/bench-peers/Benchmarks/Peers
    need @peers
    build bench-peers
    time_operations fltk "$directory/PeerFLTK" xvfb-run -a
    time_operations gtk "$directory/PeerGTK" xvfb-run -a
    time_operations qt-widgets "$directory/PeerQtWidgets" env QT_QPA_PLATFORM=offscreen
    time_operations qt-quick "$directory/PeerQtQuick" env QT_QPA_PLATFORM=offscreen
}

# Counts instructions and allocations beside screens by hand in LVGL: [--update]
compare_lvgl()
{
    local document=()
    [ "${1:-}" != --update ] || document=(Docs/Adapters.md)
    configure_lvgl bench-lvgl
    build bench-lvgl CountLVGL
    printf 'Counting instructions, which takes a few minutes\n'
    quietly count-lvgl count_operations bench-lvgl LVGL/CountLVGL
    python3 -B Benchmarks/Report/LVGL.py build/counts/bench-lvgl/counts Benchmarks/Instructions.recorded \
        "${document[@]}" >build/logs/bench-lvgl.txt || fail 'the counts could not be compared'
    cat build/logs/bench-lvgl.txt
}

if [ "${1:-}" = --lvgl ]; then
    shift
    only_option --update "$@"
    compare_lvgl "$@"
    exit
fi
peers=
update=()
for option in "$@"; do
    case $option in
    --peers) peers=yes ;;
    --update) update=(--update Docs/Performance Docs/Performance.md Docs/Measurements.md) ;;
    *) wrong_usage "bench knows --lvgl, --peers and --update, not '$option'" ;;
    esac
done
build bench
build bench-off
rm -rf build/bench-results
mkdir -p build/bench-results
time_operations off build/bench-off/Benchmarks/TimeOperations
time_operations on build/bench/Benchmarks/TimeOperations
[ -z "$peers" ] || time_peers
build test dialogcheck
printf 'Exploring flows\n'
python3 -B Benchmarks/Report/Explorations.py build/test/Flow/dialogcheck build/bench-results/explorations.json
if ! grep -q '"instructions"' build/bench-results/time-off.json; then
    count_all_operations
    cp build/counts/bench-off/counts build/bench-results/counts-off
    cp build/counts/bench/counts build/bench-results/counts-on
fi
python3 -B Benchmarks/Report/Report.py build/bench-results "${update[@]}" >build/logs/bench.txt ||
    fail 'the results could not be combined'
sed '$d' build/logs/bench.txt
printf 'The tables are in build/bench-results/results.md, all figures in results.json beside them\n'
report_figure "$(tail -n 1 build/logs/bench.txt)"

# SPDX-License-Identifier: MIT
# A display without a screen, for programs that open windows.

# Starts one, and ends it with the command: <width>x<height>
start_display()
{
    local number=build/logs/display-$command_name.txt log=build/logs/xvfb-$command_name.log
    : >"$number"
    # It chooses a number that is free. Locks of this command are not its business.
    Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp -noreset 3>"$number" 8>&- 9>&- >"$log" 2>&1 &
    display_process=$!
    trap 'kill "$display_process" 2>/dev/null || true' EXIT
    local -i tries=0
    until [ -s "$number" ]; do
        kill -0 "$display_process" 2>/dev/null || fail "Xvfb ends at once; see $log"
        [ $((tries += 1)) -le 600 ] || fail "Xvfb does not start; see $log"
        sleep 0.1
    done
    DISPLAY=:$(cat "$number")
    export DISPLAY
}

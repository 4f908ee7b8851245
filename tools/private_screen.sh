# shellcheck shell=bash
# A virtual desktop: X server, session bus, window manager, tray and notification daemon, for the lifetime of the
# sourcing script. Each runs in its own session, so that Ctrl-C in the terminal reaches only the script, which then
# ends the program before these services.

screen_pids=()   # in the order of their starts
screen_dir=      # sockets and logs

# begin_service NAME COMMAND... : starts it in the background, logging its output.
begin_service() {
    local name=$1
    shift
    setsid "$@" >"$screen_dir/$name.log" 2>&1 </dev/null &
    screen_pids+=($!)
}

# wait_until SECONDS COMMAND... : waits until the command succeeds.
wait_until() {
    local deadline=$((SECONDS + $1))
    shift
    until "$@"; do
        [ "$SECONDS" -lt "$deadline" ] || return 1
        sleep 0.05
    done
}

# start_private_screen : exports DISPLAY and DBUS_SESSION_BUS_ADDRESS of a new desktop.
start_private_screen() {
    screen_dir=$(mktemp -d "${TMPDIR:-/tmp}/tidewatch-screen.XXXXXX") || return 1
    unset WAYLAND_DISPLAY SESSION_MANAGER XAUTHORITY
    setsid Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp -noreset \
        3>"$screen_dir/display" >"$screen_dir/Xvfb.log" 2>&1 </dev/null &
    screen_pids+=($!)
    if ! wait_until 20 test -s "$screen_dir/display"; then
        echo "The X server did not start:" >&2
        cat "$screen_dir/Xvfb.log" >&2
        return 1
    fi
    DISPLAY=:$(cat "$screen_dir/display")
    DBUS_SESSION_BUS_ADDRESS=unix:path=$screen_dir/bus
    export DISPLAY DBUS_SESSION_BUS_ADDRESS
    begin_service dbus-daemon dbus-daemon --session --nofork --nopidfile --address="$DBUS_SESSION_BUS_ADDRESS"
    wait_until 10 test -S "$screen_dir/bus" || { echo "The session bus did not start." >&2; return 1; }
    xsetroot -solid '#2f4858'
    begin_service openbox openbox --sm-disable
    begin_service trayer trayer --edge bottom --align right --widthtype request --height 24 \
        --SetDockType true --transparent true --alpha 0 --tint 0x2f4858
    begin_service dunst dunst
}

# end_process PID SECONDS : terminates it, waits, then kills it.
end_process() {
    kill -TERM "$1" 2>/dev/null || return 0
    wait_until "$2" process_is_gone "$1" || kill -KILL "$1" 2>/dev/null
}

process_is_gone() { ! kill -0 "$1" 2>/dev/null; }

# end_private_screen : ends the services in reverse order.
end_private_screen() {
    local i
    for ((i = ${#screen_pids[@]} - 1; i >= 0; i--)); do
        end_process "${screen_pids[i]}" 5
    done
    screen_pids=()
    [ -z "$screen_dir" ] || rm -rf "$screen_dir"
}

# SPDX-License-Identifier: MIT
# Starts a program on a virtual display and works it by key events alone. Sourced.

# start_program PICTURE COMMAND..  The picture is taken when something goes wrong.
start_program() {
    picture=$1
    shift
    log=$(mktemp)
    # Without the last word it starts anew, and drops who is just coming, when the last client goes.
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>"$log" 2>/dev/null &
    server=$!
    trap 'kill $server 2>/dev/null; rm -f "$log"' EXIT
    for _ in $(seq 100); do [ -s "$log" ] && break; sleep 0.1; done
    DISPLAY=:$(cat "$log")
    export DISPLAY
    openbox &
    manager=$!
    await_manager

    began=$(date +%s%N)
    "$@" &
    program=$!
    trap 'kill $program $server 2>/dev/null; rm -f "$log"' EXIT
}

# await_manager  Without one nothing takes the keys, and on a busy machine it is slower than the
# program. Its mark on the root is set before it takes windows, and one that comes between is never
# taken: a window of our own tells.
await_manager() {
    local probe managed=
    for _ in $(seq 60); do
        xev -geometry 9x9+0+0 >/dev/null 2>&1 &
        probe=$!
        for _ in $(seq 20); do
            ! xprop -root _NET_CLIENT_LIST 2>/dev/null | grep -q 0x || { managed=yes && break; }
            sleep 0.1
        done
        kill "$probe" 2>/dev/null || true
        wait "$probe" 2>/dev/null || true
        [ -z "$managed" ] || return 0
    done
    stop_with_picture "No window manager takes windows"
}

stop_with_picture() {
    import -window root "$picture"
    kill -0 "$manager" 2>/dev/null || echo "The window manager has ended" >&2
    echo "$1; see $picture" >&2
    exit 1
}

# await TITLE [COUNT]  Waits for a window that is newer than the last one, and for COUNT of that
# title, and brings it under the keys. The window of the start and the questions before it bear one
# and the same title; a newer window has a higher number.
last=0
await() {
    local windows
    window=
    for _ in $(seq 1200); do
        windows=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | sort -n) || true
        window=$(tail -1 <<<"$windows")
        [ "${window:-0}" -gt "$last" ] && [ "$(wc -w <<<"$windows")" -ge "${2:-1}" ] && break
        window=
        sleep 0.1
    done
    [ -n "$window" ] || stop_with_picture "No window \"$1\" appeared"
    last=$window
    activate "$window"
}
activate() {
    xdotool windowactivate --sync "$1" 2>/dev/null || true
    sleep 1
}
press() { xdotool key --delay 60 "$@" && sleep 0.5; }
enter() {
    press ctrl+a
    xdotool type --delay 60 -- "$1"
    press Return
}

# open_main_window TD  Answers what a first start asks and closes the page that it shows.
# FIRST_START=1: the question about earlier records comes first and is answered with No.
open_main_window() {
    if [ -n "${FIRST_START:-}" ]; then
        await '^Brinemark$'
        press alt+n
        await '^KORVEL2000$'
    else
        await '^KORVEL2000$' 2
    fi
    answer_time_difference "$1"
    await 'KORVEL2000 manual$'
    press Escape
    activate "$main"
}

answer_time_difference() {
    enter "$1"
    await "^KORVEL \\($1"
    main=$window
    echo "Main window after $((($(date +%s%N) - began) / 1000000)) ms, the script's own waiting included;" \
        "resident memory $(awk '/^VmRSS/ {print int($2 / 1024)}' "/proc/$(xdotool getwindowpid "$main")/status") MB"
}

# end_program  As an officer does.
end_program() {
    activate "$main"
    press alt+e
    await '^KORVEL2000$|^Brinemark$'
    press Return
    for _ in $(seq 100); do
        kill -0 $program 2>/dev/null || { wait $program && exit 0; }
        sleep 0.1
    done
    stop_with_picture "The program did not end"
}

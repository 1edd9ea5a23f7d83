#!/usr/bin/env bash
# under_weston.sh SHELL PROGRAM ARGUMENT...: runs a program on a compositor of its own, Weston on a
# display that nobody sees, so that xdotool is its mouse and its keyboard.
#
# SHELL is a module of Weston: kiosk-shell.so has the first window fill the screen, desktop-shell.so
# puts it anywhere. Exit status: that of PROGRAM; 77 where there is no Weston.

readonly shell=$1
shift
for tool in weston Xvfb xdotool; do
    command -v "$tool" >/dev/null || {
        echo "skipped: there is no $tool" >&2
        exit 77
    }
done

work=$(mktemp -d "${TMPDIR:-/tmp}/corvana-wayland.XXXXXX") || exit
started=()
leave() {
    local one
    # The compositor before its display.
    for ((one = ${#started[@]} - 1; one >= 0; one--)); do
        kill "${started[one]}" 2>/dev/null
        wait "${started[one]}" 2>/dev/null
    done
    rm -rf "$work"
}
trap leave EXIT

# await COMMAND...: for at most 20 seconds.
await() {
    local tries=400
    until "$@" >/dev/null 2>&1; do
        tries=$((tries - 1))
        [ "$tries" -gt 0 ] || {
            echo "waited in vain for: $*" >&2
            cat "$work/weston.log" >&2
            exit 1
        }
        sleep 0.05
    done
}

mkdir -m 700 "$work/runtime"
export XDG_RUNTIME_DIR=$work/runtime
Xvfb -displayfd 3 -screen 0 1600x1200x24 -nolisten tcp -noreset 3>"$work/display" \
    >"$work/xvfb.log" 2>&1 &
started+=($!)
await test -s "$work/display"
DISPLAY=:$(cat "$work/display")
export DISPLAY

cat >"$work/weston.ini" <<'END'
[core]
idle-time=0
[shell]
locking=false
panel-position=none
animation=none
startup-animation=none
close-animation=none
focus-animation=none
[input-method]
path=
END
weston --backend=x11-backend.so --use-pixman --shell="$shell" --socket=corvana --width=1600 \
    --height=1200 --config="$work/weston.ini" --log="$work/weston.log" >/dev/null 2>&1 &
started+=($!)
await test -S "$XDG_RUNTIME_DIR/corvana"
# There is no window manager, for whom Weston would name its window.
screen() {
    window=$(sed -n 's/.*x11 output .* window id \([0-9]*\).*/\1/p' "$work/weston.log" | head -n 1)
    [ -n "$window" ]
}
await screen
await xdotool windowfocus "$window"

WAYLAND_DISPLAY=corvana QT_QPA_PLATFORM=wayland "$@"

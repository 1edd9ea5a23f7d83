# shellcheck shell=bash
# shellcheck disable=SC2154,SC2034 # set by support.bash, or for the test programs
# Works the dialog as its users do: a real window on a display of the test's own, real keys and
# clicks. There is no window manager, so nothing moves the window or the focus meanwhile.
#
# Source after support.bash. Keys and clicks wait in the display's queue until the program takes
# them, so only what a click hits has to be waited for.

for tool in Xvfb xdotool; do
    command -v "$tool" >/dev/null || {
        echo "$0: $tool is needed and missing" >&2
        exit 1
    }
done

screen_width=1280
screen_height=1024

# await WHAT COMMAND...: until the command succeeds; gives up when the patience is at its end.
await() {
    local what=$1 tries=$((patience * 20))
    shift
    until "$@"; do
        tries=$((tries - 1))
        [ "$tries" -gt 0 ] || fail "waited in vain for $what"
        sleep 0.05
    done
}

open_display() {
    mkdir "$work/screen"
    Xvfb -displayfd 3 -screen 0 "${screen_width}x${screen_height}x24" -fbdir "$work/screen" \
        -nolisten tcp -noreset 3>"$work/display" >"$work/xvfb.log" 2>&1 &
    await 'the display' test -s "$work/display"
    DISPLAY=:$(cat "$work/display")
    export DISPLAY
}

# open_dialog ARGUMENT...: the dialog for the document, printing to $output; it has the focus.
open_dialog() {
    [ -n "${DISPLAY-}" ] || open_display
    env "${environment[@]}" QT_QPA_PLATFORM=xcb "$program" --bundle-root "$bundles" "${printer[@]}" \
        --summary --output "$output" "$@" "$document" >"$work/out" 2>"$work/err" </dev/null &
    dialog=$!
    await 'the window' window_appears
    await 'the focus' takes_focus
}
expect_running() { kill -0 "$dialog" 2>/dev/null || fail 'the program has ended'; }
window_appears() {
    expect_running
    window=$(xdotool search --onlyvisible --pid "$dialog" 2>/dev/null | head -n 1)
    [ -n "$window" ]
}
# A window that is not on the screen yet cannot be given the focus: it is asked for again.
takes_focus() {
    window_appears || return
    xdotool windowfocus "$window" 2>/dev/null
    has_focus
}
has_focus() { expect_running && [ "$(xdotool getwindowfocus 2>/dev/null)" = "$window" ]; }

# settle: until the screen has not changed for a while.
settle() {
    local former='' now still=0 tries=$((patience * 10))
    while [ "$still" -lt 4 ]; do
        tries=$((tries - 1))
        [ "$tries" -gt 0 ] || fail 'the screen never comes to rest'
        expect_running
        now=$(cksum <"$work/screen/Xvfb_screen0")
        if [ "$now" = "$former" ]; then still=$((still + 1)); else still=0; fi
        former=$now
        sleep "0.0$((slowdown > 1 ? 9 : 4))"
    done
}

press() { xdotool key "$@"; }
click() { xdotool mousemove "$1" "$2" click 1; }

# take_picture NAME: of the whole screen, for changed_area.
take_picture() {
    settle
    cp "$work/screen/Xvfb_screen0" "$work/$1.xwd"
}
# Where the pages begin of a dialog in the middle of the screen.
readonly pages_begin=250
# changed_area NAME NAME [TOP]: left, top, right and bottom of what differs between two pictures, from
# the row TOP on.
changed_area() {
    local header=$(($(stat -c %s "$work/$1.xwd") - screen_width * screen_height * 4))
    cmp -l "$work/$1.xwd" "$work/$2.xwd" | awk -v header="$header" -v width="$screen_width" -v from="${3-0}" '
        $1 > header {
            pixel = int(($1 - header - 1) / 4); x = pixel % width; y = int(pixel / width)
            if (y < from) next
            if (!n++) { left = right = x; top = bottom = y }
            if (x < left) left = x; if (x > right) right = x; if (y > bottom) bottom = y
        }
        END { if (n) print left, top, right, bottom }'
}

# A list that a pop-up button has opened is a window of its own; $popup_left, $popup_top,
# $popup_width and $popup_height say where.
popup_is_open() {
    expect_running
    local other X=0 Y=0 WIDTH=0 HEIGHT=0
    for other in $(xdotool search --onlyvisible --pid "$dialog" 2>/dev/null); do
        [ "$other" != "$window" ] || continue
        eval "$(xdotool getwindowgeometry --shell "$other" 2>/dev/null | grep -E '^(X|Y|WIDTH|HEIGHT)=[0-9]+$')"
        popup_left=$X popup_top=$Y popup_width=$WIDTH popup_height=$HEIGHT
        [ "$popup_width" -gt 20 ] && return 0
    done
    return 1
}
popup_is_closed() { ! popup_is_open; }

# An alert or a question is a window of its own as well, $alert; nothing else of the program takes a
# key or a click until it is answered.
windows_of_program() { xdotool search --onlyvisible --pid "$dialog" 2>/dev/null; }
alert_is_open() {
    expect_running
    local other WIDTH
    for other in $(windows_of_program | grep -vx "$window"); do
        WIDTH=0
        eval "$(xdotool getwindowgeometry --shell "$other" 2>/dev/null | grep -E '^WIDTH=[0-9]+$')"
        alert=$other
        [ "$WIDTH" -gt 20 ] && return 0
    done
    return 1
}
alert_is_closed() { ! windows_of_program | grep -qx "$alert"; }
# expect_alert: one is open, and gets the keys from now on.
expect_alert() {
    await 'an alert' alert_is_open
    xdotool windowfocus "$alert"
    settle
}
# answer_alert KEY...: waits for an alert and presses keys in it, until it is gone; the dialog gets
# the keys again.
answer_alert() {
    expect_alert
    press "$@"
    await 'the end of the alert' alert_is_closed
    xdotool windowfocus "$window" 2>/dev/null
    return 0
}
expect_no_alert() {
    settle
    ! alert_is_open || fail 'there is an alert'
}

# The program ends when the job is printed.
has_ended() { ! kill -0 "$dialog" 2>/dev/null; }
expect_end() {
    await 'the end of the program' has_ended
    wait "$dialog"
    status=$?
}
# print_in_dialog: presses Print and waits for the result.
print_in_dialog() { print_past_alerts 0; }
# print_past_alerts COUNT: the same, and presses OK in as many alerts.
print_past_alerts() {
    local alerts=$1
    press alt+p
    for (( ; alerts > 0; alerts--)); do answer_alert Return; done
    expect_end
    expect_printed
}

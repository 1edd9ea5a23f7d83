#!/usr/bin/env bash
# The Print Setting page in a real window, worked with keys alone: its advanced options are disclosed,
# each option is reached, changed and printed, and the window follows in size.
# shellcheck disable=SC2119 # open_dialog takes arguments of the program, or none

# shellcheck source=tests/e2e/support.bash
. "$(dirname "${BASH_SOURCE[0]}")/support.bash"
# shellcheck source=tests/e2e/window.bash
. "$(dirname "${BASH_SOURCE[0]}")/window.bash"

# The focus goes through the pop-up buttons (media type, resolution, color mode, paper source), then to
# the triangle that discloses, the list of the advanced options, and the controls of its row.

everyOptionIsReachedChangedAndPrintedByKeyboard() {
    open_dialog
    settle
    press ctrl+Next
    press Down Tab Tab Down Tab Down # a higher resolution would not save toner: see below
    press Tab space                  # disclosed
    settle
    press Tab Tab space                                 # toner save
    press shift+Tab Down Tab Down Tab space             # better fixing, less ghosting
    press shift+Tab shift+Tab Down Tab Right Right      # density
    press shift+Tab Down Tab Down Tab ctrl+a 4 2        # a sleep time of one's own
    press shift+Tab shift+Tab Down Tab Down             # quiet
    press shift+Tab Down Tab space                      # blank pages
    settle
    print_in_dialog
    expect_code QXMediaType=Thin QXResolution=600dpi QXMonoColor=Color QXInputSlot=Tray1 \
        TonerSaveMode=ON QXImproveOutput=QXFixIntensity QXReduceGhost=ON \
        QXDensityAdjustment=Custom QXSleepTime=Custom QXQuietMode=ON QXSkipBlank=ON
    expect_equal "$(printed_values QXDensityAdjustment "$output")" '2 '
    expect_equal "$(printed_values QXSleepTime "$output")" '42 '
    expect_lines 'Toner Save: On' 'Improve Print Output: Improve Toner Fixing' 'Reduce Ghosting: On' \
        'Density Adjustment: 2' 'Sleep Time: Manual' 'Minutes (1 to 99): 42' 'Quiet Mode: On' \
        'Skip Blank Pages: On'
}

aHigherResolutionTakesTonerSaveBack() {
    open_dialog
    settle
    press ctrl+Next
    press Tab Tab Tab Tab space Tab Tab space # toner save
    settle
    press shift+Tab shift+Tab shift+Tab shift+Tab shift+Tab Down # 1200 dpi
    settle
    print_in_dialog
    expect_code QXResolution=1200dpi TonerSaveMode=OFF
}

# Numbers typed by key end at their bounds: a density when it is left, minutes at once.
numbersOutOfBoundsDoNotReachThePrinter() {
    open_dialog
    settle
    press ctrl+Next Tab Tab Tab Tab space Tab Down Down
    press Tab Tab ctrl+a minus 9                            # the field beside the slider
    press shift+Tab shift+Tab Down Tab Down Tab ctrl+a 9 9 9 # the minutes
    settle
    print_in_dialog
    expect_equal "$(printed_values QXDensityAdjustment "$output")" '-6 '
    expect_equal "$(printed_values QXSleepTime "$output")" '99 '
}

# window_size: "WIDTHxHEIGHT" when the window has come to rest.
window_size() {
    local WIDTH=0 HEIGHT=0
    settle
    eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^(WIDTH|HEIGHT)=[0-9]+$')"
    echo "${WIDTH}x$HEIGHT"
}
# resize_window WIDTH HEIGHT: as by its frame.
resize_window() {
    xdotool windowsize --sync "$window" "$1" "$2"
    expect_equal "$(window_size)" "$1x$2"
}
expect_taller() {
    [ "${1%x*}" = "${2%x*}" ] || fail "the width changed from $1 to $2"
    [ "${2#*x}" -gt "${1#*x}" ] || fail "$2 is not taller than $1"
}

theWindowGrowsWithTheAdvancedOptionsAndShrinksAgain() {
    local closed open
    open_dialog
    settle
    press ctrl+Next Tab Tab Tab Tab
    resize_window 700 505
    closed=$(window_size)
    press space
    open=$(window_size)
    expect_taller "$closed" "$open"
    press space
    expect_equal "$(window_size)" "$closed"
    # As often as one likes.
    press space space space
    expect_equal "$(window_size)" "$open"
}

theAdvancedOptionsStayOpenWhenThePageIsLeft() {
    local closed open
    open_dialog
    settle
    press ctrl+Next Tab Tab Tab Tab
    resize_window 700 505
    closed=$(window_size)
    press space
    open=$(window_size)
    expect_taller "$closed" "$open"
    press ctrl+Next # to the other panel, which needs no more than before
    expect_equal "$(window_size)" "$closed"
    press ctrl+Prior
    expect_equal "$(window_size)" "$open"
    press ctrl+Prior # to the General page
    expect_equal "$(window_size)" "$closed"
    press ctrl+Next
    expect_equal "$(window_size)" "$open"
    press space # the focus has come back with the page
    expect_equal "$(window_size)" "$closed"
}

aTallWindowDoesNotGrow() {
    open_dialog
    settle
    press ctrl+Next Tab Tab Tab Tab
    resize_window 800 900
    press space
    expect_equal "$(window_size)" 800x900
    press space
    expect_equal "$(window_size)" 800x900
}

theNextDialogHasTheSizeThatTheUserGaveThisOne() {
    open_dialog
    settle
    resize_window 711 506
    press ctrl+Next Tab Tab Tab Tab space
    expect_taller 711x506 "$(window_size)" # what this needs on top is not the user's
    press Escape
    expect_end
    open_dialog
    expect_equal "$(window_size)" 711x506
    resize_window 803 577
    print_in_dialog
    open_dialog
    expect_equal "$(window_size)" 803x577
}

run_tests

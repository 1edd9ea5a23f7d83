#!/usr/bin/env bash
# The dialog worked by keyboard and mouse: what was chosen reaches the printer, and what goes wrong
# can be put right without choosing again.

# shellcheck source=tests/e2e/support.bash
. "$(dirname "${BASH_SOURCE[0]}")/support.bash"
# shellcheck source=tests/e2e/window.bash
. "$(dirname "${BASH_SOURCE[0]}")/window.bash"

# The dialog opens with the focus on the number of copies; a page that is turned to by keyboard has
# it on its first control. Down takes the next choice of a list, Up the one before.

choicesOfTheGeneralPageByKeyboardReachThePrinter() {
    open_dialog
    settle
    press ctrl+a 3
    # Past collating, the pages and their button: color, two-sided, paper size, output, colors matched by.
    press Tab Tab Tab Tab Down Tab Down Tab Down Tab Down Tab Up
    settle
    print_in_dialog
    expect_code QXMonoColor=Color Duplex=DuplexNoTumble PageSize=Letter QXOutput=FAX \
        AP_ColorMatchingMode=AP_ApplicationColorMatching
    expect_lines 'Copies: 3, collated' 'Color Mode: Color' 'Two-Sided Printing: Long-Edge Binding' 'Paper Size: US Letter' \
        'Output To: Fax' 'Colors Matched By: Application'
    # Each copy after the other, with a blank back to its third page.
    expect_equal "$(grep -ac '^%%Page: ' "$output")" 12
}

printChoicesByKeyboardReachThePrinter() {
    open_dialog
    settle
    press ctrl+Next
    press Down Tab Down Tab Down Tab Down # media type, resolution, color mode, paper source
    settle
    print_in_dialog
    expect_code QXMediaType=Thin QXResolution=1200dpi QXMonoColor=Color QXInputSlot=Tray1
    expect_lines 'Media Type: Thin Paper' 'Resolution: 1200 dpi' 'Color Mode: Color' 'Paper Source: Tray 1'
}

colorChoicesByKeyboardReachThePrinter() {
    open_dialog
    settle
    press ctrl+Next ctrl+Next Down Tab space # color matching, enhanced black
    settle
    print_in_dialog
    expect_code QXColorMatching=Vivid QXEnhanceBlkPrt=ON QXGray=OFF
    expect_lines 'Color Matching: Vivid' 'Enhance Black Printing: On'

    open_dialog
    settle
    press ctrl+Next ctrl+Next Tab Tab space # gray
    settle
    print_in_dialog
    expect_code QXColorMatching=Normal QXEnhanceBlkPrt=OFF QXGray=ON
}

# What one page chooses, the other and the summary know at once; going back changes nothing.
choicesOfAPageStayWhenOthersAreVisited() {
    open_dialog
    settle
    press ctrl+Next Down ctrl+Next Down ctrl+Next ctrl+Next ctrl+Next ctrl+Prior ctrl+Prior
    settle
    print_in_dialog
    expect_code QXMediaType=Thin QXColorMatching=Vivid
}

# pick_by_mouse ROW ROWS: opens the list of the pop-up button that has the focus and its first choice,
# and picks another, all by mouse. The keyboard only shows where the list comes up: over the button,
# with the present choice on it.
pick_by_mouse() {
    local middle tries=40
    press alt+Down
    await 'the list' popup_is_open
    settle
    middle=$((popup_left + popup_width / 2))
    local first=$((popup_top + popup_height / $2 / 2))
    local wanted=$((popup_top + popup_height * (2 * $1 + 1) / $2 / 2))
    press Escape
    await 'the end of the list' popup_is_closed
    click "$middle" "$first"
    await 'the list' popup_is_open
    settle
    # A click that follows on another too soon only closes the former one.
    until popup_is_closed; do
        tries=$((tries - 1))
        [ "$tries" -gt 0 ] || fail 'the list does not take the click'
        click "$middle" "$wanted"
        settle
    done
}

aChoicePickedByMouseReachesThePrinter() {
    open_dialog
    settle
    press ctrl+Next Tab Tab
    pick_by_mouse 2 3
    print_in_dialog
    expect_code QXMonoColor=Mono
    expect_lines 'Color Mode: Mono'
}

# The keyboard shows where a box's mark comes and goes.
aBoxClickedByMouseReachesThePrinter() {
    local area left top right bottom
    open_dialog
    settle
    press ctrl+Next ctrl+Next Tab
    take_picture off
    press space
    take_picture on
    area=$(changed_area off on "$pages_begin") # above them stands what can be undone
    [ -n "$area" ] || fail 'the box does not change'
    press space
    settle
    read -r left top right bottom <<<"$area"
    click $(((left + right) / 2)) $(((top + bottom) / 2))
    settle
    print_in_dialog
    expect_code QXEnhanceBlkPrt=ON
}

# Problems

cancelPrintsNothing() {
    open_dialog -o QXMediaType=Thick
    settle
    press Escape
    expect_end
    expect_status 1
    expect_equal "$(ls -A "$folder")" ''
}

message_is_logged() { grep -qF "$1" "$work/err"; }

theDialogKeepsEverythingWhenPrintingFailsAndPrintsAtTheNextTry() {
    output=$folder/missing/job.ps
    open_dialog -o QXInputSlot=Tray1
    settle
    press ctrl+a 2 Tab Tab Tab Tab Tab Down ctrl+Next Down ctrl+Next Down
    settle
    press alt+p
    await 'the message' message_is_logged 'cannot be written'
    settle
    kill -0 "$dialog" || fail 'the dialog is gone'
    expect_equal "$(ls -A "$folder")" ''
    mkdir "$folder/missing"
    print_in_dialog
    expect_code Duplex=DuplexNoTumble QXMediaType=Thin QXColorMatching=Vivid QXInputSlot=Tray1
    # Both tries told the same.
    expect_equal "$(grep -c '^Copies: 2, collated$' "$work/out")" 2
    expect_equal "$(grep -c '^Color Matching: Vivid$' "$work/out")" 2
}

# open_conflict: glossy paper, then two-sided printing, which it excludes; $bar_left, $bar_top and
# $bar_right say where the message has come up.
open_conflict() {
    local area
    open_dialog -o QXMediaType=Glossy
    settle
    press Tab Tab Tab Tab
    take_picture before
    press Down
    take_picture after
    area=$(changed_area before after)
    [ -n "$area" ] || fail 'no message has come up'
    read -r bar_left bar_top bar_right _ <<<"$area"
}

# The button stands at the right below the text of the message, whose height depends on the text.
# The text takes a click as well, to be copied: what is tried begins below its two lines.
press_button_of_message() {
    local below
    for below in 44 52 60 68 76; do
        # The pointer is in the picture, too.
        xdotool mousemove $((bar_right - 60)) $((bar_top + below))
        take_picture before
        xdotool click 1
        take_picture after
        [ -z "$(changed_area before after)" ] || return 0
    done
    fail 'the message has no button'
}

aConflictIsRefusedUntilItsButtonMakesRoom() {
    open_conflict
    press_button_of_message
    print_in_dialog
    expect_code Duplex=DuplexNoTumble QXMediaType=Plain
}

aConflictLeavesTheFormerChoices() {
    open_conflict
    print_in_dialog
    expect_code Duplex=None QXMediaType=Glossy
}

# The words of the message, by the only way in which a program gives them away: they are copied by
# mouse and pasted as the name of the file to print to.
theMessageOfAConflictNamesBothChoices() {
    local name
    open_conflict
    click $((bar_left + 50)) $((bar_top + 20))
    press ctrl+a ctrl+c alt+f ctrl+a ctrl+v
    settle
    press alt+p
    expect_end
    expect_status 0
    name=$(ls -A "$folder")
    case $name in
    *'Two-Sided Printing: Long-Edge Binding'*'Media Type: Glossy Paper'*) ;;
    *) fail "the message is: $name" ;;
    esac
}

optionsThatWereNotTakenAreToldAndTheOthersWait() {
    open_dialog -o QXMediaType=Silk
    settle
    print_in_dialog
    expect_code QXMediaType=Plain
}

# A file that came into being while the dialog was open is not replaced unasked.
anotherExistingFileIsReplacedOnlyAfterAQuestion() {
    local question
    echo 'printed earlier' >"$folder/other.ps"
    open_dialog
    settle
    press alt+f ctrl+a
    xdotool type "$folder/other.ps"
    press alt+p
    await 'the question' popup_is_open
    question=$(xdotool search --onlyvisible --pid "$dialog" | grep -vx "$window" | head -n 1)
    xdotool windowfocus "$question"
    press Escape
    await 'the end of the question' popup_is_closed
    expect_equal "$(cat "$folder/other.ps")" 'printed earlier'
    xdotool windowfocus "$window"
    press alt+p
    await 'the question' popup_is_open
    question=$(xdotool search --onlyvisible --pid "$dialog" | grep -vx "$window" | head -n 1)
    xdotool windowfocus "$question"
    press alt+y
    expect_end
    expect_status 0
    output=$folder/other.ps
    expect_code QXMediaType=Plain
}

withoutADisplayTheWayToPrintIsTold() {
    timeout "$patience" env DISPLAY=:4294 "$program" --bundle-root "$bundles" "${printer[@]}" \
        --output "$output" "$document" >"$work/out" 2>"$work/err" </dev/null
    status=$?
    expect_status 1
    expect_said --no-dialog
    expect_equal "$(ls -A "$folder")" ''
}

run_tests

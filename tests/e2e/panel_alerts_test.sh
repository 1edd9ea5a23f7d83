#!/usr/bin/env bash
# The alerts of the Print Setting panel in a real window, answered by keyboard: they hold the job back,
# let it go, and can be silenced. Their words have a test of their own.

# shellcheck source=tests/e2e/support.bash
. "$(dirname "${BASH_SOURCE[0]}")/support.bash"
# shellcheck source=tests/e2e/window.bash
. "$(dirname "${BASH_SOURCE[0]}")/window.bash"

# The list of media, from the top: Plain, Thin, Thick, Thicker, BOND, Label, Glossy, Env, EnvThin,
# EnvThick, and in Japanese PostCard in place of BOND.

eachMediumForTheFrontFeedBringsItsAlert() {
    open_dialog
    settle
    press ctrl+Next Down # Thin
    expect_no_alert
    for _ in Thick Thicker BOND Label Glossy Env EnvThin EnvThick; do
        press Down
        answer_alert Return
        expect_no_alert # just one
    done
    print_past_alerts 1
    expect_code QXMediaType=EnvThick
}

olderModelsHaveNoFrontFeedToSpeakOf() {
    ppd=$source_root/resources/ppd/corvana-cl4.ppd
    printer=(--ppd "$ppd")
    open_dialog
    settle
    press ctrl+Next Down Down Down Down Down # Plain to Glossy
    expect_no_alert
    print_in_dialog
    expect_code QXMediaType=Glossy
}

# expect_held_back KEY...: the alert is answered with these keys, and nothing is printed.
expect_held_back() {
    press alt+p
    answer_alert "$@"
    expect_no_alert
    expect_running
    expect_equal "$(ls -A "$folder")" ''
}

# expect_back_cover MEDIUM DUPLEX: Escape and Cancel hold the job back, OK prints it, one-sided.
expect_back_cover() {
    open_dialog -o "QXMediaType=$1" -o "Duplex=$2"
    settle
    expect_held_back Escape
    expect_held_back Tab Return # the second button
    print_past_alerts 1
    expect_code "QXMediaType=$1" Duplex=None
    rm "$output"
}

theBackCoverIsAskedForWithEnvelopes() {
    expect_back_cover Env None
    expect_back_cover Env DuplexNoTumble
}
theBackCoverIsAskedForWithLabels() {
    expect_back_cover Label None
    expect_back_cover Label DuplexTumble
}
theBackCoverIsAskedForWithPostcards() {
    in_language ja_JP
    expect_back_cover PostCard None
    expect_back_cover PostCard DuplexNoTumble
}

aSilencedAlertStaysAwayUntilTheDialogBringsItBack() {
    open_dialog
    settle
    press ctrl+Next Down Down # Thick
    expect_alert
    press shift+Tab space Return # the box stands before the button
    await 'the end of the alert' alert_is_closed
    xdotool windowfocus "$window"
    settle
    press Up Down # Thin, Thick
    expect_no_alert
    press Down # Thicker is not silenced
    answer_alert Return
    press Escape
    expect_end

    open_dialog
    settle
    press ctrl+Next Down Down
    expect_no_alert
    # From the printer backwards to the end of the window: Cancel, Print, and the button.
    press alt+r shift+Tab shift+Tab shift+Tab space
    settle
    settle
    # Past the file, its button, the preset, the ways back and the pages' titles, to the media.
    press alt+r Tab Tab Tab Tab Tab Tab Tab
    press Up Down
    answer_alert Return
    print_in_dialog
    expect_code QXMediaType=Thick
}

run_tests

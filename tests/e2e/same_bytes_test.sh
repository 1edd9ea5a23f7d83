#!/usr/bin/env bash
# A dialog in which every page was visited, one in which Print was pressed at once, and a run
# without a window send the printer the same bytes.

# shellcheck source=tests/e2e/support.bash
. "$(dirname "${BASH_SOURCE[0]}")/support.bash"
# shellcheck source=tests/e2e/window.bash
. "$(dirname "${BASH_SOURCE[0]}")/window.bash"

# keep NAME: what was printed and said, less the date and the last line with the place.
keep() {
    grep -av '^%%CreationDate: ' "$output" >"$work/$1.ps"
    # Only this one line, so that nothing else can hide behind it.
    expect_equal "$(grep -ac '^%%CreationDate: ' "$output")" 1
    sed '$d' "$work/out" >"$work/$1.summary"
    [ "$(wc -l <"$work/$1.summary")" -ge 18 ] || fail 'the summary is missing'
    rm "$output"
}

# Alerts that the choices bring, each answered with OK: when the dialog takes them from the command
# line, and when Print is pressed.
alerts_at_first=0
alerts_at_last=0
open_with_alerts() {
    local alerts=$alerts_at_first
    open_dialog "$@"
    for (( ; alerts > 0; alerts--)); do answer_alert Return; done
}

# expect_the_same_bytes ARGUMENT...
expect_the_same_bytes() {
    local way
    print "$@"
    expect_printed
    keep unattended
    open_with_alerts "$@"
    print_past_alerts "$alerts_at_last"
    keep at-once
    open_with_alerts "$@"
    # To both panels, the summary, around to the first page, and back to a panel.
    press ctrl+Next ctrl+Next ctrl+Next ctrl+Next ctrl+Next
    settle
    print_past_alerts "$alerts_at_last"
    keep visited
    for way in at-once visited; do
        cmp "$work/unattended.ps" "$work/$way.ps" || fail "other bytes: $way, with: $*"
        diff "$work/unattended.summary" "$work/$way.summary" || fail "another summary: $way, with: $*"
    done
}

theDefaultsPrintTheSame() {
    expect_the_same_bytes
}

choicesOfBothPanelsPrintTheSame() {
    expect_the_same_bytes -n 2 -o 'QXMediaType=Thick QXInputSlot=Tray1 QXResolution=1200dpi Duplex=DuplexTumble' \
        -o 'QXColorMatching=Vivid QXRed=-5 QXBrightness=7 QXDensityAdjustment=-6 QXSleepTime=Custom.12'
}

monochromePrintsTheSame() {
    expect_the_same_bytes -o 'QXMonoColor=Mono QXContrast=4 QXOutput=FAX PageSize=Custom.100x200mm'
}

colorsMatchedByTheApplicationPrintTheSame() {
    # The envelope paper brings the envelope medium.
    alerts_at_first=1 alerts_at_last=1
    expect_the_same_bytes -o 'AP_ColorMatchingMode=AP_ApplicationColorMatching QXColorMatching=Vivid PageSize=EnvDL'
}

# Defaults that the panels' rules do not leave as they are.
whatThePanelsImposePrintsTheSame() {
    changed_ppd 's/^\*DefaultTonerSaveMode: .*/*DefaultTonerSaveMode: ON/
        s/^\*DefaultQXEnhanceBlkPrt: .*/*DefaultQXEnhanceBlkPrt: ON/
        s/^\*DefaultQXMediaType: .*/*DefaultQXMediaType: PostCard/'
    expect_the_same_bytes -o 'QXResolution=1200dpi QXGray=ON'
    grep -aq 'CorvanaOption(TonerSaveMode=OFF)' "$work/visited.ps" || fail 'the rules did not apply'
}

japaneseAndChinesePrintTheSame() {
    in_language ja_JP
    alerts_at_last=1
    expect_the_same_bytes -o 'QXMediaType=PostCard QXGray=ON'
    grep -q '^用紙の種類: はがき$' "$work/visited.summary" || fail 'the summary is not Japanese'
    in_language zh_CN
    alerts_at_last=0
    expect_the_same_bytes -o 'QXMediaType=BOND QXColorMatching=None'
}

# Proves that the comparison sees what it is there for.
twoRunsDifferInNothingButTheDate() {
    print
    expect_printed
    mv "$output" "$work/first.ps"
    sleep 1.1
    print
    expect_equal "$(diff -a "$work/first.ps" "$output" | grep -a '^[<>]' | cut -c1-17 | tr '\n' ' ')" \
        '< %%CreationDate: > %%CreationDate: '
}

run_tests

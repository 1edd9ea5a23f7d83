#!/usr/bin/env bash
# Choices from the command line, printed without a window: the printer is told each of them, and
# what the panels impose besides.

# shellcheck source=tests/e2e/support.bash
. "$(dirname "${BASH_SOURCE[0]}")/support.bash"

everyMainChoiceReachesThePrinterInsteadOfItsDefault() {
    local choices=(PageSize=Letter Duplex=DuplexNoTumble QXInputSlot=Tray1 QXMediaType=Thick
        QXResolution=1200dpi QXMonoColor=Color QXColorMatching=Vivid QXEnhanceBlkPrt=ON
        QXOutput=FAX AP_ColorMatchingMode=AP_ApplicationColorMatching)
    print -n 2 -o "${choices[*]}"
    expect_printed
    expect_code "${choices[@]}"
    expect_lines 'Copies: 2, collated' 'Paper Size: US Letter' 'Two-Sided Printing: Long-Edge Binding' \
        'Paper Source: Tray 1' 'Media Type: Thick Paper' 'Resolution: 1200 dpi' 'Color Mode: Color' \
        'Output To: Fax' 'Colors Matched By: Application'
    expect_equal "$(grep -ac '^%%Page: ' "$output")" 8 # each copy begins on a sheet of its own
}

# Gray with black toner only rules out enhanced black, so it needs a run of its own.
theOtherChoicesReachThePrinterToo() {
    local choices=(QXGray=ON QXSlowDrying=ON QXReduceGhost=ON QXImproveOutput=QXLessPaperCurl
        TonerSaveMode=ON QXQuietMode=ON QXSkipBlank=ON QXColorMatching=None Duplex=DuplexTumble
        QXInputSlot=MPTray)
    print -o "${choices[*]}"
    expect_printed
    expect_code "${choices[@]}"
    expect_lines 'Print Gray with Black Toner Only: On' 'Quiet Mode: On' 'Color Matching: None'
}

withoutChoicesThePrinterIsToldItsDefaults() {
    local default
    print
    expect_printed
    while IFS= read -r default; do
        expect_code "$default"
    done < <(sed -n 's/^\*Default\([A-Za-z_]*\): \(.*\)/\1=\2/p' "$ppd" |
        grep -vE '^(ColorSpace|Resolution|PageRegion|ImageableArea|PaperDimension|Font)=')
    expect_equal "$(printed_codes "$output" | wc -l)" "$(grep -c '^\*OpenUI' <(grep -v PageRegion "$ppd"))"
}

# Rules of the panels. Each choice that they impose differs from the PPD's default and from what
# was asked for, so that no one else can have made it.

tonerIsNotSavedAtHighResolution() {
    changed_ppd 's/^\*DefaultTonerSaveMode: .*/*DefaultTonerSaveMode: ON/'
    print
    expect_printed
    expect_code TonerSaveMode=ON QXResolution=600dpi
    print -o QXResolution=1200dpi
    expect_printed
    expect_code TonerSaveMode=OFF QXResolution=1200dpi
    expect_lines 'Toner Save: Off' 'Resolution: 1200 dpi'
}

tonerSaveAskedForAtHighResolutionIsRefusedByName() {
    expect_refusal TonerSaveMode=ON OFF -- -o TonerSaveMode=ON -o QXResolution=1200dpi
}

blackIsNotEnhancedWhenGrayIsPrintedWithBlackToner() {
    changed_ppd 's/^\*DefaultQXEnhanceBlkPrt: .*/*DefaultQXEnhanceBlkPrt: ON/'
    print
    expect_printed
    expect_code QXEnhanceBlkPrt=ON QXGray=OFF
    print -o QXGray=ON
    expect_printed
    expect_code QXEnhanceBlkPrt=OFF QXGray=ON
    expect_lines 'Enhance Black Printing: Off' 'Print Gray with Black Toner Only: On'
}

# What a printer's default medium is does not matter: the paper and the language decide.
theMediumFollowsThePaperAndTheLanguage() {
    changed_ppd 's/^\*DefaultQXMediaType: .*/*DefaultQXMediaType: PostCard/'
    print
    expect_printed
    expect_code QXMediaType=Plain
    expect_lines 'Media Type: Plain Paper'
    in_language ja_JP
    print
    expect_printed
    expect_code QXMediaType=Thin
    expect_lines '用紙の種類: 普通紙（薄め）'
    print -o PageSize=Postcard
    expect_printed
    expect_code QXMediaType=PostCard
    expect_lines '用紙の種類: はがき'
}

# Without a window nobody can follow the instructions while the job waits.
instructionsPrintHoldOrRefuseAnUnattendedJob() {
    print -o QXMediaType=Label
    expect_printed
    expect_said 'Open the back cover of the printer'
    expect_refusal 'Open the back cover of the printer' '--on-alert=print' -- \
        -o QXMediaType=Label --on-alert=hold
    expect_refusal 'Open the back cover of the printer' 'show instructions' -- \
        -o QXMediaType=Label --on-alert=refuse
}

run_tests

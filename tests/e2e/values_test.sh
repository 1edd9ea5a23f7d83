#!/usr/bin/env bash
# Values that are no choices of a list: paper sizes of one's own, the sleep time, the density, the
# color effects. Both ends of every range print; what lies beyond is refused with the range.

# shellcheck source=tests/e2e/support.bash
. "$(dirname "${BASH_SOURCE[0]}")/support.bash"

# expect_custom KEYWORD NUMBERS: the printer gets the custom choice with these numbers.
expect_custom() {
    expect_printed
    expect_code "$1=Custom"
    expect_equal "$(printed_values "$1" "$output")" "$2 "
}

# Width and height as the printer gets them, in points, the margins and the direction after them.
paperSizesOfOnesOwnPrintInEveryUnit() {
    local value size
    while read -r value size; do
        print -o "PageSize=Custom.$value"
        expect_printed
        expect_code PageSize=Custom
        expect_equal "$(printed_values PageSize "$output" | awk '{ printf "%.1f %.1f", $1, $2 }')" "$size"
    done <<'TABLE'
100x200mm 283.5 566.9
10x20cm 283.5 566.9
4x8in 288.0 576.0
300.5x400pt 300.5 400.0
300.5x400 300.5 400.0
TABLE
    print -o 'media=Custom.100x200mm'
    expect_printed
    expect_code PageSize=Custom
    expect_lines 'Paper Size: 100 × 200 mm'
}

theSmallestAndTheLargestPaperPrint() {
    local size
    for size in 216x360 612x1008 216x1008 76.2x127mm 215.9x355.6mm; do
        print -o "PageSize=Custom.$size"
        expect_printed
        expect_code PageSize=Custom
    done
}

paperBeyondTheLimitsIsRefusedWithTheLimits() {
    local size
    for size in 215x360 216x359 613x1008 612x1009 10x10mm 0x0 -300x400 300x 300x400furlong axb 300 ''; do
        expect_refusal "PageSize=Custom.$size" '76.2x127mm … 215.9x355.6mm' \
            -- -o "PageSize=Custom.$size"
    done
    expect_refusal PageSize=Custom '76.2x127mm' -- -o PageSize=Custom
    expect_refusal media=Foolscap 'A4, Letter' -- -o media=Foolscap
}

mediaTakesThePpdsNamesAndTheStandardOnes() {
    local media size
    while read -r media size; do
        print -o "media=$media"
        expect_printed
        expect_code "PageSize=$size"
    done <<'TABLE'
Letter Letter
iso_a5_148x210mm A5
na_number-10_4.125x9.5in Env10
TABLE
}

bothEndsOfTheSleepTimePrint() {
    print -o QXSleepTime=Custom.1
    expect_custom QXSleepTime 1
    print -o QXSleepTime=Custom.99
    expect_custom QXSleepTime 99
    expect_lines 'Sleep Time: Manual' 'Minutes (1 to 99): 99'
    print -o QXSleepTime=Default
    expect_printed
    expect_code QXSleepTime=Default
}

sleepTimesBeyondTheRangeAreRefusedWithIt() {
    local minutes
    for minutes in 0 100 -1 1.5 12x x 99999999999999999999 ''; do
        expect_refusal "QXSleepTime=Custom.$minutes" 'Custom.1 … Custom.99' -- -o "QXSleepTime=Custom.$minutes"
    done
    expect_refusal QXSleepTime=12 'Default, Custom.1 … Custom.99' -- -o QXSleepTime=12
}

bothEndsOfTheDensityPrint() {
    local density
    for density in -6 6; do
        print -o "QXDensityAdjustment=Custom.$density"
        expect_custom QXDensityAdjustment "$density"
        expect_lines "Density Adjustment: $density"
        print -o "QXDensityAdjustment=$density"
        expect_custom QXDensityAdjustment "$density"
    done
    # The printer's own density is a choice of the list.
    print -o QXDensityAdjustment=0
    expect_printed
    expect_code QXDensityAdjustment=0
}

densitiesBeyondTheRangeAreRefusedWithIt() {
    local density
    for density in 7 -7 Custom.9 Custom.-7 1.5 dark ''; do
        expect_refusal "QXDensityAdjustment=$density" '-6 … 6' -- -o "QXDensityAdjustment=$density"
    done
}

# Six different values, so that none can stand for another.
theColorEffectsPrintUpToBothEnds() {
    local effects=(QXBrightness=-20 QXContrast=20 QXRed=-3 QXGreen=4 QXBlue=-5 QXSaturation=6)
    print -o "${effects[*]}"
    expect_printed
    expect_code "${effects[@]}"
    expect_lines 'Brightness: -20' 'Contrast: 20' 'Red: -3' 'Green: 4' 'Blue: -5' 'Saturation: 6'
    print -o QXBrightness=20 -o QXContrast=-20
    expect_printed
    expect_code QXBrightness=20 QXContrast=-20 QXRed=0
}

effectsBeyondTheRangeAreRefusedWithIt() {
    local value
    for value in 21 -21 1.5 bright; do
        expect_refusal "QXRed=$value" '-20 … 20' -- -o "QXRed=$value"
    done
}

run_tests

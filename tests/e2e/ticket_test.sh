#!/usr/bin/env bash
# What the filter chain of CUPS is called with: the choices of the summary, and the attributes of the
# job. A program of the chain's name writes its arguments down and then is the real one.

# shellcheck source=tests/e2e/support.bash
. "$(dirname "${BASH_SOURCE[0]}")/support.bash"

# A cupsfilter first on the path; $arguments holds what it was called with, one a line.
record_filter() {
    local real
    real=$(PATH=$PATH:/usr/sbin command -v cupsfilter)
    mkdir -p "$work/bin"
    arguments=$work/arguments
    printf '#!/bin/sh\nprintf "%%s\\n" "$@" >"%s"\nexec "%s" "$@"\n' "$arguments" "$real" >"$work/bin/cupsfilter"
    chmod +x "$work/bin/cupsfilter"
    environment+=("PATH=$work/bin:$PATH")
}
# recorded_options: NAME=VALUE of each "-o", in their order.
recorded_options() { awk 'option { print } { option = $0 == "-o" }' "$arguments"; }
# recorded OPTION: the value of another option, such as -n.
recorded() { awk -v name="$1" 'found { print; exit } { found = $0 == name }' "$arguments"; }
expect_options() {
    local option
    for option in "$@"; do
        recorded_options | grep -qxF -- "$option" || fail "cupsfilter was not given: $option" \
            "but: $(recorded_options | tr '\n' ' ')"
    done
}

# ppd_texts LANGUAGE: "KEYWORD", or "KEYWORD CHOICE", and its text after a tab; LANGUAGE is "ja.",
# "zh_CN." or nothing for English.
ppd_texts() {
    local option='^\*OpenUI \*([^/]*)/([^:]*): .*'
    [ -z "$1" ] || option="^\*$1Translation ([^/]*)/([^:]*): .*"
    sed -nE -e "s|$option|\1\t\2|p" -e t -e "s|^\*$1Custom([A-Za-z]+) True/([^:]*): .*|\1 Custom\t\2|p" -e t \
        -e "s|^\*$1ParamCustom([A-Za-z]+ [A-Za-z]+)/([^:]*): .*|\1\t\2|p" -e t \
        -e "s|^\*$1([A-Za-z_]+ [^/ ]+)/([^:]*): .*|\1\t\2|p" "$ppd" |
        grep -v '^PageRegion' # it follows the page size, and has its title
}

# Proves that each line of the summary says what the filter chain was given, in the PPD's words.
#
# expect_summary_of_the_job LANGUAGE ON OFF: the panels' own words for a choice "ON" and "OFF".
# $described is then how many options the summary told of.
expect_summary_of_the_job() {
    local language=$1 on=$2 off=$3 line title value key choice number expected join=': '
    local -A text keyword given
    [ "$language" != zh_CN. ] || join='：'
    while IFS=$'\t' read -r key value; do
        text[$key]=$value
        case $key in *' '*) ;; *) keyword[$value]=$key ;; esac
    done < <(ppd_texts "$language")
    while IFS='=' read -r key value; do given[$key]=$value; done < <(recorded_options)
    # The number of a manual sleep time has a line of its own.
    keyword[${text[QXSleepTime Time]}]=minutes
    described=0
    # The first line tells the copies, one of the first on the panels' pages the model; the last
    # where the result is.
    while IFS= read -r line; do
        title=${line%%"$join"*} value=${line#*"$join"}
        key=${keyword[$title]-}
        case $key in
        '')
            # Behind the number of copies stands whether they are collated; then come the sheets,
            # "3 pages = 3 sheets", and the scale.
            [ "${value%%[^0-9]*}" = "$(recorded -n)" ] || [ "$value" = 'Corvana CL-550 Color' ] ||
                [[ $value == *' = '* || $value == *' %' ]] ||
                fail "no option has the title of: $line"
            continue
            ;;
        minutes)
            expect_equal "QXSleepTime=Custom.$value" "QXSleepTime=${given[QXSleepTime]}"
            continue
            ;;
        esac
        choice=${given[$key]-}
        [ -n "$choice" ] || fail "cupsfilter was not given $key of: $line"
        number=${choice#Custom.}
        expected=${text[$key $choice]-}
        case $key,$choice in
        QXDensityAdjustment,*) expected=$number ;;
        PageSize,Custom.*)
            expected=$(awk -v size="$number" 'BEGIN { split(size, s, "x")
                printf "%.0f × %.0f mm", s[1] / 72 * 25.4, s[2] / 72 * 25.4 }')
            ;;
        *,Custom.*) expected=${text[$key Custom]} ;;
        AP_*) ;;
        *,ON) expected=$on ;;
        # What is switched off by "OFF" is called by another word where it is a choice among others.
        *,OFF) expected=$off ;;
        esac
        expect_equal "$title: $value" "$title: $expected"
        described=$((described + 1))
    done < <(sed '$d' "$work/out")
}

theJobHasTheChoicesThatTheSummaryTells() {
    local set
    record_filter
    for set in '' \
        'QXMediaType=Thick QXResolution=1200dpi QXInputSlot=Tray2 QXMonoColor=Color PageSize=Letter' \
        'QXGray=ON QXColorMatching=Vivid QXRed=-7 QXBrightness=20 QXDensityAdjustment=-6' \
        'QXMonoColor=Mono QXContrast=3 QXOutput=FAX QXSleepTime=Custom.42 Duplex=DuplexTumble' \
        'PageSize=Custom.100x200mm QXImproveOutput=QXFixIntensity QXQuietMode=OFF QXSkipBlank=ON'; do
        print -o "$set"
        expect_printed
        expect_summary_of_the_job '' On Off
        [ "$described" -ge 18 ] || fail "the summary tells of $described options only, with: $set"
    done
}

theSummaryTellsTheSameInJapaneseAndChinese() {
    local choices='QXMediaType=Thick QXGray=ON QXSleepTime=Custom.42 QXSaturation=9'
    record_filter
    in_language ja_JP
    print -n 3 -o "$choices"
    expect_printed
    expect_summary_of_the_job ja. する しない
    [ "$described" -ge 23 ] || fail "the summary tells of $described options only"
    environment=()
    record_filter
    in_language zh_CN
    print -n 3 -o "$choices"
    expect_printed
    expect_summary_of_the_job zh_CN. 开 关
    [ "$described" -ge 23 ] || fail "the summary tells of $described options only"
}

# The General page's lines come first, then the panels' in the order of their pages.
theSummaryFollowsTheOrderOfThePages() {
    print -o QXSleepTime=Custom.42
    expect_printed
    sed -i '$d' "$work/out"
    expect_equal "$(sed 's/:.*//' "$work/out" | tr '\n' ';')" "$(printf '%s;' Copies Sheets 'Two-Sided Printing' \
        'Paper Size' 'Output To' 'Colors Matched By' Model Resolution 'Media Type' 'Color Mode' \
        'Paper Source' 'Toner Save' 'Improve Print Output' 'Reduce Ghosting' 'Density Adjustment' \
        'Sleep Time' 'Quiet Mode' 'Skip Blank Pages' 'Minutes (1 to 99)' 'Color Matching' \
        'Enhance Black Printing' 'Print Gray with Black Toner Only' 'Extra Drying Time' Brightness \
        Contrast Red Green Blue Saturation)"
}

# The panels ask for these before they let a job go, which is after the choices were made.
theJobHasWhatThePanelsImpose() {
    record_filter
    changed_ppd 's/^\*DefaultTonerSaveMode: .*/*DefaultTonerSaveMode: ON/'
    print -o QXResolution=2400x600dpi
    expect_printed
    expect_options TonerSaveMode=OFF QXResolution=2400x600dpi
    expect_summary_of_the_job '' On Off
}

everyAttributeOfTheJobReachesTheFilters() {
    local attribute
    record_filter
    while IFS= read -r attribute; do
        print -o "$attribute"
        expect_printed
        expect_options "$attribute"
    done <<'TABLE'
number-up=4
page-ranges=1-2
orientation-requested=4
fit-to-page=true
print-scaling=fill
collate=false
outputorder=reverse
page-set=odd
job-hold-until=evening
job-hold-until=12:34
job-priority=100
job-sheets=standard,none
TABLE
}

# The chain writes its options down, and so do its filters, each in a quoting of its own.
theLogHidesAPasswordHoweverItIsQuoted() {
    local secret argument
    changed_ppd '$ a\
*OpenUI *Secret/Secret: PickOne\
*OrderDependency: 90 AnySetup *Secret\
*DefaultSecret: None\
*Secret None/None: ""\
*CloseUI: *Secret\
*CustomSecret True/Custom: "pop"\
*ParamCustomSecret Text/Text: 1 password 1 30'
    environment+=('QT_LOGGING_RULES=corvana.*=true')
    for secret in 'geheim wort' "geheim'wort" 'geheim"wort' 'geheim\wort' "geheim' \\ \"wort"; do
        argument=${secret//\\/\\\\}
        argument=${argument//\"/\\\"}
        print -o "Secret=\"Custom.$argument\""
        expect_printed
        expect_said 'Secret=' 'argv[5]='
        ! grep -aE 'geheim|wort' "$work/err" "$work/out" || fail "not hidden: $secret"
    done
}

# A page range that is taken, but not obeyed, would be worth nothing.
theFiltersObeyTheAttributes() {
    print -o page-ranges=2
    expect_printed
    expect_equal "$(grep -ac '^%%Page: ' "$output")" 1
    print
    expect_equal "$(grep -ac '^%%Page: ' "$output")" 3
    print -o number-up=4
    expect_equal "$(grep -ac '^%%Page: ' "$output")" 1
}

attributesWithAValueThatNobodyTakesAreRefused() {
    local attribute allowed
    while read -r attribute allowed; do
        expect_refusal "$attribute" "$allowed" -- -o "$attribute"
    done <<'TABLE'
number-up=3 1, 2, 4, 6, 9, 16
page-ranges=3-1 ascending
page-ranges=0 ascending
orientation-requested=7 4 (landscape)
fit-to-page=maybe true, false
print-scaling=huge auto-fit
collate=1 true, false
outputorder=random reverse
page-set=prime even
job-hold-until=25:00 HH:MM
job-priority=101 1 to 100
job-sheets=a,b,c banner
sides=inside two-sided-long-edge
TABLE
}

# As lp takes them: several in one, quoted values, a word alone for true and "no" before it for
# false; the last of several values counts.
optionsAreWrittenAsForLp() {
    record_filter
    print -o 'QXMediaType=Thick  QXInputSlot="Tray1"' -o "job-sheets='standard,none' fit-to-page nocollate" \
        -o sides=two-sided-short-edge -o number-up=2 -o number-up=4 -o 'QXSleepTime={Time=12}'
    expect_printed
    expect_options QXMediaType=Thick QXInputSlot=Tray1 job-sheets=standard,none fit-to-page=true \
        collate=false Duplex=DuplexTumble number-up=4 QXSleepTime=Custom.12
    expect_equal "$(recorded_options | grep -c '^number-up=')" 1
}

theTitleAndTheCopiesReachTheFilters() {
    local title="Tom's  report \"1\" \$HOME 日本語"
    record_filter
    print -n 3 -t "$title"
    expect_printed
    expect_equal "$(recorded -t)" "$title"
    expect_equal "$(recorded -n)" 3
    print
    expect_equal "$(recorded -t)" welcome.pdf
}

# Filters that are told nothing leave the copies to the printer, which makes each page several times.
severalCopiesComeOutOneAfterTheOther() {
    local spelling
    record_filter
    print -n 3
    expect_printed
    expect_options collate=true multiple-document-handling=separate-documents-collated-copies
    expect_lines 'Copies: 3, collated'
    expect_equal "$(grep -ac '^%%Page: ' "$output")" 9
    for spelling in collate=false Collate=False nocollate \
        multiple-document-handling=separate-documents-uncollated-copies; do
        print -n 3 -o "$spelling"
        expect_printed
        expect_lines 'Copies: 3, not collated'
        expect_equal "$(grep -ac '^%%Page: ' "$output")" 3
    done
}

# A PPD may describe a number and lose the choice that it belongs to.
aNumberThatThePpdHasLostIsRefused() {
    changed_ppd '/^\*CloseUI: \*QXSleepTime/d'
    expect_refusal QXSleepTime=Custom.12 Default -- -o QXSleepTime=Custom.12
    changed_ppd '/^\*CustomQXSleepTime/d'
    expect_refusal QXSleepTime=Custom.12 Default -- -o QXSleepTime=Custom.12
}

# As lp says it: the attribute is a choice of the PPD, whatever the case of its letters.
theAttributesOfLpBecomeChoices() {
    print -o print-color-mode=Monochrome -o Media=a5,tray1 -o printer-resolution=1200dpi
    expect_printed
    expect_code QXMonoColor=Mono PageSize=A5 QXInputSlot=Tray1 QXResolution=1200dpi
    expect_refusal output-bin=Upper nothing -- -o output-bin=Upper
    expect_refusal finishings=staple '3 (none)' -- -o finishings=staple
    expect_refusal print-quality=5 '4 (normal)' -- -o print-quality=5
}

theFilterProgramCanBeNamed() {
    record_filter
    environment=("CORVANA_PRINT_CUPSFILTER=$work/bin/cupsfilter")
    print -o QXMediaType=Thick
    expect_printed
    expect_options QXMediaType=Thick
}

run_tests

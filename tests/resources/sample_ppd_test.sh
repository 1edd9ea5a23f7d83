#!/usr/bin/env bash
# Proves that the sample printer's PPD file is sound and that CUPS carries each of its choices into
# the print data, and that the sample documents print without complaint.
#
#   sample_ppd_test.sh [--every-effect-step]
#
# With --every-effect-step all 41 steps of the six color effects are printed, not five of each.
# Needs cupsfilter, cupstestppd, ghostscript, poppler-utils and python3. Uses no print server.

set -u
export LC_ALL=C
PATH=$PATH:/usr/sbin

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd) || exit 1
ppd=$root/resources/ppd/corvana-cl5.ppd
sample=$root/resources/sample/welcome.pdf
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT

every_effect_step=no
[ "${1-}" = --every-effect-step ] && every_effect_step=yes

failures=0
fail() {
    printf '    %s\n' "$*" >&2
    failed=yes
}
run_test() {
    failed=no
    "$1"
    if [ "$failed" = no ]; then
        echo "ok      $1"
    else
        echo "FAILED  $1"
        failures=$((failures + 1))
    fi
}

for tool in cupsfilter cupstestppd gs pdftoppm python3; do
    if ! command -v "$tool" >/dev/null; then
        echo "$0: $tool is needed and missing" >&2
        exit 1
    fi
done

# The options that the panels and users' scripts rely on: keyword, default choice, all choices.
# Written out, so that a keyword changed by accident is noticed.
options() {
    cat <<'TABLE'
PageSize A4 A4 Letter Legal A5 B5 Executive Postcard EnvDL EnvC5 Env10 EnvMonarch
Duplex None None DuplexNoTumble DuplexTumble
QXInputSlot AutoSelect AutoSelect Tray1 Tray2 MPTray Manual
QXMediaType Plain Plain Thin Thick Thicker BOND Label Glossy Env EnvThin EnvThick PostCard
QXOutput Printer Printer FAX
QXResolution 600dpi 600dpi 1200dpi 2400x600dpi
QXMonoColor Auto Auto Color Mono
TonerSaveMode OFF OFF ON
QXImproveOutput OFF OFF QXFixIntensity QXLessPaperCurl
QXReduceGhost OFF OFF ON
QXDensityAdjustment 0 0
QXSlowDrying OFF OFF ON
AP_ColorMatchingMode AP_VendorColorMatching AP_ApplicationColorMatching AP_VendorColorMatching
QXColorMatching Normal Normal Vivid None
QXEnhanceBlkPrt OFF OFF ON
QXGray OFF OFF ON
TABLE
    local effect
    for effect in QXBrightness QXContrast QXRed QXGreen QXBlue QXSaturation; do
        echo "$effect 0 $(seq -s ' ' -20 20)"
    done
    cat <<'TABLE'
QXSleepTime Default Default
QXQuietMode UseDeviceSettings UseDeviceSettings ON OFF
QXSkipBlank OFF OFF ON
TABLE
}

# The choices to print one by one; of the effects' 41 steps the ends and the middle.
choices_to_print() {
    local keyword default choices
    options | while read -r keyword default choices; do
        if [ "$default" = 0 ] && [ "$choices" != 0 ] && [ "$every_effect_step" = no ]; then
            choices="-20 -1 0 1 20"
        fi
        local choice
        for choice in $choices; do
            echo "$keyword $choice"
        done
    done
}

# print_data FILE [-o OPTION]...: what the printer would be sent, on standard output.
print_data() {
    local file=$1
    shift
    cupsfilter -p "$ppd" -m printer/foo "$@" "$file" 2>"$work/cupsfilter.log"
}

# The settings in print data, in their order: KEYWORD=CHOICE, one a line.
settings() {
    grep -ao 'CorvanaOption([^)]*)' "$1" | sed 's/^CorvanaOption(//; s/)$//'
}

default_settings() {
    options | while read -r keyword default _; do
        echo "$keyword=$default"
    done
}

# The generated files are kept with the sources; they must not drift from their generators.
theGeneratorsWriteTheFilesThatAreKept() {
    local made=$work/made
    mkdir -p "$made"
    "$root/resources/ppd/make-ppds" --output "$made" || fail "make-ppds failed"
    "$root/resources/sample/make-welcome" --output "$made" || fail "make-welcome failed"
    "$root/tests/data/make-data" --output "$made" || fail "make-data failed"
    cmp "$made/corvana-cl5.ppd" "$ppd" || fail "run resources/ppd/make-ppds"
    cmp "$made/welcome.pdf" "$sample" || fail "run resources/sample/make-welcome"
    local kind
    for kind in txt ps png jpg; do
        cmp "$made/page.$kind" "$root/tests/data/page.$kind" || fail "run tests/data/make-data"
    done
    # Every PPD in the folder has to be one that the generator writes, and the other way round.
    diff <(cd "$made" && ls -- *.ppd) <(cd "$root/resources/ppd" && ls -- *.ppd) ||
        fail "the PPD files are not the ones that make-ppds writes"
}

theGeneratorRefusesTablesThatBreakALimit() {
    (cd "$root/resources/ppd" && python3 -B - <<'PYTHON') || fail "a faulty table was accepted"
import sys
from ppdmaker import models, options, writer
from ppdmaker.texts import Text, same

def group_with(option):
    return ((options.QUALITY, (option,)),)

choice = options.Choice("A", same("A"))
no_conflicts = models.CL_550._replace(conflicts=())
sound = options.Option("QX", same("Q"), (choice,), "A")
writer.write_ppd(no_conflicts._replace(groups=group_with(sound)))
faulty = {
    "27 characters of three bytes": dict(
        groups=group_with(sound._replace(text=Text("Q", "字" * 27, "Q")))
    ),
    "a default that is no choice": dict(groups=group_with(sound._replace(default="B"))),
    "a keyword with a blank": dict(groups=group_with(sound._replace(keyword="Q X"))),
    "a conflict with an unknown choice": dict(
        conflicts=((("QXMediaType", "Wood"), ("Duplex", "DuplexTumble")),)
    ),
}
for name, change in faulty.items():
    try:
        writer.write_ppd(no_conflicts._replace(**change))
    except ValueError:
        continue
    sys.exit(f"accepted: {name}")
PYTHON
}

# One warning cannot be helped: two keywords that the panels know begin alike. CUPS compares whole
# keywords, so it does no harm.
theFileIsCleanForCups() {
    cupstestppd -vv "$ppd" >"$work/report" || fail "cupstestppd refuses it"
    grep -E 'WARN|FAIL' "$work/report" | sed 's/  */ /g; s/^ //' >"$work/complaints"
    diff <(echo 'WARN QXRed shares a common prefix with QXReduceGhost') "$work/complaints" ||
        fail "cupstestppd complains"
}

theOptionsAreTheOnesThatPanelsKnow() {
    local keyword default choices found
    while read -r keyword default choices; do
        found=$(sed -n "s|^\*$keyword \([^/]*\)/.*|\1|p" "$ppd" | tr '\n' ' ')
        [ "$found" = "$choices " ] || fail "$keyword has the choices: $found"
        grep -qx "\*Default$keyword: $default" "$ppd" ||
            fail "the default of $keyword is not $default"
    done < <(options)
    diff <(sed -n 's|^\*OpenUI \*\([^/]*\)/.*|\1|p' "$ppd" | grep -vx PageRegion | sort) \
        <(options | cut -d' ' -f1 | sort) || fail "options are missing or not expected"
}

conflictsAreDeclaredInBothDirections() {
    grep '^\*UIConstraints: ' "$ppd" | cut -d' ' -f2- | sort >"$work/conflicts"
    awk '{ print $3, $4, $1, $2 }' "$work/conflicts" | sort | diff - "$work/conflicts" ||
        fail "a conflict has no counterpart"
    grep -q . "$work/conflicts" || fail "there are no conflicts"
}

# Envelopes, labels and postcards are made one-sided by the panels when the job is printed. A
# conflict would refuse the medium that the panels themselves propose for an envelope.
noMediumThatThePanelsMakeOneSidedConflictsWithTwoSidedPrinting() {
    grep -E '^\*UIConstraints: .*\*Duplex' "$ppd" |
        grep -E '\*QXMediaType (Env|EnvThin|EnvThick|Label|PostCard)( |$)' &&
        fail "the panels could not choose these media"
}

# libcups cuts longer ones in the middle of a character: it keeps 80 bytes of an option's or a
# choice's text, 39 of a group's.
translationsAreWholeUtf8AndWithinTheLimits() {
    local language
    iconv -f UTF-8 -t UTF-8 "$ppd" >/dev/null || fail "not UTF-8"
    sed -n 's|^\*OpenGroup: \([^/]*\)/.*|Translation \1|p' "$ppd" | sort >"$work/groups"
    {
        cat "$work/groups"
        sed -n 's|^\*OpenUI \*\([^/]*\)/.*|Translation \1|p' "$ppd"
        sed -n 's|^\*\(Custom[^/ ]* True\)/.*|\1|p; s|^\*\(ParamCustom[^/]*\)/.*|\1|p' "$ppd"
        sed -n 's|^\*\(APCustomColorMatchingName [^/]*\)/.*|\1|p' "$ppd"
        options | while read -r keyword _ choices; do
            for choice in $choices; do
                echo "$keyword $choice"
                [ "$keyword" = PageSize ] && echo "PageRegion $choice"
            done
        done
    } | sort >"$work/keys"
    for language in ja zh_CN; do
        sed -n "s|^\*$language\.\([^/]*\)/\(.*\): \"\"\$|\1/\2|p" "$ppd" >"$work/$language"
        cut -d/ -f1 "$work/$language" | sort | diff "$work/keys" - ||
            fail "$language: texts are missing, or translate nothing"
        awk -F/ -v groups="$work/groups" '
            BEGIN { while ((getline line < groups) > 0) group[line] = 1 }
            { limit = $1 in group ? 39 : 80 }
            length($2) < 1 || length($2) > limit { print; bad = 1 }
            END { exit bad }
        ' "$work/$language" || fail "$language: these texts would arrive cut"
    done
}

# Run bare: in print data CUPS wraps the code of an option so that an error in it goes unnoticed.
theCodeOfEveryChoiceIsValidPostScript() {
    {
        # Custom code finds its parameters on the stack: five for a page size, else one.
        sed -n 's|^\*Custom[^:]*: "\(.*\)"$|\1|p' "$ppd" |
            sed 's/^pop/300 400 0 0 0 &/; t; s/^/5 &/'
        sed -n '/^\*Custom/!s|^\*[A-Za-z_]* [^:]*: "\(<<.*\)"$|\1|p' "$ppd"
        echo 'count 0 ne { (objects left on the stack) = } if'
    } >"$work/codes.ps"
    [ "$(wc -l <"$work/codes.ps")" -gt 300 ] || fail "the codes were not found"
    gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=nullpage "$work/codes.ps" >"$work/gs" 2>&1 ||
        fail "ghostscript failed"
    [ ! -s "$work/gs" ] || fail "ghostscript says: $(head -3 "$work/gs")"
}

withoutOptionsEveryDefaultIsPrintedOnce() {
    print_data "$sample" >"$work/out.ps" || fail "cupsfilter failed"
    diff <(default_settings | sort) <(settings "$work/out.ps" | sort) || fail "not the defaults"
}

# One choice at a time: its own code is there once, instead of the default's, and all other
# options keep their defaults.
# The document has several pages, because CUPS prints a single page one-sided whatever was chosen.
everyChoiceIsPrintedAloneAndChangesNothingElse() {
    local keyword choice count=0
    while read -r keyword choice; do
        print_data "$sample" -o pdftops-renderer=pdftops -o "$keyword=$choice" >"$work/out.ps" ||
            fail "$keyword=$choice: cupsfilter failed"
        settings "$work/out.ps" | sort >"$work/found"
        default_settings | sed "s/^$keyword=.*/$keyword=$choice/" | sort | diff - "$work/found" ||
            fail "$keyword=$choice was printed as above"
        count=$((count + 1))
    done < <(choices_to_print)
    [ "$count" -ge 80 ] || fail "only $count choices were tried"
}

# custom_number OPTION=VALUE KEYWORD NUMBER
custom_number() {
    print_data "$sample" -o pdftops-renderer=pdftops -o "$1" >"$work/out.ps" || fail "$1: no data"
    grep -a -A 2 "^%%BeginFeature: \*Custom$2 True" "$work/out.ps" | sed 1d >"$work/found"
    diff - "$work/found" <<CODE || fail "$1 was printed as above"
$3
<</CorvanaOption($2=Custom)/CorvanaValue 5 -1 roll>>setpagedevice
CODE
    settings "$work/out.ps" | grep "^$2=" | diff <(echo "$2=Custom") - || fail "$1: other codes too"
}

aNumberOfOnesOwnIsPrintedInFrontOfItsCode() {
    custom_number QXSleepTime=Custom.1 QXSleepTime 1
    custom_number QXSleepTime=Custom.12 QXSleepTime 12
    custom_number QXSleepTime=Custom.99 QXSleepTime 99
    custom_number QXDensityAdjustment=Custom.-6 QXDensityAdjustment -6
    custom_number QXDensityAdjustment=Custom.0 QXDensityAdjustment 0
    custom_number QXDensityAdjustment=Custom.6 QXDensityAdjustment 6
}

# What the printer's interpreter makes of it, with setpagedevice replaced by one that tells.
anInterpreterReadsTheNumbersAndThePageSize() {
    print_data "$sample" -o QXSleepTime=Custom.12 -o QXDensityAdjustment=Custom.-2 \
        -o PageSize=Custom.300x500 >"$work/out.ps" || fail "cupsfilter failed"
    gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=nullpage -c '
        /tell { 2 copy known { get } { pop pop (-) } ifelse } bind def
        /setpagedevice {
            dup /CorvanaOption known {
                dup /CorvanaOption get print ( ) print
                dup /CorvanaValue tell =only ( ) print
                dup /PageSize tell ==
            } if
            pop
        } bind def' -f "$work/out.ps" >"$work/read" 2>&1
    local line
    for line in 'QXSleepTime=Custom 12 (-)' 'QXDensityAdjustment=Custom -2 (-)' \
        'PageSize=Custom - [300 500]' 'QXMediaType=Plain - (-)'; do
        grep -Fxq "$line" "$work/read" || fail "not read: $line"
    done
}

everyKindOfDocumentCarriesTheOptions() {
    local file
    for file in "$sample" "$root"/tests/data/page.{txt,ps,png,jpg}; do
        print_data "$file" -o QXMediaType=Thick -o QXSleepTime=Custom.12 -o QXRed=-20 \
            >"$work/out.ps" || fail "${file##*/}: cupsfilter failed"
        default_settings | sed 's/^QXMediaType=.*/QXMediaType=Thick/; s/^QXRed=.*/QXRed=-20/
            s/^QXSleepTime=.*/QXSleepTime=Custom/' | sort |
            diff - <(settings "$work/out.ps" | sort) || fail "${file##*/} was printed as above"
        gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=bbox "$work/out.ps" >"$work/gs" 2>&1 ||
            fail "${file##*/}: ghostscript cannot read the print data"
        # A page without any mark has an empty box.
        grep -v '^%%.*BoundingBox: ' "$work/gs" && fail "${file##*/}: ghostscript complains"
        grep -q '^%%BoundingBox: 0 0 0 0' "$work/gs" && fail "${file##*/}: a page is empty"
    done
}

theSampleHasThreePagesAndIsReadWithoutWarnings() {
    pdftoppm -r 20 -png "$sample" "$work/page" >"$work/log" 2>&1 || fail "poppler failed"
    [ ! -s "$work/log" ] || fail "poppler says: $(head -3 "$work/log")"
    [ "$(find "$work" -name 'page-*.png' | wc -l)" = 3 ] || fail "not three pages"
    gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=nullpage "$sample" >"$work/log" 2>&1 ||
        fail "ghostscript failed"
    [ ! -s "$work/log" ] || fail "ghostscript says: $(head -3 "$work/log")"
}

# Jobs are compared byte by byte in other tests; the date has to stay the only thing that moves.
twoRunsDifferInTheirDateOnly() {
    local run
    for run in 1 2; do
        print_data "$sample" -o QXMediaType=Thick >"$work/run$run" || fail "cupsfilter failed"
        sed -i '/^%%CreationDate: /d' "$work/run$run"
    done
    cmp "$work/run1" "$work/run2" || fail "something else differs"
}

run_test theGeneratorsWriteTheFilesThatAreKept
run_test theGeneratorRefusesTablesThatBreakALimit
run_test theFileIsCleanForCups
run_test theOptionsAreTheOnesThatPanelsKnow
run_test conflictsAreDeclaredInBothDirections
run_test noMediumThatThePanelsMakeOneSidedConflictsWithTwoSidedPrinting
run_test translationsAreWholeUtf8AndWithinTheLimits
run_test theCodeOfEveryChoiceIsValidPostScript
run_test withoutOptionsEveryDefaultIsPrintedOnce
run_test everyChoiceIsPrintedAloneAndChangesNothingElse
run_test aNumberOfOnesOwnIsPrintedInFrontOfItsCode
run_test anInterpreterReadsTheNumbersAndThePageSize
run_test everyKindOfDocumentCarriesTheOptions
run_test theSampleHasThreePagesAndIsReadWithoutWarnings
run_test twoRunsDifferInTheirDateOnly

[ "$failures" = 0 ]

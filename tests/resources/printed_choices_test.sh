#!/usr/bin/env bash
# Proves that CUPS carries each choice of each sample printer into the print data.
#
#   printed_choices_test.sh [--every-effect-step]
#
# With --every-effect-step all 41 steps of the color effects are printed, not five of them.
# Needs cupsfilter and ghostscript. Uses no print server.

# shellcheck source=tests/resources/support.bash
. "$(dirname "${BASH_SOURCE[0]}")/support.bash"
needs cupsfilter gs

effect_steps="-20 -1 0 1 20"
[ "${1-}" = --every-effect-step ] && effect_steps=$(seq -s ' ' -20 20)

# Several pages, because CUPS prints a single page one-sided whatever was chosen.
document=$root/tests/data/pages.pdf
default_printer=corvana-cl5

# An effect has the 41 steps; no other option of the printers has as many choices.
effects() {
    listed_options "$1" | awk 'NF == 43 { print $1 }'
}

# Every choice of a printer, one OPTION=CHOICE a line; of the numbers that a user may enter the ends.
# The effects move together, so they share a line.
choices_to_print() {
    local keyword choices choice ends step
    effects "$1" >"$work/effects"
    while read -r keyword _ choices; do
        for choice in $choices; do
            case $keyword-$choice in
            PageSize-Custom:*) ;; # two numbers at a time: see below
            *-Custom:*)
                ends=${choice##*:}
                echo "$keyword=Custom.${ends%..*}"
                echo "$keyword=Custom.${ends#*..}"
                ;;
            *) echo "$keyword=$choice" ;;
            esac
        done
    done < <(options "$1" | grep -v '^MirrorPrint ' | grep -vwFf "$work/effects")
    [ -s "$work/effects" ] || return
    for step in $effect_steps; do
        sed "s/$/=$step/" "$work/effects" | tr '\n' ' '
        echo
    done
}

# One print job a line: PRINTER OPTION=CHOICE... Of the default printer each choice alone, which
# shows that none of them disturbs another option. What the others print is made by the same code,
# so their jobs take one choice of every option each: the first, the second, and so on.
jobs_to_print() {
    local printer
    for printer in "${printers[@]}"; do
        choices_to_print "$printer" |
            if [ "$printer" = "$default_printer" ]; then
                cat
            else
                awk '
                    { keyword = $1; sub(/=.*/, "", keyword); n = ++seen[keyword] }
                    { job[n] = job[n] " " $0 }
                    END { for (n = 1; n in job; n++) print job[n] }'
            fi | sed "s/^ *//; s/ *$//; s/  */ /g; s/^/$printer /"
    done
}

# What the jobs of the given list ought to print: the defaults, but for the options of the job.
expected_settings() {
    local printer settings
    while read -r printer settings; do
        awk -v label="$printer $settings" -v settings="$settings" '
            BEGIN {
                count = split(settings, setting, " ")
                for (i = 1; i <= count; i++) {
                    keyword = setting[i]
                    sub(/=.*/, "", keyword)
                    sub(/=Custom\./, "=Custom ", setting[i])
                    chosen[keyword] = setting[i]
                }
            }
            { split($0, part, "=") }
            { print label " prints " (part[1] in chosen ? chosen[part[1]] : $0) }
        ' "$work/defaults.$printer"
    done
}

# What they do print, or that they fail; FILE takes the print data of one job after the other.
# printed_settings FILE
printed_settings() {
    local printer settings setting arguments
    while read -r printer settings; do
        arguments=()
        for setting in $settings; do
            arguments+=(-o "$setting")
        done
        cupsfilter -p "$(ppd_of "$printer")" -m printer/foo -o pdftops-renderer=pdftops \
            "${arguments[@]}" "$document" 2>/dev/null >"$1" ||
            echo "$printer $settings fails in cupsfilter"
        settings <"$1" | sed "s/^/$printer $settings prints /"
    done
}

# The code of a chosen choice is there once, instead of the default's, and all other options keep
# their defaults. Two jobs run side by side, since most of their time goes by in starting filters.
everyChoiceIsPrintedAndChangesNothingElse() {
    local printer
    for printer in "${printers[@]}"; do
        default_settings "$printer" >"$work/defaults.$printer"
    done
    jobs_to_print >"$work/jobs"
    awk 'NR % 2' "$work/jobs" | printed_settings "$work/odd.ps" >"$work/odd" &
    awk 'NR % 2 == 0' "$work/jobs" | printed_settings "$work/even.ps" >"$work/even"
    wait
    expected_settings <"$work/jobs" | sort >"$work/expected"
    sort "$work/odd" "$work/even" | diff "$work/expected" - || fail "not printed as expected"
    # A guard against tables that were not read.
    for printer in "${printers[@]}"; do
        [ "$(grep "^$printer " "$work/jobs" | grep -o = | wc -l)" -ge 25 ] ||
            fail "hardly any choice was printed for $printer"
    done
}

withoutOptionsEveryDefaultIsPrintedOnce() {
    print_data "$1" "$root/resources/sample/welcome.pdf" >"$work/out.ps" || fail "cupsfilter failed"
    diff <(default_settings "$1" | sort) <(settings <"$work/out.ps" | sort) || fail "not the defaults"
}

# What the printer's interpreter makes of numbers, with setpagedevice replaced by one that tells.
anInterpreterReadsTheNumbersAndThePageSize() {
    local arguments=() lines=('QXMediaType=Plain - (-)') line keyword choices
    while read -r keyword choices; do
        case $keyword in
        PageSize)
            arguments+=(-o PageSize=Custom.300x500)
            lines+=('PageSize=Custom - [300 500]')
            ;;
        *)
            line=${choices##*:}
            arguments+=(-o "$keyword=Custom.${line#*..}")
            lines+=("$keyword=Custom ${line#*..} (-)")
            ;;
        esac
    done < <(options "$1" | grep ' Custom:')
    print_data "$1" "$document" "${arguments[@]}" >"$work/out.ps" || fail "cupsfilter failed"
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
    for line in "${lines[@]}"; do
        grep -Fxq "$line" "$work/read" || fail "not read: $line"
    done
}

everyKindOfDocumentCarriesTheOptions() {
    local file
    for file in "$root"/resources/sample/welcome.pdf "$root"/tests/data/page.{txt,ps,png,jpg}; do
        print_data $default_printer "$file" \
            -o QXMediaType=Thick -o QXSleepTime=Custom.12 -o QXRed=-20 >"$work/out.ps" ||
            fail "${file##*/}: cupsfilter failed"
        default_settings $default_printer |
            sed 's/^QXMediaType=.*/QXMediaType=Thick/; s/^QXRed=.*/QXRed=-20/
                s/^QXSleepTime=.*/QXSleepTime=Custom 12/' | sort |
            diff - <(settings <"$work/out.ps" | sort) || fail "${file##*/} was printed as above"
        gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=bbox "$work/out.ps" >"$work/gs" 2>&1 ||
            fail "${file##*/}: ghostscript cannot read the print data"
        # A page without any mark has an empty box.
        grep -v '^%%.*BoundingBox: ' "$work/gs" && fail "${file##*/}: ghostscript complains"
        grep -q '^%%BoundingBox: 0 0 0 0' "$work/gs" && fail "${file##*/}: a page is empty"
    done
}

# left_edge FILE [-o OPTION]...: of the marks on the first page, in points.
left_edge() {
    print_data corvana-cl3 "$@" -o PageSize=A4 >"$work/out.ps" || fail "cupsfilter failed"
    gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=bbox "$work/out.ps" 2>&1 |
        awk '$1 == "%%BoundingBox:" { print $2; exit }'
}

# The square of the PDF is 100 points wide and stands 72 points from the left of a page of 595, the
# row of the PostScript page is 200 wide; a box is one point larger for its rounding.
mirroredPagesAreTurnedOnceByCups() {
    local file plain mirrored
    while read -r file plain mirrored; do
        [ "$(left_edge "$root/tests/data/$file")" = "$plain" ] || fail "$file is not where it was"
        [ "$(left_edge "$root/tests/data/$file" -o MirrorPrint=True)" = "$mirrored" ] ||
            fail "$file is not mirrored"
        grep -a 'CorvanaOption(MirrorPrint' "$work/out.ps" && fail "the printer is told as well"
    done <<'TABLE'
pages.pdf 71 422
page.ps 71 322
TABLE
}

# Jobs are compared byte by byte in other tests; the date has to stay the only thing that moves.
twoRunsDifferInTheirDateOnly() {
    local run
    for run in 1 2; do
        print_data $default_printer "$document" -o QXMediaType=Thick >"$work/run$run" ||
            fail "cupsfilter failed"
        sed -i '/^%%CreationDate: /d' "$work/run$run"
    done
    cmp "$work/run1" "$work/run2" || fail "something else differs"
}

run_test everyChoiceIsPrintedAndChangesNothingElse
for printer in "${printers[@]}"; do
    run_test withoutOptionsEveryDefaultIsPrintedOnce "$printer"
    run_test anInterpreterReadsTheNumbersAndThePageSize "$printer"
done
run_test everyKindOfDocumentCarriesTheOptions
run_test mirroredPagesAreTurnedOnceByCups
run_test twoRunsDifferInTheirDateOnly

[ "$failures" = 0 ]

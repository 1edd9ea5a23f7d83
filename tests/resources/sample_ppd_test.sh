#!/usr/bin/env bash
# Proves that the PPD files of the sample printers are sound, and that they and the sample documents
# are what their generators write. What becomes of the choices is printed_choices_test.sh.
#
# Needs cupstestppd, ghostscript, poppler-utils and python3.

# shellcheck source=tests/resources/support.bash
. "$(dirname "${BASH_SOURCE[0]}")/support.bash"
needs cupstestppd gs pdftoppm python3

sample=$root/resources/sample/welcome.pdf

# The generated files are kept with the sources; they must not drift from their generators.
theGeneratorsWriteTheFilesThatAreKept() {
    local made=$work/made file
    mkdir -p "$made"
    "$root/resources/ppd/make-ppds" --output "$made" || fail "make-ppds failed"
    "$root/resources/sample/make-welcome" --output "$made" || fail "make-welcome failed"
    "$root/tests/data/make-data" --output "$made" || fail "make-data failed"
    cmp "$made/welcome.pdf" "$sample" || fail "run resources/sample/make-welcome"
    for file in page.txt page.ps page.png page.jpg pages.pdf; do
        cmp "$made/$file" "$root/tests/data/$file" || fail "run tests/data/make-data"
    done
    # Every PPD in the folder has to be one that the generator writes, and the other way round.
    diff <(cd "$made" && ls -- *.ppd) <(cd "$root/resources/ppd" && ls -- *.ppd) ||
        fail "the PPD files are not the ones that make-ppds writes"
    for file in "$made"/*.ppd; do
        cmp "$file" "$root/resources/ppd/${file##*/}" || fail "run resources/ppd/make-ppds"
    done
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
        groups=group_with(sound._replace(text=Text("Red", "字" * 27, "红色")))
    ),
    "a text that a language lacks": dict(
        groups=group_with(sound._replace(text=Text("Wood", "木", "木")))
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
try:
    options.MEDIA_TYPE.offering("Plain", "Wood")
except ValueError:
    sys.exit()
sys.exit("accepted: a model that offers an unknown choice")
PYTHON
}

# One warning cannot be helped: of the keywords that the panels know, two begin alike, and some
# printers have both. CUPS compares whole keywords, so it does no harm.
theFileIsCleanForCups() {
    local ppd
    ppd=$(ppd_of "$1")
    : >"$work/known"
    if grep -q '^\*OpenUI \*QXRed/' "$ppd" && grep -q '^\*OpenUI \*QXReduceGhost/' "$ppd"; then
        echo 'WARN QXRed shares a common prefix with QXReduceGhost' >"$work/known"
    fi
    cupstestppd -vv "$ppd" >"$work/report" || fail "cupstestppd refuses it"
    grep -q PASS "$work/report" || fail "cupstestppd tested nothing"
    grep -E 'WARN|FAIL' "$work/report" | sed 's/  */ /g; s/^ //' | diff "$work/known" - ||
        fail "cupstestppd complains"
}

# The table is written by hand, so that a keyword changed by accident is noticed.
theOptionsAreTheOnesOfItsTable() {
    local ppd keyword default choices found custom name
    ppd=$(ppd_of "$1")
    while read -r keyword default choices; do
        found=$(sed -n "s|^\*$keyword \([^/]*\)/.*|\1|p" "$ppd" | tr '\n' ' ')
        [ "$found" = "$choices " ] || fail "$keyword has the choices: $found"
        grep -qx "\*Default$keyword: $default" "$ppd" ||
            fail "the default of $keyword is not $default"
    done < <(listed_options "$1")
    diff <(sed -n 's|^\*OpenUI \*\([^/]*\)/.*|\1|p' "$ppd" | grep -vx PageRegion | sort) \
        <(listed_options "$1" | cut -d' ' -f1 | sort) || fail "options are missing or not expected"
    # Custom page sizes have three more parameters, which PPD files must declare and nobody enters.
    diff <(sed -n 's|^\*ParamCustom\([^ ]*\) \([^/]*\)/.*: [0-9] [a-z]* \(.*\) \(.*\)$|\1 \2 \3..\4|p' \
        "$ppd" | grep -Ev 'Offset|Orientation' | sort) \
        <(options "$1" | while read -r keyword default choices; do
            for custom in $choices; do
                case $custom in
                Custom:*)
                    custom=${custom#Custom:}
                    name=${custom%%:*}
                    echo "$keyword $name ${custom#*:}"
                    ;;
                esac
            done
        done | sort) || fail "other numbers of one's own than expected"
}

conflictsAreDeclaredInBothDirections() {
    sed -n 's/^\*UIConstraints: //p' "$(ppd_of "$1")" | sort >"$work/conflicts"
    awk '{ print $3, $4, $1, $2 }' "$work/conflicts" | sort | diff - "$work/conflicts" ||
        fail "a conflict has no counterpart"
}

# libcups cuts longer ones in the middle of a character: it keeps 80 bytes of an option's or a
# choice's text, 39 of a group's.
translationsAreCompleteUtf8AndWithinTheLimits() {
    local ppd language keyword choices choice
    ppd=$(ppd_of "$1")
    iconv -f UTF-8 -t UTF-8 "$ppd" >/dev/null || fail "not UTF-8"
    sed -n 's|^\*OpenGroup: \([^/]*\)/.*|Translation \1|p' "$ppd" | sort >"$work/groups"
    {
        cat "$work/groups"
        sed -n 's|^\*OpenUI \*\([^/]*\)/.*|Translation \1|p' "$ppd"
        sed -n 's|^\*\(Custom[^/ ]* True\)/.*|\1|p; s|^\*\(ParamCustom[^/]*\)/.*|\1|p' "$ppd"
        sed -n 's|^\*\(APCustomColorMatchingName [^/]*\)/.*|\1|p' "$ppd"
        listed_options "$1" | while read -r keyword _ choices; do
            for choice in $choices; do
                echo "$keyword $choice"
                [ "$keyword" = PageSize ] && echo "PageRegion $choice"
            done
        done
    } | sort >"$work/keys"
    for language in ja zh_CN de fr es it pt ko zh_TW; do
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
    local ppd count
    ppd=$(ppd_of "$1")
    {
        # Custom code finds its parameters on the stack: five for a page size, else one.
        sed -n 's|^\*Custom[^:]*: "\(.*\)"$|\1|p' "$ppd" |
            sed 's/^pop/300 400 0 0 0 &/; t; s/^/5 &/'
        sed -n '/^\*Custom/!s|^\*[A-Za-z_]* [^:]*: "\(<<.*\)"$|\1|p' "$ppd"
        echo 'count 0 ne { (objects left on the stack) = } if'
    } >"$work/codes.ps"
    # Sizes stand twice, as PageSize and PageRegion; the check of the stack is one more line.
    count=$(options "$1" | awk '
        $1 == "MirrorPrint" { next }
        { sub(/ Custom:.*/, " Custom"); n += NF - 2 }
        $1 == "PageSize" { n += NF - 2 - ($NF == "Custom") }
        END { print n + 1 }')
    [ "$(wc -l <"$work/codes.ps")" = "$count" ] || fail "not all codes were found"
    gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=nullpage "$work/codes.ps" >"$work/gs" 2>&1 ||
        fail "ghostscript failed"
    [ ! -s "$work/gs" ] || fail "ghostscript says: $(head -3 "$work/gs")"
}

theSampleHasThreePagesAndIsReadWithoutWarnings() {
    pdftoppm -r 20 -png "$sample" "$work/page" >"$work/log" 2>&1 || fail "poppler failed"
    [ ! -s "$work/log" ] || fail "poppler says: $(head -3 "$work/log")"
    [ "$(find "$work" -name 'page-*.png' | wc -l)" = 3 ] || fail "not three pages"
    gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=nullpage "$sample" >"$work/log" 2>&1 ||
        fail "ghostscript failed"
    [ ! -s "$work/log" ] || fail "ghostscript says: $(head -3 "$work/log")"
}

run_test theGeneratorsWriteTheFilesThatAreKept
run_test theGeneratorRefusesTablesThatBreakALimit
for printer in "${printers[@]}"; do
    run_test theFileIsCleanForCups "$printer"
    run_test theOptionsAreTheOnesOfItsTable "$printer"
    run_test conflictsAreDeclaredInBothDirections "$printer"
    run_test translationsAreCompleteUtf8AndWithinTheLimits "$printer"
    run_test theCodeOfEveryChoiceIsValidPostScript "$printer"
done
run_test theSampleHasThreePagesAndIsReadWithoutWarnings

[ "$failures" = 0 ]

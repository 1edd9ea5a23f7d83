# What the tests of the sample printers share: reporting, the option tables, printing without a
# print server. To be sourced; sets root, work (removed at the end) and printers.

set -u
export LC_ALL=C
PATH=$PATH:/usr/sbin

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd) || exit 1
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT

failures=0
fail() {
    printf '    %s\n' "$*" >&2
    failed=yes
}

# run_test FUNCTION [ARGUMENT]...
run_test() {
    failed=no
    "$@"
    if [ "$failed" = no ]; then
        echo "ok      $*"
    else
        echo "FAILED  $*"
        failures=$((failures + 1))
    fi
}

needs() {
    local tool
    for tool in "$@"; do
        if ! command -v "$tool" >/dev/null; then
            echo "$0: $tool is needed and missing" >&2
            exit 1
        fi
    done
}

printers=()
for file in "$root"/resources/ppd/*.ppd; do
    file=${file##*/}
    printers+=("${file%.ppd}")
done

ppd_of() {
    echo "$root/resources/ppd/$1.ppd"
}

# The options of a printer: keyword, default choice, all choices; then, as Custom:NAME:MIN..MAX, the
# numbers that a user may enter. A run of numbers as MIN..MAX is spread out.
options() {
    awk '{
        line = $1
        for (i = 2; i <= NF; i++) {
            if ($i ~ /^-?[0-9]+\.\.-?[0-9]+$/) {
                split($i, ends, /\.\./)
                for (n = ends[1] + 0; n <= ends[2] + 0; n++) line = line " " n
            } else {
                line = line " " $i
            }
        }
        print line
    }' "$root/tests/resources/options/$1.txt"
}

# Without the numbers of one's own.
listed_options() {
    options "$1" | sed 's/ Custom:.*//'
}

# print_data PRINTER FILE [-o OPTION]...: what the printer would be sent, on standard output.
print_data() {
    local ppd file=$2
    ppd=$(ppd_of "$1")
    shift 2
    cupsfilter -p "$ppd" -m printer/foo "$@" "$file" 2>"$work/cupsfilter.log"
}

# The settings in the print data on standard input, in their order: KEYWORD=CHOICE, one a line, with
# a number of one's own behind it. Such a number stands on the line before the code that takes it.
settings() {
    grep -a -B 1 'CorvanaOption(' | awk '
        match($0, /CorvanaOption\([^)]*\)/) {
            setting = substr($0, RSTART + 14, RLENGTH - 15)
            print setting (/CorvanaValue/ ? " " before : "")
        }
        { before = $0 }'
}

# The options that have code. CUPS mirrors the pages itself; a printer that did so as well would
# turn them back.
printed_options() {
    listed_options "$1" | grep -v '^MirrorPrint '
}

default_settings() {
    printed_options "$1" | while read -r keyword default _; do
        echo "$keyword=$default"
    done
}

# shellcheck shell=bash
# shellcheck disable=SC2034 # settings of the test programs and of window.bash
# Runs corvana-print as its users and their scripts do, for tests of the whole way from a choice to
# the printer's data.
#
# A test program is called as "NAME_test.sh [PROGRAM [TEST...]]": PROGRAM is the corvana-print of a
# build folder (the release preset's without one), each TEST the name of one test. It sources this
# file and ends with the line run_tests.
#
# A test (tests/support/shell_tests.bash) begins in an empty folder whose name has blanks.
#
# Every wait has a limit. CORVANA_TEST_SLOWDOWN multiplies the limits, for programs built with
# sanitizers.

here=$(CDPATH='' cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd) || exit
source_root=$(CDPATH='' cd -- "$here/../.." && pwd) || exit
program=$(readlink -f -- "${1:-$source_root/build/release/bin/corvana-print}")
chosen_tests=("${@:2}")
build=$(dirname -- "$(dirname -- "$program")")
bundle_root=$build/plugins
bundle=QXCLQuality13PDE.bundle
ppd=$source_root/resources/ppd/corvana-cl5.ppd
# Three pages: CUPS prints a single page one-sided, whatever was chosen.
sample=$source_root/resources/sample/welcome.pdf
slowdown=${CORVANA_TEST_SLOWDOWN:-1}
patience=$((20 * slowdown)) # seconds that one run of the program may take

[ -x "$program" ] || {
    echo "$0: there is no program $program; name the one of a build folder" >&2
    exit 1
}
for tool in cupsfilter timeout; do
    PATH=$PATH:/usr/sbin command -v "$tool" >/dev/null || {
        echo "$0: $tool is needed and missing" >&2
        exit 1
    }
done

# Settings of the tester's own must not decide.
unset LANGUAGE LANG LC_MESSAGES CORVANA_PRINT_CUPSFILTER QT_LOGGING_RULES QT_QPA_PLATFORM DISPLAY \
    WAYLAND_DISPLAY
export LC_ALL=C.UTF-8
# Nor may print servers, or queues and defaults of the tester's, be there.
unset LPDEST PRINTER CORVANA_PRINT_PATIENCE
export CUPS_SERVER=/nonexistent/cups.sock CUPS_SERVERROOT=/nonexistent
# Nor may the tester's desktop be asked; a window would look for its screen reader.
export DBUS_SESSION_BUS_ADDRESS=disabled: DBUS_SYSTEM_BUS_ADDRESS=disabled:

# What a test may change before it prints:
environment=()      # settings of the program's environment, NAME=VALUE
bundles=$bundle_root # the folder of the plug-in bundle
document=$sample
printer=(--ppd "$ppd")

# shellcheck source=tests/support/shell_tests.bash
. "$source_root/tests/support/shell_tests.bash"

# Folders of one test: $folder is the current one and holds nothing but what was printed.
make_work() {
    work=$(mktemp -d "${TMPDIR:-/tmp}/corvana e2e.XXXXXX") || exit
    trap 'leave_work' EXIT
    folder=$work/printed
    output=$folder/job.ps
    mkdir -p "$folder" "$work/runtime" "$work/home"
    chmod 700 "$work/runtime"
    export XDG_RUNTIME_DIR=$work/runtime HOME=$work/home XDG_CONFIG_HOME=$work/home/.config
    # Each window begins with the settings of the printer, not with those of the one before.
    mkdir -p "$XDG_CONFIG_HOME/corvana-print"
    printf '[General]\nlastUsed=false\n' >"$XDG_CONFIG_HOME/corvana-print/com.corvana.print.dialog.ini"
    : >"$work/out"
    : >"$work/err"
    cd "$folder" || exit
}
# Ends what the test has started, the display last: its clients would complain.
leave_work() {
    local started job
    mapfile -t started < <(jobs -p)
    for ((job = ${#started[@]} - 1; job >= 0; job--)); do
        kill "${started[job]}" 2>/dev/null
        wait "${started[job]}" 2>/dev/null
    done
    cd / && rm -rf "$work"
}

# run ARGUMENT...: the program without a window; leaves $status and both outputs.
run() {
    timeout "$patience" env "${environment[@]}" "$program" --bundle-root "$bundles" --no-dialog "$@" \
        >"$work/out" 2>"$work/err" </dev/null
    status=$?
}
# print ARGUMENT...: prints the document to $output and says what was set.
print() { run "${printer[@]}" --summary --output "$output" "$@" "$document"; }
# in_language ja_JP: what the program says from now on, and the texts that it takes from a PPD.
in_language() { environment=(--unset=LC_ALL "${environment[@]}" "LANG=$1.UTF-8"); }

# changed_ppd SED-SCRIPT: prints with a copy of the sample printer's PPD from now on.
changed_ppd() {
    sed "$1" "$ppd" >"$work/changed.ppd"
    ! cmp -s "$ppd" "$work/changed.ppd" || fail "the PPD was not changed by: $1"
    printer=(--ppd "$work/changed.ppd")
}

expect_status() { [ "$status" -eq "$1" ] || fail "the status is $status, $1 was expected"; }
# expect_said TEXT...: each text on standard error.
expect_said() {
    local text
    for text in "$@"; do
        grep -qF -- "$text" "$work/err" || fail "not said on standard error: $text"
    done
}

# printed_codes FILE: the choices that the printer is told, KEYWORD=CHOICE, in their order.
printed_codes() { grep -ao 'CorvanaOption([^)]*)' "$1" | sed 's/^CorvanaOption(//; s/)$//'; }
# printed_values KEYWORD FILE: the numbers that come with a custom choice, each with a blank.
printed_values() {
    sed -n "/^%%BeginFeature: \*Custom$1 True/,/^<<\|^pop/p" "$2" | grep -aE '^-?[0-9.]+$' | tr '\n' ' '
}
# expect_code KEYWORD=CHOICE...: the printer is told this choice, and no other of that option.
expect_code() {
    local code
    for code in "$@"; do
        expect_equal "$(printed_codes "$output" | grep "^${code%%=*}=" | tr '\n' ' ')" "$code "
    done
}
expect_printed() {
    expect_status 0
    [ -s "$output" ] || fail "nothing was printed"
}
# expect_refusal TEXT... -- ARGUMENT...: printing with these arguments fails, says each text, and
# leaves what was printed earlier as it is, with nothing beside it.
expect_refusal() {
    local texts=()
    while [ "$1" != -- ]; do
        texts+=("$1")
        shift
    done
    shift
    echo 'printed earlier' >"$output"
    print "$@"
    expect_status 1
    expect_said "${texts[@]}"
    expect_nothing_new
}
expect_nothing_new() {
    expect_equal "$(ls -A "$folder")" "$(basename "$output")"
    expect_equal "$(cat "$output")" 'printed earlier'
}

#!/usr/bin/env bash
# Jobs that end otherwise than by being printed: a signal ends the program, or the disk is full.
# shellcheck disable=SC2119 # open_dialog takes further arguments where a test has some

# shellcheck source=tests/e2e/support.bash
. "$(dirname "${BASH_SOURCE[0]}")/support.bash"
# shellcheck source=tests/e2e/window.bash
. "$(dirname "${BASH_SOURCE[0]}")/window.bash"

# What a shell starts in the background ignores Ctrl-C; programs in the foreground do not.
signals=('--default-signal=INT,TERM,HUP')

# A filter chain that has written a part, with a filter of its own, and takes long.
long_chain() {
    cat >"$work/filter" <<END
#!/bin/sh
# The sheets cannot be counted, and the job is printed all the same.
case "\$*" in *application/vnd.cups-pdf*) exit 1 ;; esac
sleep 300 &
echo \$! >"$work/child"
echo \$\$ >"$work/chain"
echo half
touch "$work/started"
wait
END
    chmod +x "$work/filter"
    environment+=("${signals[@]}" "CORVANA_PRINT_CUPSFILTER=$work/filter")
    mkdir "$work/tmp"
    environment+=("TMPDIR=$work/tmp")
    echo 'printed earlier' >"$output"
}

# start_print ARGUMENT...: prints without a window, in the background, until the chain runs.
start_print() {
    env "${environment[@]}" "$program" --bundle-root "$bundles" --no-dialog "${printer[@]}" \
        --output "$output" "$@" >"$work/out" 2>"$work/err" <"$document" &
    dialog=$!
    await 'the filter chain' test -e "$work/started"
}

has_gone() { ! kill -0 "$(cat "$1")" 2>/dev/null; }
# The chain has ended, and neither the output nor a temporary folder has anything new.
expect_nothing_left() {
    await 'the end of the filter chain' has_gone "$work/chain"
    await 'the end of its filter' has_gone "$work/child"
    expect_nothing_new
    expect_equal "$(ls -A "$work/tmp")" ''
}
expect_told_once() { expect_equal "$(grep -cF -- "$1" "$work/err")" 1; }

aSignalEndsTheJobAndLeavesNothing() {
    local signal number
    long_chain
    while read -r signal number; do
        rm -f "$work/started"
        start_print "$document"
        kill -s "$signal" "$dialog"
        expect_end
        expect_status $((128 + number))
        expect_told_once 'Printing was canceled.'
        expect_said 'Nothing was printed.'
        expect_nothing_left
    done <<'TABLE'
INT 2
TERM 15
HUP 1
TABLE
}

aSignalEndsTheCountingOfSheets() {
    long_chain
    sed -i '/vnd.cups-pdf/d' "$work/filter"
    start_print "$document"
    kill -s INT "$dialog"
    expect_end
    expect_status 130
    expect_said 'Nothing was printed.'
    expect_nothing_left
}

# What texts become on the way is the user's.
aTextLeavesNothingBehind() {
    mkdir "$work/tmp"
    environment+=("TMPDIR=$work/tmp")
    print "$source_root/tests/data/page.txt"
    expect_printed
    expect_equal "$(ls -A "$work/tmp")" ''
}

# Somebody presses Ctrl-C again, before or after the end. Two that wait are one.
no_signal_waits() { ! grep -Eqs '^(Sig|Shd)Pnd:.*[1-9a-f]' /proc/"$dialog"/task/*/status; }
aSecondSignalChangesNothing() {
    local signal number
    long_chain
    while read -r signal number; do
        rm -f "$work/started"
        start_print "$document"
        kill -s "$signal" "$dialog"
        await 'the first signal' no_signal_waits
        kill -s "$signal" "$dialog" 2>/dev/null
        expect_end
        expect_status $((128 + number))
        expect_told_once 'Printing was canceled.'
        expect_nothing_left
    done <<'TABLE'
INT 2
TERM 15
HUP 1
INT 2
TERM 15
HUP 1
TABLE
}

whatCameOnStandardInputIsRemovedAsWell() {
    long_chain
    start_print -
    [ -n "$(ls -A "$work/tmp")" ] || fail 'standard input is kept nowhere'
    kill -s TERM "$dialog"
    expect_end
    expect_status 143
    expect_nothing_left
}

# Its writer is not done yet: a shell's Ctrl-C ends a whole pipeline.
whatComesOnStandardInputIsRemovedBeforeItsEnd() {
    local signal number
    mkdir "$work/tmp"
    environment+=("${signals[@]}" "TMPDIR=$work/tmp")
    mkfifo "$work/pipe"
    while read -r signal number; do
        env "${environment[@]}" "$program" --bundle-root "$bundles" --no-dialog "${printer[@]}" \
            --output "$output" "$document" - >"$work/out" 2>"$work/err" <"$work/pipe" &
        dialog=$!
        exec 9>"$work/pipe"
        yes 'A line of a letter.' | head -c 50000 >&9
        await 'a copy of what came' grep -qr letter "$work/tmp"
        kill -s "$signal" "$dialog"
        expect_end
        expect_status $((128 + number))
        expect_equal "$(ls -A "$work/tmp")" ''
        exec 9>&-
    done <<'TABLE'
INT 2
TERM 15
HUP 1
TABLE
}

# The sides that were laid out to be counted are kept, so that they can be shown.
theSidesThatAreKeptAreRemovedAsWell() {
    long_chain
    sed -i "s|exit 1|PATH=\$PATH:/usr/sbin exec cupsfilter \"\$@\"|" "$work/filter"
    start_print "$document"
    [ -n "$(find "$work/tmp" -name sides.pdf)" ] || fail 'no sides are kept'
    kill -s TERM "$dialog"
    expect_end
    expect_status 143
    expect_nothing_left
}

# As after nohup.
aSignalThatWasIgnoredStaysIgnored() {
    signals=('--default-signal=INT,TERM' --ignore-signal=HUP)
    long_chain
    start_print "$document"
    kill -s HUP "$dialog"
    kill -s TERM "$dialog"
    expect_end
    expect_status 143
    expect_nothing_left
}

aSignalEndsTheDialogWithItsJob() {
    long_chain
    open_dialog
    settle
    press alt+p
    await 'the filter chain' test -e "$work/started"
    kill -s TERM "$dialog"
    expect_end
    expect_status 143
    expect_nothing_left
}

aSignalEndsTheDialogWithoutAJob() {
    long_chain
    open_dialog
    settle
    kill -s INT "$dialog"
    expect_end
    expect_status 130
    expect_nothing_new
}

# Whoever reads the pipe takes the copy along.
aSignalEndsTheDialogWhileAPipeIsRead() {
    local writer
    long_chain
    mkfifo "$work/pipe"
    { printf 'Some words' && exec sleep 300; } >"$work/pipe" &
    writer=$!
    open_dialog "$work/pipe"
    await 'the copy' holds_a_copy
    kill -s INT "$dialog"
    expect_end
    kill "$writer"
    expect_status 130
    expect_equal "$(ls -A "$work/tmp")" ''
}
holds_a_copy() { [ -n "$(find "$work/tmp" -name document)" ]; }

# A question that nobody has answered is no permission.
aSignalEndsTheDialogDuringAQuestion() {
    long_chain
    echo 'printed earlier' >"$folder/other.ps"
    open_dialog
    settle
    press alt+f ctrl+a
    xdotool type "$folder/other.ps"
    press alt+p
    await 'the question' popup_is_open
    kill -s TERM "$dialog"
    expect_end
    expect_status 143
    expect_equal "$(cat "$folder/other.ps")" 'printed earlier'
    [ ! -e "$work/started" ] || fail 'it was printed all the same'
}

aFailureIsToldOnce() {
    printf '#!/bin/sh\necho "ERROR: out of toner" >&2\nexit 1\n' >"$work/filter"
    chmod +x "$work/filter"
    environment+=("CORVANA_PRINT_CUPSFILTER=$work/filter")
    expect_refusal 'out of toner' --
    expect_told_once 'out of toner'
}

# The filters of CUPS do not notice that what they write finds no place.
aFullDiskIsNoSuccess() {
    local size
    [ "$(id -u)" -eq 0 ] || skip 'only the superuser can make a small disk'
    unshare -m true 2>/dev/null || skip 'no file system can be mounted here'
    for size in 4k 100k 400k; do
        on_a_small_disk "$size" "$folder" "$document"
        expect_status 1
        expect_said "$output cannot be written: No space left on device"
        expect_equal "$(cat "$work/left")" ''
    done
    # Temporary files of several documents: one by one, then all in one.
    for size in 4k 100k 160k; do
        on_a_small_disk "$size" "$work/tmp" "$document" "$source_root/tests/data/page.txt"
        expect_status 1
        expect_said "$work/tmp/"
        expect_equal "$(cat "$work/left")" ''
        expect_equal "$(ls -A "$folder")" ''
    done
}
# on_a_small_disk SIZE FOLDER DOCUMENT...: prints while FOLDER is on a disk of that size, which
# nobody else sees; $work/left tells what was left on it.
on_a_small_disk() {
    local size=$1 disk=$2
    shift 2
    mkdir -p "$disk" "$work/tmp"
    # shellcheck disable=SC2016 # for the inner shell
    timeout "$patience" unshare -m bash -c '
        mount -t tmpfs -o "size=$1" tmpfs "$2" || exit 70
        disk=$2 left=$3
        shift 3
        "$@"
        status=$?
        ls -A "$disk" >"$left"
        exit $status' bash "$size" "$disk" "$work/left" \
        env "TMPDIR=$work/tmp" "$program" --bundle-root "$bundles" --no-dialog "${printer[@]}" \
        --output "$output" "$@" >"$work/out" 2>"$work/err" </dev/null
    status=$?
}

run_tests

# shellcheck shell=bash
# A machine made of paper for the tests of ./run, ./test, ./package and .ci/run: a copy of the scripts in a
# checkout whose path has blanks, a system root with the few files that they read, and a path on
# which every program that matters is one of fakes/, which write down how they were called.
#
# A test is a function test_...; it runs in a shell of its own, on a machine of its own. It
# prepares the machine, calls start, and states what it expects; the first expectation that
# fails ends it. A test program ends with the line run_tests "$@".

here=$(CDPATH='' cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd)
source_root=$(CDPATH='' cd -- "$here/../.." && pwd)

# Programs that the scripts may take from the machine that runs the test. Anything else, above
# all a real apt-get or cmake, is out of reach.
ordinary_programs=(bash sh env cat cp mkdir rm touch grep sed tee dirname readlink mktemp timeout
    flock chmod true)

# new_machine: a Debian 12 with everything installed, lists of packages, an administrator's
# rights and nothing built.
new_machine() {
    local program
    machine=$(mktemp -d "${TMPDIR:-/tmp}/corvana scripts.XXXXXX") || exit
    trap 'rm -rf "$machine"' EXIT
    checkout="$machine/a check out"
    state=$machine/state
    mkdir -p "$checkout/packaging" "$checkout/.ci" "$checkout/resources/sample" "$state" \
        "$machine/bin" "$machine/home" "$machine/root/etc" "$machine/root/proc" \
        "$machine/root/var/lib/apt/lists" "$machine/root/usr/sbin"
    cp "$source_root/run" "$source_root/test" "$source_root/package" "$checkout"
    cp "$source_root/.ci/run" "$checkout/.ci"
    cp -R "$source_root/packaging/dependencies" "$checkout/packaging"
    printf '%s\n' '{ "configurePresets": [' '  { "name": "release" },' '  { "name": "asan" },' '  { "name": "fuzz" } ] }' \
        >"$checkout/CMakePresets.json"
    for program in "${ordinary_programs[@]}"; do
        ln -s "$(type -P "$program")" "$machine/bin/$program"
    done
    cp "$here"/fakes/* "$machine/bin"
    rm "$machine/bin/corvana-print"
    cp "$here/fakes/corvana-print" "$state/program"

    export FAKE_STATE=$state
    : >"$state/calls"
    sed -E '/^(#|$)/d; s/^([^ ]+) +.*/\1/' "$source_root/packaging/dependencies/packages.list" \
        >"$state/names"
    # Versions with the epochs and suffixes that Debian gives them.
    sed -E 's/$/ 4:99.2+dfsg-1/' "$state/names" >"$state/offered"
    cp "$state/offered" "$state/installed"
    printf '0' >"$state/uid"
    printf 'ID=debian\nPRETTY_NAME="Debian GNU/Linux 12 (bookworm)"\n' >"$machine/root/etc/os-release"
    touch "$machine/root/var/lib/apt/lists/deb.example_main_Packages.lz4"
    free_memory_is_mb 16384
}

# What a test can change about the machine.
free_memory_is_mb() {
    printf 'MemTotal: 99999999 kB\nMemAvailable: %s kB\n' "$(($1 * 1024))" >"$machine/root/proc/meminfo"
}
not_installed() {
    local name
    for name in "$@"; do sed -i "/^$name /d" "$state/installed"; done
}
installed_as() { not_installed "$1" && printf '%s %s\n' "$1" "$2" >>"$state/installed"; }
offered_as() { sed -i "s/^$1 .*/$1 $2/" "$state/offered"; }
not_offered() { sed -i "/^$1 /d" "$state/offered"; }
lists_are_empty() { rm "$machine"/root/var/lib/apt/lists/*; }
user_is_nobody_special() { printf '1000' >"$state/uid"; }
without() {
    local name
    for name in "$@"; do rm "$machine/bin/$name"; done
}
# add_program NAME: the script on standard input becomes a program on the path.
add_program() {
    cat >"$machine/bin/$1"
    chmod +x "$machine/bin/$1"
}
another_distribution() {
    printf 'ID=fedora\nPRETTY_NAME="Fedora Linux 40"\n' >"$machine/root/etc/os-release"
    without apt-get apt-cache dpkg-query
}

# in_machine COMMAND...: runs it with the machine's path and nothing of the tester's own settings.
in_machine() {
    # The interrupt is as a terminal has it, even where these tests run in the background.
    env -i --default-signal=INT PATH="$machine/bin" HOME="$machine/home" SHELL="$machine/bin/sh" \
        TMPDIR="$machine" FAKE_STATE="$state" CORVANA_SYSTEM_ROOT="$machine/root" \
        "${settings[@]}" "$@"
}
settings=()

# start SCRIPT ARGUMENT...: runs a script of the checkout without a terminal, from the current
# folder; leaves status, and the two outputs in state.
start() {
    local script=$1
    shift
    in_machine "$checkout/$script" "$@" >"$state/out" 2>"$state/err" </dev/null
    status=$?
}

# start_on_terminal ANSWER SCRIPT ARGUMENT...: the same on a pseudo terminal, where somebody
# types ANSWER.
start_on_terminal() {
    local answer=$1 script=$2 command
    shift 2
    printf -v command '%q ' "$checkout/$script" "$@"
    # Typed only after the question: a script that does not ask must not be given the answer.
    { sleep 1; printf '%s\n' "$answer"; sleep 1; } |
        in_machine "$(command -v script)" -qec "$command" /dev/null >"$state/out" 2>"$state/err"
    status=$?
}

fail() {
    printf '    %s\n' "$@"
    printf '    -- calls\n'
    sed 's/^/    | /' "$state/calls"
    printf '    -- output\n'
    sed 's/^/    | /' "$state/out" "$state/err" 2>/dev/null
    exit 1
}
expect_status() { [ "$status" -eq "$1" ] || fail "status is $status, expected $1"; }
# Whether a line of the calls, or of the outputs, contains the text; no pattern.
expect_call() { grep -qF -- "$1" "$state/calls" || fail "not called: $1"; }
expect_no_call() { ! grep -qF -- "$1" "$state/calls" || fail "called: $1"; }
expect_output() { grep -qF -- "$1" "$state/out" "$state/err" || fail "not said: $1"; }
expect_no_output() { ! grep -qF -- "$1" "$state/out" "$state/err" || fail "said: $1"; }
expect_equal() { [ "$1" = "$2" ] || fail "got      $1" "expected $2"; }
# expect_order TEXT TEXT: the first call with the one text comes before the first with the other.
expect_order() {
    local first second
    expect_call "$1"
    expect_call "$2"
    first=$(grep -nFm1 -- "$1" "$state/calls")
    second=$(grep -nFm1 -- "$2" "$state/calls")
    [ "${first%%:*}" -lt "${second%%:*}" ] || fail "\"$2\" was called before \"$1\""
}
forget_calls() { : >"$state/calls"; }
calls_with() { grep -cF -- "$1" "$state/calls"; }

# run_tests [NAME...]: all tests of the program, or those named; fails where one fails or where
# there is none.
run_tests() {
    local tests=("$@") test failures=0
    if [ ${#tests[@]} -eq 0 ]; then
        while read -r _ _ test; do
            case $test in test_*) tests+=("$test") ;; esac
        done < <(declare -F)
    fi
    [ ${#tests[@]} -gt 0 ] || {
        printf 'no tests\n'
        exit 1
    }
    for test in "${tests[@]}"; do
        if (new_machine && "$test"); then
            printf 'ok      %s\n' "$test"
        else
            printf 'FAILED  %s\n' "$test"
            failures=$((failures + 1))
        fi
    done
    printf '%s tests, %s failed\n' "${#tests[@]}" "$failures"
    [ "$failures" -eq 0 ]
}

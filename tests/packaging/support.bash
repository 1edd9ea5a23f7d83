# shellcheck shell=bash
# Installs what was built, in folders of its own, and prints with it: for tests of the installation
# and of the Debian package.
#
# A test program is called as "NAME_test.sh [BUILD [PACKAGES [TEST...]]]": BUILD is a build folder
# (the release preset's without one), PACKAGES the folder in which the package is made or found, each
# TEST the name of one test. It sources this file and ends with the line run_tests.
#
# A test (tests/support/shell_tests.bash) begins in an empty folder $work.

here=$(CDPATH='' cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd) || exit
source_root=$(CDPATH='' cd -- "$here/../.." && pwd) || exit
build=$(readlink -f -- "${1:-$source_root/build/release}")
# shellcheck disable=SC2034 # for the test programs
packages=$(readlink -m -- "${2:-$build/tests/package}")
chosen_tests=("${@:3}")

[ -x "$build/bin/corvana-print" ] || {
    echo "$0: there is no program in $build" >&2
    exit 1
}

# The user nobody: whoever uses what root has installed.
readonly normal_user=65534

umask 022
# Debian keeps cupsfilter where only an administrator's path leads.
PATH=$PATH:/usr/sbin:/sbin
unset LANGUAGE LANG LC_MESSAGES DESTDIR
export LC_ALL=C.UTF-8

# shellcheck source=tests/support/shell_tests.bash
. "$source_root/tests/support/shell_tests.bash"

make_work() {
    work=$(mktemp -d "${TMPDIR:-/tmp}/corvana packaging.XXXXXX") || exit
    trap 'leave_work' EXIT
    # Open to the normal user.
    chmod 755 "$work"
    : >"$work/out"
    : >"$work/err"
    cd "$work" || exit
}
# What a test adds to be put away; it runs before the folder is removed.
put_away() { :; }
leave_work() {
    put_away
    cd / && rm -rf "$work"
}

# What goes in front of a command to be run where the program is installed.
enter=()

# as USER COMMAND...: runs it there as the user of that number, with nothing of the tester's own
# settings, in a home of its own, $work/home-USER.
as() {
    local user=$1 home=$work/home-$1 change=()
    shift
    mkdir -p "$home/run"
    if [ "$user" != "$(id -u)" ]; then
        chown -R "$user:$user" "$home"
        change=(setpriv "--reuid=$user" "--regid=$user" --clear-groups)
    fi
    chmod 700 "$home/run"
    # No desktop is asked.
    "${enter[@]}" "${change[@]}" env --ignore-environment --chdir="$home" PATH="$PATH" HOME="$home" \
        XDG_RUNTIME_DIR="$home/run" TMPDIR="$home" LC_ALL="$LC_ALL" \
        DBUS_SESSION_BUS_ADDRESS=disabled: DBUS_SYSTEM_BUS_ADDRESS=disabled: "$@" </dev/null
}
# users: those whom this tester can be.
users() {
    id -u
    [ "$(id -u)" -ne 0 ] || echo $normal_user
}

# expect_nothing TEXT OUTPUT: the output of some search is empty.
expect_nothing() { [ -z "$2" ] || fail "$1" "$2"; }

# expect_prints USER PREFIX: the program below PREFIX prints the sample document for a sample printer,
# with both panels, and says so in Japanese as well.
expect_prints() {
    local user=$1 prefix=$2 job
    job=(--no-dialog --demo --summary -d corvana-cl5 --output job.ps
        "$prefix/share/corvana-print/sample/welcome.pdf")
    as "$user" "$prefix/bin/corvana-print" "${job[@]}" >"$work/out" 2>"$work/err" ||
        fail "user $user: status $?, 0 was expected"
    # From the dialog, from the one panel, from the other one.
    expect_lines 'Paper Size: A4' 'Media Type: Plain Paper' 'Color Matching: Normal'
    # The panels note what they cannot find.
    expect_nothing "user $user: something is missing" "$(grep 'corvana\.' "$work/err")"
    grep -qaF 'CorvanaOption(QXMediaType=Plain)' "$work/home-$user/job.ps" ||
        fail "user $user: the printer is not told of the medium"

    as "$user" env LC_ALL=ja_JP.UTF-8 "$prefix/bin/corvana-print" "${job[@]}" \
        >"$work/out" 2>"$work/err" || fail "user $user, in Japanese: status $?, 0 was expected"
    expect_lines '用紙サイズ: A4' '用紙の種類: 普通紙（薄め）' '明るさ: 0'
}

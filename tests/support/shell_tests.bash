# shellcheck shell=bash
# shellcheck disable=SC2154 # $work and $chosen_tests are set by who sources this
# Tests in a shell: a test is a function whose name has a capital letter, and no other has one. Each
# runs in a shell of its own; the first expectation that fails ends it.
#
# Who sources this sets chosen_tests, the tests to run (none for all), and defines make_work, which
# makes the folder $work with the files out and err and goes to where a test begins. A test program
# ends with the line run_tests.

fail() {
    printf '    %s\n' "$@"
    printf '    -- standard output and error\n'
    sed 's/^/    | /' "$work/out" "$work/err"
    exit 1
}
# skip REASON: for a machine on which a test cannot be made; it is listed, and counted apart.
skip() {
    printf '    %s\n' "$1"
    exit 77
}
expect_equal() { [ "$1" = "$2" ] || fail "got      $1" "expected $2"; }
# expect_lines LINE...: each line on standard output.
expect_lines() {
    local line
    for line in "$@"; do
        grep -qxF -- "$line" "$work/out" || fail "not a line of the output: $line"
    done
}

# run_tests: the chosen tests or all; fails where one fails and where there is none; status 77 where
# all were skipped.
run_tests() {
    local tests=("${chosen_tests[@]}") test failures=0 skipped=0
    if [ ${#tests[@]} -eq 0 ]; then
        mapfile -t tests < <(declare -F | sed -n 's/^declare -f \([a-z]*[A-Z].*\)/\1/p')
    fi
    [ ${#tests[@]} -gt 0 ] || {
        echo 'no tests'
        exit 1
    }
    for test in "${tests[@]}"; do
        (make_work && "$test")
        case $? in
        0) echo "ok      $test" ;;
        77)
            echo "skipped $test"
            skipped=$((skipped + 1))
            ;;
        *)
            echo "FAILED  $test"
            failures=$((failures + 1))
            ;;
        esac
    done
    echo "${#tests[@]} tests, $failures failed, $skipped skipped"
    [ "$failures" -eq 0 ] || exit 1
    [ "$skipped" -lt ${#tests[@]} ] || exit 77
}

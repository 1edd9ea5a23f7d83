#!/usr/bin/env bash
# What ./test and .ci/run start, and what they return.

# shellcheck source=tests/scripts/sandbox.bash
. "$(dirname -- "${BASH_SOURCE[0]}")/sandbox.bash"

test_theReleaseIsTestedWhereNothingElseIsSaid() {
    start test
    expect_status 0
    expect_order 'cmake --build --preset release' 'ctest --preset release'
    expect_call "ctest in $checkout with 24 jobs"
}

test_aPresetIsBuiltAndTested() {
    start test asan
    expect_order 'cmake --build --preset asan' 'ctest --preset asan'
    expect_no_call release
}

test_argumentsReachCtest() {
    start test asan -R 'panel test' --verbose
    expect_call 'ctest --preset asan --no-tests=error -R panel test --verbose'
}

test_argumentsNeedNoPreset() {
    start test -L scripts
    expect_call 'ctest --preset release --no-tests=error -L scripts'
}

test_findingNoTestIsAnError() {
    start test
    expect_call '--no-tests=error'
    echo 8 >"$state/ctest-status"
    start test
    expect_status 8
}

test_anUnknownPresetIsRefusedBeforeAnythingIsFetched() {
    not_installed ninja-build
    start test relase
    expect_status 2
    expect_output 'There is no preset "relase"'
    expect_equal "$(cat "$state/calls")" ''
}

test_nothingIsTestedAfterAFailedBuild() {
    touch "$state/build-fails"
    start test
    expect_status 1
    expect_no_call 'ctest --preset'
}

test_theUsersOwnNumberOfTestJobsOverrules() {
    settings=(CTEST_PARALLEL_LEVEL=1)
    start test
    expect_call 'with 1 jobs'
}

test_whatPackagesAreMadeWithIsInstalledAsWell() {
    not_installed dpkg-dev
    start test
    expect_call '--no-remove dpkg-dev'
}

test_hostileInputNeedsItsOwnPackages() {
    not_installed clang
    start test
    expect_status 0
    expect_no_call 'apt-get'
    start test fuzz
    expect_call '--no-remove clang'
}

test_hostileInputIsTriedAndReportedAtLength() {
    mkdir -p "$checkout/fuzz"
    cat >"$checkout/fuzz/report" <<'END'
#!/usr/bin/env bash
printf 'report %s after %s\n' "$1" "$CORVANA_FUZZ_SECONDS" >>"$FAKE_STATE/calls"
END
    chmod +x "$checkout/fuzz/report"
    start test fuzz --long -R ppd
    expect_status 0
    expect_call 'cmake --build --preset fuzz --target fuzz_targets'
    expect_call 'ctest --preset fuzz --no-tests=error -R ppd'
    expect_call 'report build/fuzz/fuzz after 1200'
}

test_helpIsShownAtOnce() {
    not_installed ninja-build
    start test --help
    expect_status 0
    expect_output 'Usage: ./test'
    expect_equal "$(cat "$state/calls")" ''
}

test_integrationTestsTheReleaseAndTheSanitizers() {
    start .ci/run
    expect_status 0
    expect_order 'ctest --preset release' 'ctest --preset asan'
}

test_integrationInstallsWithoutAsking() {
    not_installed xvfb
    start_on_terminal n .ci/run
    expect_status 0
    expect_no_output 'Go on?'
    expect_call 'install --yes'
}

test_integrationGivesTheTestsNoInput() {
    start_on_terminal n test
    expect_call 'ctest has a terminal'
    forget_calls
    start_on_terminal n .ci/run
    expect_no_call 'ctest has a terminal'
}

test_integrationTellsTheTimeOfEachPart() {
    start .ci/run
    expect_output './test --yes           0 min'
    expect_output './test --yes asan      0 min'
}

test_integrationFailsWhereOnlyTheFirstPartFails() {
    # Fails for the release only: the second part runs all the same and passes.
    add_program ctest <<'END'
#!/usr/bin/env bash
printf 'ctest %s\n' "$*" >>"$FAKE_STATE/calls"
case $2 in release) exit 8 ;; *) exit 0 ;; esac
END
    start .ci/run
    expect_status 8
    expect_call 'ctest --preset asan'
}

test_integrationFailsWhereOnlyTheSecondPartFails() {
    add_program ctest <<'END'
#!/usr/bin/env bash
case $2 in asan) exit 8 ;; *) exit 0 ;; esac
END
    start .ci/run
    expect_status 8
}

# start_in_a_group SCRIPT: in a process group of its own, as a terminal starts it; an interrupt of
# the whole group does not reach this test.
start_in_a_group() {
    set -m
    (
        trap : INT
        start "$1"
        echo "$status" >"$state/status"
    ) &
    wait $!
    set +m
    status=$(cat "$state/status")
}

# Ctrl-C reaches everything that runs; what has something to put away first ends by itself.
test_anInterruptedIntegrationEndsAtOnce() {
    local program
    for program in ctest cmake; do
        add_program $program <<END
#!/usr/bin/env bash
printf '$program %s\n' "\$*" >>"\$FAKE_STATE/calls"
trap 'exit 8' INT
kill -INT 0
exit 0
END
        forget_calls
        start_in_a_group .ci/run
        expect_status 130
        expect_call "$program"
        expect_no_call asan
        expect_no_output 'exit status'
    done
}

test_integrationWorksFromAnyFolder() {
    cd "$machine/home" || exit
    start .ci/run
    expect_status 0
}

run_tests "$@"

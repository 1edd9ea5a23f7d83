#!/usr/bin/env bash
# When CMake configures and builds, with how many jobs, and what is said about it.

# shellcheck source=tests/scripts/sandbox.bash
. "$(dirname -- "${BASH_SOURCE[0]}")/sandbox.bash"

# jobs_of_a_build: how many jobs the next build is given.
jobs_of_a_build() {
    touch "$state/work-pending"
    forget_calls
    start run
    sed -n 's/^cmake --build --preset release --target product --parallel //p' "$state/calls"
}

test_theFirstStartConfiguresBuildsAndStarts() {
    start run
    expect_status 0
    expect_order 'cmake --preset release' 'cmake --build --preset release'
    expect_order 'cmake --build --preset release' 'corvana-print in'
}

test_aSecondStartSaysNothingAndBuildsNothing() {
    start run
    forget_calls
    start run report.pdf
    expect_status 0
    expect_no_call 'cmake --preset'
    expect_no_call 'cmake --build --preset'
    expect_equal "$(cat "$state/err")" ''
}

test_changedSourcesAreBuiltWithoutConfiguring() {
    start run
    forget_calls
    touch "$state/work-pending"
    start run
    expect_call 'cmake --build --preset release'
    expect_no_call 'cmake --preset'
}

test_changedPresetsAreConfigured() {
    start run
    forget_calls
    touch -d '1 minute' "$checkout/CMakePresets.json"
    start run
    expect_call 'cmake --preset release'
    expect_no_call '--fresh'
}

test_aCheckoutThatWasMovedIsConfiguredAfresh() {
    start run
    forget_calls
    mv "$checkout" "$machine/another place"
    checkout="$machine/another place"
    start run
    expect_status 0
    expect_call 'cmake --preset release --fresh'
}

test_aFailedConfigurationShowsItsOutputAndStops() {
    touch "$state/configure-fails"
    start run
    expect_status 1
    expect_output 'CMake Error: no compiler'
    expect_no_call 'cmake --build --preset'
    expect_no_call 'corvana-print in'
}

test_aFailedConfigurationIsRepeatedAtTheNextStart() {
    start run
    touch -d '1 minute' "$checkout/CMakePresets.json"
    touch "$state/configure-fails"
    start run
    expect_status 1
    rm "$state/configure-fails"
    forget_calls
    start run
    expect_status 0
    expect_call 'cmake --preset release'
}

test_aConfigurationThatFailsAfterAnInstallationIsRepeated() {
    start run
    not_installed qt6-wayland
    touch "$state/configure-fails"
    start run
    expect_status 1
    rm "$state/configure-fails"
    forget_calls
    start run
    expect_status 0
    expect_call 'cmake --preset release'
}

test_aWarningOfTheConfigurationIsShown() {
    touch "$state/configure-warns"
    start run
    expect_status 0
    expect_output 'something is odd'
}

test_aSmoothConfigurationIsNotShown() {
    start run
    expect_no_output 'compiler identification'
}

test_aFailedBuildShowsItsOutputAndStops() {
    touch "$state/build-fails"
    start run
    expect_status 1
    expect_output 'expected a semicolon'
    expect_output 'The build failed'
    expect_no_call 'corvana-print in'
}

test_jobsAreLimitedByCores() {
    echo 3 >"$state/cores"
    free_memory_is_mb 16384
    expect_equal "$(jobs_of_a_build)" 3
}

test_jobsAreLimitedToOneForEachGigabyteOfMemory() {
    echo 8 >"$state/cores"
    free_memory_is_mb 3000
    expect_equal "$(jobs_of_a_build)" 2
}

test_thereIsAlwaysOneJob() {
    free_memory_is_mb 300
    expect_equal "$(jobs_of_a_build)" 1
}

test_theMemoryLimitOfAContainerCounts() {
    mkdir -p "$machine/root/sys/fs/cgroup"
    echo $((2 * 1024 * 1024 * 1024)) >"$machine/root/sys/fs/cgroup/memory.max"
    expect_equal "$(jobs_of_a_build)" 2
}

test_aContainerWithoutLimitHasAllMemory() {
    mkdir -p "$machine/root/sys/fs/cgroup"
    echo max >"$machine/root/sys/fs/cgroup/memory.max"
    expect_equal "$(jobs_of_a_build)" 4
}

test_theUsersOwnNumberOfJobsOverrules() {
    settings=(CMAKE_BUILD_PARALLEL_LEVEL=7)
    expect_equal "$(jobs_of_a_build)" 7
}

test_twoBuildsAtOnceWaitForEachOther() {
    start run
    forget_calls
    touch "$state/work-pending"
    # The other build: a process that has inherited the locked descriptor. The lock is free when
    # the last copy of that is closed, which is when the process ends.
    exec 7>>"$checkout/build/release.lock"
    flock 7
    (
        sleep 1
        printf 'the other build ends\n' >>"$state/calls"
    ) &
    exec 7>&-
    start run
    expect_status 0
    expect_output 'Waiting for another build'
    expect_order 'the other build ends' 'cmake --build --preset'
}

test_theProgramDoesNotHoldTheLockOfTheBuild() {
    start run
    expect_call 'corvana-print in'
    expect_no_call 'holds the lock'
}

test_twoPresetsHaveFoldersOfTheirOwn() {
    start test
    start test asan
    expect_status 0
    expect_call 'cmake --preset release'
    expect_call 'cmake --preset asan'
}

run_tests "$@"

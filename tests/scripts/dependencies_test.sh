#!/usr/bin/env bash
# How missing packages are installed on Debian and its derivatives.

# shellcheck source=tests/scripts/sandbox.bash
. "$(dirname -- "${BASH_SOURCE[0]}")/sandbox.bash"

test_aptIsNotCalledWhenNothingIsMissing() {
    start run
    expect_status 0
    expect_no_call apt-get
    expect_no_call apt-cache
    expect_call 'corvana-print in'
}

test_whatIsMissingIsInstalledAndNothingElse() {
    not_installed ninja-build ghostscript
    start run
    expect_status 0
    expect_call 'install --yes --no-install-recommends --no-remove ninja-build ghostscript'
    expect_call 'corvana-print in'
}

test_aRemovedPackageWhoseSettingsStayedCountsAsMissing() {
    # The fake lists such a package with the state "config-files".
    not_installed cups-filters
    start run
    expect_call 'install --yes --no-install-recommends --no-remove cups-filters'
}

test_emptyPackageListsAreUpdatedFirst() {
    not_installed ninja-build
    lists_are_empty
    start run
    expect_status 0
    expect_order 'update' 'install --yes'
}

test_packageListsThatAreThereAreNotUpdated() {
    not_installed ninja-build
    start run
    expect_no_call update
}

test_listsWithoutANewPackageAreUpdatedOnce() {
    not_installed ninja-build
    cp "$state/offered" "$state/offered-after-update"
    not_offered ninja-build
    start run
    expect_status 0
    expect_order 'update' 'install --yes'
    expect_equal "$(calls_with ' update')" 1
}

test_listsThatNameReplacedArchivesAreUpdatedAndTheInstallationRepeated() {
    not_installed ninja-build
    touch "$state/stale"
    start run
    expect_status 0
    expect_call update
    expect_equal "$(calls_with 'install --yes')" 2
}

test_aFailedUpdateOfEmptyListsEndsWithStatusThree() {
    not_installed ninja-build
    lists_are_empty
    touch "$state/offline"
    start run
    expect_status 3
    expect_output 'could not be updated'
    expect_no_call 'cmake --'
}

test_sizeAndExactCommandAreSaidBefore() {
    not_installed ninja-build
    start run
    expect_output 'Need to get 38.6 MB'
    expect_output '123 MB of additional disk space'
    expect_output 'env DEBIAN_FRONTEND=noninteractive LC_ALL=C apt-get -q'
    expect_output '-o DPkg::Lock::Timeout=300'
}

test_nothingIsAskedWithoutATerminal() {
    not_installed ninja-build
    start run
    expect_status 0
    expect_no_output 'Go on?'
}

test_aTerminalIsAskedAndYesInstalls() {
    not_installed ninja-build
    start_on_terminal y run
    expect_output 'Go on? [Y/n]'
    expect_status 0
    expect_call 'install --yes'
}

test_aTerminalIsAskedAndNoStops() {
    not_installed ninja-build
    start_on_terminal n run
    expect_status 3
    expect_no_call 'install --yes'
    expect_no_call 'cmake --'
    expect_output 'Nothing was installed.'
    expect_output 'Without these packages'
}

test_anInterruptAtTheQuestionEndsEverything() {
    not_installed ninja-build
    start_on_terminal $'\003' run
    expect_status 130
    expect_no_call 'install --yes'
    expect_no_call 'cmake --'
}

test_yesAsAnOptionDoesNotAskATerminal() {
    not_installed ninja-build
    start_on_terminal n run --yes
    expect_status 0
    expect_no_output 'Go on?'
    expect_call 'install --yes'
}

test_continuousIntegrationIsNotAsked() {
    not_installed ninja-build
    settings=(CI=true)
    start_on_terminal n run
    expect_status 0
    expect_no_output 'Go on?'
}

test_aptNeverReadsTheTerminal() {
    not_installed ninja-build
    start_on_terminal y run
    expect_call 'install --yes'
    expect_no_call 'apt-get has a terminal'
}

test_withoutRightsTheExactCommandIsPrintedAndTheStatusIsThree() {
    not_installed ninja-build cups
    user_is_nobody_special
    without sudo
    start run
    expect_status 3
    expect_output '  apt-get install --no-install-recommends ninja-build cups'
    expect_no_call apt-get
    expect_no_call 'cmake --'
}

test_withoutSudoATerminalIsOfNoUse() {
    not_installed ninja-build
    user_is_nobody_special
    without sudo
    start_on_terminal y run
    expect_status 3
    expect_output '  apt-get install --no-install-recommends ninja-build'
    expect_no_output 'Go on?'
}

test_withoutRightsTheCommandUpdatesEmptyLists() {
    not_installed ninja-build
    lists_are_empty
    user_is_nobody_special
    without sudo
    start test
    expect_status 3
    expect_output '  apt-get update && apt-get install --no-install-recommends ninja-build'
}

test_sudoIsUsedWhereItAsksNothing() {
    not_installed ninja-build
    user_is_nobody_special
    start run
    expect_status 0
    expect_call 'sudo -n env DEBIAN_FRONTEND=noninteractive'
    expect_output 'sudo -n env DEBIAN_FRONTEND=noninteractive LC_ALL=C apt-get'
}

test_sudoThatWantsAPasswordIsNotUsedWithoutATerminal() {
    not_installed ninja-build
    user_is_nobody_special
    touch "$state/sudo-wants-password"
    start run --yes
    expect_status 3
    expect_output '  apt-get install --no-install-recommends ninja-build'
    expect_no_call 'install --yes'
}

test_sudoMayAskForThePasswordOnATerminal() {
    not_installed ninja-build
    user_is_nobody_special
    touch "$state/sudo-wants-password"
    start_on_terminal y run
    expect_status 0
    expect_call 'sudo env DEBIAN_FRONTEND=noninteractive'
    expect_no_call 'sudo -n'
}

test_aLockOfAnotherPackageManagerIsWaitedFor() {
    not_installed ninja-build
    echo 3 >"$state/lock-held"
    start run
    expect_status 0
    expect_output 'Another package manager is at work'
    expect_equal "$(calls_with 'sleep 5')" 3
}

test_aLockThatIsNeverFreedIsGivenUp() {
    not_installed ninja-build
    echo 1000 >"$state/lock-held"
    start run
    expect_status 3
    expect_output 'Could not get lock'
    # 300 seconds, as long as apt-get itself is told to wait for the lock of dpkg.
    expect_equal "$(calls_with 'sleep 5')" 60
}

test_packagesThatCannotBeCombinedAreReported() {
    not_installed ninja-build
    touch "$state/unsolvable"
    start run
    expect_status 3
    expect_output 'you have held broken packages'
    expect_no_call 'install --yes'
}

test_anInstallationThatChangesNothingIsReported() {
    not_installed ninja-build
    # A name without a version of its own, and nobody provides it.
    offered_as ninja-build '(none)'
    start run
    expect_status 3
    expect_output 'still these are missing'
}

test_whatPackagesAreMadeWithIsNotNeededByTheProgram() {
    not_installed dpkg-dev po4a
    start run
    expect_status 0
    expect_no_call apt-get
    expect_call '--target product'
    expect_no_call '--target installation'
}

test_testPackagesAreOnlyNeededByTheTests() {
    not_installed xvfb xdotool
    start run
    expect_no_call apt-get
    start test
    expect_call 'install --yes --no-install-recommends --no-remove xvfb xdotool'
}

test_anInstallationIsFollowedByConfiguringAnew() {
    start run
    forget_calls
    not_installed qt6-wayland
    start run
    expect_order 'install --yes' 'cmake --preset release'
}

run_tests "$@"

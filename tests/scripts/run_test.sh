#!/usr/bin/env bash
# What ./run starts, with which arguments, and from where.

# shellcheck source=tests/scripts/sandbox.bash
. "$(dirname -- "${BASH_SOURCE[0]}")/sandbox.bash"

test_withoutArgumentsTheSampleIsOpenedWithTheSamplePrinters() {
    start run
    expect_call "[--bundle-root] [$checkout/build/release/plugins] [--demo] [$checkout/resources/sample/welcome.pdf]"
    expect_no_call '--no-dialog'
}

test_withoutADisplayTheSampleIsPrintedAndSummarised() {
    touch "$state/no-display"
    start run
    expect_status 0
    expect_call "[--no-dialog] [--summary] [--demo] [$checkout/resources/sample/welcome.pdf]"
    expect_output 'No window can be shown here'
    expect_output 'output of the program'
}

test_aDisplayThatIsNamedButDeadIsNoDisplay() {
    settings=(DISPLAY=:99 WAYLAND_DISPLAY=wayland-0)
    touch "$state/no-display"
    start run
    expect_call '[--no-dialog]'
}

test_aDisplayIsFoundWithoutAVariableThatNamesIt() {
    start run
    expect_no_call '[--no-dialog]'
}

test_theUsersOwnArgumentsArePassedAsTheyAreWithoutADisplay() {
    touch "$state/no-display"
    echo 1 >"$state/program-status"
    start run report.pdf
    expect_status 1
    expect_call 'plugins] [report.pdf]'
    expect_no_call '--no-dialog'
    expect_no_output 'No window'
}

test_argumentsKeepTheirBlanksAndSigns() {
    start run '-o' 'media type=A4  big' '' '*' "it's"
    expect_call "plugins] [-o] [media type=A4  big] [] [*] [it's]"
}

test_relativeFilesAreThoseOfTheUsersFolder() {
    mkdir "$machine/letters to read"
    cd "$machine/letters to read" || exit
    start run report.pdf
    expect_call "corvana-print in $machine/letters to read:"
    expect_call '[report.pdf]'
}

test_theScriptWorksThroughALink() {
    ln -s "$checkout/run" "$machine/bin/print-it"
    in_machine print-it >"$state/out" 2>"$state/err" </dev/null
    status=$?
    expect_status 0
    expect_call "[$checkout/build/release/plugins]"
}

test_theStatusOfTheProgramIsReturned() {
    echo 42 >"$state/program-status"
    start run report.pdf
    expect_status 42
}

test_onlyTheProgramWritesToTheOutput() {
    not_installed ninja-build
    start run report.pdf
    expect_equal "$(cat "$state/out")" 'output of the program'
}

test_cupsfilterIsFoundWhereUsersHaveNoPath() {
    printf '#!/bin/sh\n' >"$machine/root/usr/sbin/cupsfilter"
    chmod +x "$machine/root/usr/sbin/cupsfilter"
    start run
    expect_call 'corvana-print finds cupsfilter'
}

test_optionsOfTheScriptEndWithTwoDashes() {
    start run --yes -- --yes --help
    expect_call 'plugins] [--yes] [--help]'
}

test_yesAloneStillOpensTheSample() {
    start run --yes
    expect_call '[--demo]'
}

test_optionsOfTheProgramNeedNoTwoDashes() {
    start run --list --yes
    expect_call 'plugins] [--list] [--yes]'
}

test_helpIsShownAtOnce() {
    not_installed ninja-build
    start run --help
    expect_status 0
    expect_output 'Usage: ./run'
    expect_equal "$(cat "$state/calls")" ''
}

run_tests "$@"

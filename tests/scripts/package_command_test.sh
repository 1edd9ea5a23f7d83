#!/usr/bin/env bash
# What ./package builds, what it hands to make-package, and what it returns.

# shellcheck source=tests/scripts/sandbox.bash
. "$(dirname -- "${BASH_SOURCE[0]}")/sandbox.bash"

# add_packer: a make-package that only notes its call. State: packing-fails.
add_packer() {
    mkdir -p "$checkout/packaging/debian"
    cat >"$checkout/packaging/debian/make-package" <<'END'
#!/usr/bin/env bash
printf 'make-package' >>"$FAKE_STATE/calls"
printf ' [%s]' "$@" >>"$FAKE_STATE/calls"
printf '\n' >>"$FAKE_STATE/calls"
[ ! -e "$FAKE_STATE/packing-fails" ] || exit 25
echo "$2/corvana-print.deb"
END
    chmod +x "$checkout/packaging/debian/make-package"
}
# package ARGUMENT...: starts ./package.
package() {
    add_packer
    start package "$@"
}

test_theReleaseIsBuiltAndPacked() {
    package
    expect_status 0
    expect_order 'cmake --build --preset release --target installation' 'make-package'
    expect_call "make-package [$checkout/build/release] [$checkout/build/package]"
}

test_onlyThePathOfThePackageIsWrittenToTheOutput() {
    not_installed dpkg-dev
    package
    expect_equal "$(cat "$state/out")" "$checkout/build/package/corvana-print.deb"
}

test_whatPackagesAreMadeWithIsInstalled() {
    not_installed dpkg-dev po4a
    package
    expect_call '--no-remove dpkg-dev po4a'
}

test_whatOnlyPrintersAndTestsNeedIsNotInstalled() {
    not_installed cups lintian xvfb
    package
    expect_status 0
    expect_no_call 'apt-get'
}

test_nothingIsPackedAfterAFailedBuild() {
    touch "$state/build-fails"
    package
    expect_status 1
    expect_no_call 'make-package'
}

test_aFailureOfThePackingIsReported() {
    touch "$state/packing-fails"
    package
    expect_status 1
    expect_output 'The package could not be made.'
}

test_missingPackagesThatNobodyCanInstallAreReported() {
    not_installed dpkg-dev
    user_is_nobody_special
    without sudo
    package
    expect_status 3
    expect_no_call 'make-package'
}

test_yesInstallsWithoutAsking() {
    not_installed dpkg-dev
    add_packer
    start_on_terminal n package --yes
    expect_status 0
    expect_no_output 'Go on?'
    expect_call '--no-remove dpkg-dev'
}

test_anythingElseIsNotUnderstood() {
    package release
    expect_status 2
    expect_output 'Not understood: release'
    expect_equal "$(cat "$state/calls")" ''
}

test_helpIsShownAtOnce() {
    not_installed dpkg-dev
    package --help
    expect_status 0
    expect_output 'Usage: ./package'
    expect_equal "$(cat "$state/calls")" ''
}

run_tests "$@"

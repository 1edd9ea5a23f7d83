#!/usr/bin/env bash
# The list of packages itself, and the form of all shell scripts of the project.

# shellcheck source=tests/scripts/sandbox.bash
. "$(dirname -- "${BASH_SOURCE[0]}")/sandbox.bash"

list=$source_root/packaging/dependencies/packages.list

# rows: the rows of the list without comments.
rows() {
    sed -E '/^(#|$)/d' "$list"
}

test_everyRowIsComplete() {
    local package minimum for probe purpose count=0
    while read -r package minimum for probe purpose; do
        count=$((count + 1))
        [[ $package =~ ^[a-z0-9][a-z0-9.+-]+$ ]] || fail "no package name: $package"
        [[ $minimum =~ ^(-|[0-9]+(\.[0-9]+)*)$ ]] || fail "$package: no version: $minimum"
        [[ $for =~ ^(build|run|deb|test|fuzz)$ ]] || fail "$package: needed for what? $for"
        [[ $probe =~ ^(command|qt|pkgconfig|qtplugin|filter|font|qttexts|clangrt|service|typelib|python):[^[:space:]]+$ ]] || fail "$package: no probe: $probe"
        [ -n "$purpose" ] || fail "$package: without purpose"
    done < <(rows)
    [ "$count" -gt 0 ] || fail 'the list is empty'
}

test_noPackageIsListedTwice() {
    expect_equal "$(rows | sed 's/ .*//' | sort | uniq -d)" ''
}

test_everyRowCanBeMissingAndIsThenInstalled() {
    local package minimum for rest
    while read -r package minimum for rest; do
        cp "$state/offered" "$state/installed"
        not_installed "$package"
        forget_calls
        # A program of that name would be found by its probe.
        if [ "$package" = cmake ]; then mv "$machine/bin/cmake" "$state/cmake"; fi
        if [ "$for" = fuzz ]; then start test fuzz; else start test; fi
        expect_call "--no-remove $package"
        if [ "$package" = cmake ]; then mv "$state/cmake" "$machine/bin/cmake"; fi
    done < <(rows)
    : "$minimum" "$rest"
}

test_everyProbeFindsWhatThePackageBrought() {
    # On the machine that runs the tests everything is installed, so each probe can be tried.
    local package minimum for probe_of_row purpose version
    # shellcheck source=packaging/dependencies/console.bash
    . "$source_root/packaging/dependencies/console.bash"
    # shellcheck source=packaging/dependencies/requirements.bash
    . "$source_root/packaging/dependencies/requirements.bash"
    PATH=$PATH:/usr/sbin
    while read -r package minimum for probe_of_row purpose; do
        # Not everybody who runs the tests looks for hostile input.
        if [ "$for" = fuzz ] && ! type -P clang++ >/dev/null; then continue; fi
        version=$(probe "$probe_of_row" "$minimum") || fail "$package: $probe_of_row finds nothing"
        version_at_least "$version" "$minimum" || fail "$package: $probe_of_row finds $version"
    done < <(rows)
    : "$for" "$purpose"
}

test_theMinimumOfCmakeIsThatOfTheProject() {
    local minimum
    minimum=$(rows | sed -nE 's/^cmake +([0-9.]+) .*/\1/p')
    grep -qF "cmake_minimum_required(VERSION $minimum)" "$source_root/CMakeLists.txt" ||
        fail "CMakeLists.txt asks for another version than $minimum"
}

test_theMinimumOfQtIsThatOfTheProject() {
    local minimum
    minimum=$(rows | sed -nE 's/^qt6-base-dev +([0-9.]+) .*/\1/p')
    grep -qF "find_package(Qt6 $minimum REQUIRED" "$source_root/CMakeLists.txt" ||
        fail "CMakeLists.txt asks for another version than $minimum"
}

test_theScriptsAreCleanForShellcheck() {
    cd "$source_root" || exit
    shellcheck -x -a run test package .ci/run tests/scripts/*_test.sh resources/pictures/make-pictures \
        resources/pictures/make-reference-pictures tests/resources/reference_pictures_test.sh \
        packaging/debian/make-package packaging/man/make-pages tests/packaging/*_test.sh >"$state/out" 2>&1 ||
        fail 'shellcheck found something'
    shellcheck -s bash packaging/completion/corvana-print.bash >"$state/out" 2>&1 ||
        fail 'shellcheck found something'
    # Quoted dollar signs are what the fakes compare arguments with.
    shellcheck -e SC2016 tests/scripts/fakes/* >"$state/out" 2>&1 || fail 'shellcheck found something'
}

run_tests "$@"

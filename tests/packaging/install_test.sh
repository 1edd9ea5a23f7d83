#!/usr/bin/env bash
# "cmake --install": what it installs, where, for whom, and that it can be moved.

# shellcheck source=tests/packaging/support.bash
. "$(dirname -- "${BASH_SOURCE[0]}")/support.bash"

# install_to PREFIX: with $work/image in front of it.
install_to() {
    DESTDIR=$work/image cmake --install "$build" --prefix "$1" >"$work/out" 2>"$work/err" ||
        fail 'the installation failed'
}

nothingIsInstalledOutsideThePrefix() {
    install_to /opt/corvana
    expect_equal "$(cd "$work/image" && find . -maxdepth 2 -mindepth 2)" ./opt/corvana
    expect_equal "$(ls "$work/image/opt/corvana")" "$(printf '%s\n' bin lib share)"
}

theProgramPrintsFromWhereverItWasMovedTo() {
    local prefix=$work/moved\ to user
    install_to /opt/corvana
    mv "$work/image/opt/corvana" "$prefix"
    for user in $(users); do
        expect_prints "$user" "$prefix"
    done
}

theProgramPrintsThroughALinkToIt() {
    install_to /opt/corvana
    mkdir "$work/bin" "$work/share"
    ln -s "$work/image/opt/corvana/bin/corvana-print" "$work/bin"
    ln -s "$work/image/opt/corvana/share/corvana-print" "$work/share"
    expect_prints "$(id -u)" "$work"
}

theLibraryOfTheInstallationIsLoadedRatherThanThatOfTheBuild() {
    local prefix=$work/image/usr binary library
    install_to /usr
    for binary in "$prefix/bin/corvana-print" \
        "$prefix"/lib/corvana-print/plugins/*.bundle/module/*.so; do
        library=$(ldd "$binary" | sed -n 's/.*libcorvana-platform.* => \(.*\) (.*/\1/p')
        expect_equal "$(readlink -f -- "$library")" \
            "$(readlink -f -- "$prefix"/lib/corvana-print/libcorvana-platform.so.0)"
    done
}

# A resource that is found in the build folder only would be missed by users alone.
whateverIsFoundBesideTheProgramInTheBuildIsInstalled() {
    local prefix=$work/image/usr missing
    install_to /usr
    # Panels look for their help beside the folder of their bundle.
    missing=$(
        exec 2>&1
        diff -r "$build/share/corvana-print" "$prefix/share/corvana-print"
        diff -r "$build/Help" "$prefix/lib/corvana-print/Help"
        diff -r --exclude='*.so' "$build/plugins" "$prefix/lib/corvana-print/plugins"
    )
    # There are no samples in the build folder, which has the ones of the sources.
    missing=$(grep -vx "Only in $prefix/share/corvana-print: sample" <<<"$missing")
    expect_nothing 'not installed, or left over in the build folder:' "$missing"
}

# The program refuses a bundle that others can write to.
nothingCanBeWrittenByOthersWhateverTheMask() {
    (umask 000 && install_to /usr) || exit
    expect_nothing 'others can write to:' "$(find "$work/image" -mindepth 1 ! -type l -perm /go+w)"
}

theListOfWhatWasInstalledIsComplete() {
    local file
    install_to /opt/corvana
    while IFS= read -r file || [ -n "$file" ]; do
        rm "$work/image$file"
    done <"$build/install_manifest.txt"
    expect_nothing 'not in install_manifest.txt:' "$(find "$work/image" ! -type d)"
}

run_tests

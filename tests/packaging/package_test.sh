#!/usr/bin/env bash
# The Debian package as a file: what it contains, what it asks for, what the rules of Debian say. It is
# made anew first, of what is built already, and left for the test that installs it.

# shellcheck source=tests/packaging/support.bash
. "$(dirname -- "${BASH_SOURCE[0]}")/support.bash"

for tool in lintian dpkg-shlibdeps; do
    command -v "$tool" >/dev/null || {
        echo "$tool is needed and missing"
        exit 77
    }
done
rm -rf "$packages"
package=$("$source_root/packaging/debian/make-package" "$build" "$packages") || exit
list=$source_root/packaging/dependencies/packages.list

field() { dpkg-deb --field "$package" "$1"; }

lintianFindsNeitherErrorsNorWarnings() {
    # What it says about being root is no finding.
    lintian --fail-on error,warning --no-tag-display-limit "$package" >"$work/out" 2>"$work/err" ||
        fail 'lintian found something'
}

theFileIsNamedAfterPackageVersionAndArchitecture() {
    expect_equal "$(basename "$package")" \
        "corvana-print_$(field Version)_$(dpkg --print-architecture).deb"
}

theVersionIsThatOfTheProgram() {
    expect_equal "corvana-print $(field Version)" "$("$build/bin/corvana-print" --version)"
}

anotherVersionThanTheChangelogSaysIsRefused() {
    mkdir build
    ln -s "$build"/* build
    rm build/CMakeCache.txt
    sed 's/^\(CMAKE_PROJECT_VERSION:.*=\).*/\199.0.0/' "$build/CMakeCache.txt" >build/CMakeCache.txt
    ! "$source_root/packaging/debian/make-package" build packages >"$work/out" 2>"$work/err" ||
        fail 'a package was made'
    grep -q 'that of the project is 99.0.0' "$work/err" || fail 'the reason was not said'
    expect_nothing 'a package was made' "$(find packages -type f)"
}

# Whatever ./run installs for the program is needed by users as well.
everythingTheProgramNeedsToRunIsAskedFor() {
    local name relations count=0
    relations=" $(field Depends), $(field Recommends) "
    while read -r name _; do
        [[ $relations =~ [\ ,]"$name"[\ ,] ]] || fail "$name is neither needed nor recommended"
        count=$((count + 1))
    done < <(awk '!/^#/ && $3 == "run"' "$list")
    [ $count -gt 0 ] || fail 'nothing was compared'
}

theLibrariesAreAskedForInTheVersionsThatWereBuiltWith() {
    local library
    for library in libqt6core6 libqt6widgets6 libqt6uitools6 libcups2 libgnutls30 libpoppler-qt6-3 libhwy1; do
        [[ $(field Depends) == *"$library"*" (>= "* ]] || fail "$library is not asked for" "$(field Depends)"
    done
}

noScriptRunsWhenItIsInstalledOrRemoved() {
    expect_equal "$(dpkg-deb --ctrl-tarfile "$package" | tar -t | sort | tr '\n' ' ')" \
        './ ./control ./md5sums '
}

everythingBelongsToRootAndCanBeWrittenByNobodyElse() {
    local others
    others=$(dpkg-deb --contents "$package" | grep -vE '^(-rw-r--r--|-rwxr-xr-x|drwxr-xr-x|lrwxrwxrwx) root/root ')
    expect_nothing 'unexpected owners or modes:' "$others"
}

theChecksumsHold() {
    dpkg-deb --raw-extract "$package" root
    (cd root && md5sum --check --strict --quiet DEBIAN/md5sums) >"$work/out" 2>&1 || fail 'changed files'
    expect_equal "$(cd root && find usr -type f | sort)" "$(cut -c 35- root/DEBIAN/md5sums | sort)"
}

# extract_binaries: unpacks the package to root/ and says in binaries what of it is machine code.
extract_binaries() {
    dpkg-deb --extract "$package" root
    binaries=(root/usr/bin/corvana-print root/usr/lib/corvana-print/libcorvana-platform.so.*.*
        root/usr/lib/corvana-print/libcorvana-{forms,pdf-pictures,pixel-kernel}.so
        root/usr/lib/corvana-print/corvana-page-renderer
        root/usr/lib/corvana-print/plugins/*/module/*.so)
}

theBinariesAreStrippedAndKnowNothingOfTheBuildFolder() {
    local binary path count=0
    extract_binaries
    for binary in "${binaries[@]}"; do
        count=$((count + 1))
        ! readelf --sections --wide "$binary" | grep -qE '\.debug_info|\.symtab' ||
            fail "$binary is not stripped"
        ! grep -qaF "$source_root" "$binary" || fail "$binary names the folder $source_root"
        path=$(readelf --dynamic --wide "$binary" | sed -n 's/.*\(RPATH\|RUNPATH\).*\[\(.*\)\]/\2/p')
        # Only what needs the library beside it has a path at all.
        case $binary in
        */libcorvana-* | */corvana-page-renderer) expect_equal "$path" '' ;;
        *) [[ $path =~ ^\$ORIGIN/[^:]+$ ]] || fail "$binary searches: $path" ;;
        esac
        # Nothing that could be redirected is left writable after it was loaded.
        readelf --dynamic --wide "$binary" | grep -q BIND_NOW || fail "$binary binds lazily"
        readelf --program-headers --wide "$binary" | grep -q GNU_RELRO || fail "$binary keeps its tables writable"
    done
    expect_equal $count 7
}

theBinariesEndAtAnOverrun() {
    local binary
    extract_binaries
    for binary in "${binaries[@]}"; do
        readelf --dyn-syms --wide "$binary" | grep -q ' __stack_chk_fail@' ||
            fail "$binary does not guard its stack"
    done
}

# only_needed_by LIBRARY FILE...: of what is machine code, these files need the library, and no others do.
only_needed_by() {
    local library=$1 binary needs expected
    shift
    for binary in "${binaries[@]}"; do
        needs=no expected=no
        readelf --dynamic --wide "$binary" | grep -q "NEEDED.*\[$library" && needs=yes
        [[ " $* " == *" ${binary##*/} "* ]] && expected=yes
        expect_equal "$binary needs $library: $needs" "$binary needs $library: $expected"
    done
}

# The first window waits for all that the program needs from its start. Poppler brings thirty libraries along,
# for pictures that hardly any panel has, and reads what strangers wrote: pages of documents are drawn by a
# process of its own, which does without Qt. Highway measures the clock of the processor when it is loaded.
whatTheFirstWindowDoesWithoutIsLoadedLater() {
    extract_binaries
    only_needed_by libpoppler libcorvana-pdf-pictures.so corvana-page-renderer
    only_needed_by libhwy libcorvana-pixel-kernel.so
    only_needed_by libQt6UiTools libcorvana-forms.so
}

theProgramThatDrawsPagesKnowsNoQt() {
    dpkg-deb --extract "$package" root
    ! readelf --dynamic --wide root/usr/lib/corvana-print/corvana-page-renderer | grep -q 'NEEDED.*Qt' ||
        fail 'it needs Qt'
    dpkg-deb --field "$package" Depends | grep -q 'libseccomp2' || fail 'no libseccomp2'
    dpkg-deb --field "$package" Depends | grep -q 'libturbojpeg0' || fail 'no libturbojpeg0'
}

theManualAndTheChangelogAreCompressed() {
    dpkg-deb --extract "$package" root
    zcat root/usr/share/man/man1/corvana-print.1.gz | grep -q '^\.TH ' || fail 'no manual'
    find root/usr/share/man -type f ! -name '*.gz' >"$work/out"
    expect_nothing 'not compressed:' "$(cat "$work/out")"
    zcat root/usr/share/doc/corvana-print/changelog.gz | grep -q '^corvana-print (' ||
        fail 'no changelog'
}

theManualIsInEveryLanguageOfTheProgram() {
    local language count=0
    dpkg-deb --extract "$package" root
    for language in root/usr/share/corvana-print/translations/*.qm; do
        language=$(basename "$language" .qm) count=$((count + 1))
        zcat "root/usr/share/man/${language#corvana-print_}"/man{1/corvana-print.1,5/corvana-print-policy.5}.gz >"$work/out" ||
            fail "no manual for $language"
        [ "$(grep -c '^\.TH ' "$work/out")" -eq 2 ] || fail "no manual for $language"
    done
    [ $count -ge 9 ] || fail 'languages were not found'
}

theSameBuildGivesTheSamePackage() {
    # Under other circumstances.
    (umask 077 && TZ=Asia/Tokyo LC_ALL=C "$source_root/packaging/debian/make-package" "$build" again \
        >"$work/out" 2>"$work/err") || fail 'no package was made'
    cmp "$package" again/*.deb >"$work/out" 2>&1 || fail 'the packages differ'
}

run_tests

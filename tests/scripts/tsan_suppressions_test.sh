#!/usr/bin/env bash
# What ThreadSanitizer is told to overlook: other people's libraries, never code of the project.

# shellcheck source=tests/scripts/sandbox.bash
. "$(dirname -- "${BASH_SOURCE[0]}")/sandbox.bash"

suppressions=$source_root/tests/tsan.supp

test_onlyLibrariesOfOthersAreOverlooked() {
    local line count=0
    while IFS= read -r line; do
        count=$((count + 1))
        [[ $line =~ ^called_from_lib:lib(Qt6[A-Za-z]+|glib-2\.0)\.so\.[0-9]+$ ]] || fail "may hide a mistake: $line"
    done < <(grep -vE '^(#|$)' "$suppressions")
    [ "$count" -gt 0 ] || fail 'nothing is overlooked; then the file is not needed'
}

test_everyLineSaysWhy() {
    local line before='' said=no
    while IFS= read -r line; do
        if [[ $line == \#* ]]; then
            said=yes
        elif [ -n "$line" ]; then
            [ "$said" = yes ] || fail "without a reason: $line"
            said=no
        fi
        before=$line
    done <"$suppressions"
    [ -n "$before" ] || fail 'ends with an empty line'
}

run_tests "$@"

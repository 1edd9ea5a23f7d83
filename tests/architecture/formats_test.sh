#!/usr/bin/env bash
# Texts are put into others all at once: in arg(one).arg(other) the second looks for its place in the
# first as well, which may be the name of a file and hold a "%2".
#
#   formats_test.sh         checks the product, after the check has proved itself on planted lines
#   formats_test.sh FOLDER  checks the tree below FOLDER

set -u
export LC_ALL=C
project=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../.." && pwd)

# Prints "FILE:LINE" of each chain. Strings and nested parentheses may stand within an argument.
chains() {
    find "$@" \( -name '*.cpp' -o -name '*.h' \) -print0 | sort -z | xargs -0 perl -0777 -ne '
        my $part = qr/"(?:[^"\\]|\\.)*"|\x27(?:[^\x27\\]|\\.)*\x27/s;
        my $in; $in = qr/(?:$part|[^()"\x27]|\((??{$in})\))*/s;
        while (/\.arg\($in\)\s*(?=\.arg\()/g) {
            my $line = 1 + (substr($_, 0, $-[0]) =~ tr/\n//);
            print "$ARGV:$line\n";
        }'
}

fail() {
    printf '%s\n' "$*" >&2
    exit 1
}

if [ $# -eq 0 ]; then
    planted=$(mktemp -d)
    trap 'rm -rf "$planted"' EXIT
    cat >"$planted/a.cpp" <<'CODE'
auto a = text.arg(one, other);
auto b = text.arg(one).arg(other);
auto c = tr("%1 (%2)")
             .arg(f(g(1), ")"))
             .arg(h);
auto d = text.arg(one.arg(two), other).toUpper().arg(x);
CODE
    [ "$(chains "$planted" | sed 's/.*://' | tr '\n' ' ')" = '2 4 ' ] ||
        fail "the check itself is wrong: $(chains "$planted")"
    set -- "$project"/{dialog,panel,platform,plugin,printsetting,colorsetting,renderer}
fi

found=$(chains "$@")
[ -z "$found" ] || fail "give all arguments at once, arg(one, other):
$found"

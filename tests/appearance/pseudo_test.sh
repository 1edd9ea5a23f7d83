#!/usr/bin/env bash
# The dialog in a language that does not exist: with texts that are 40 per cent longer than the English
# ones, or in letters that are read from the right to the left. Its pages are whole there, too.
#
#   pseudo_test.sh KIND APPEARANCE_TEST BUNDLE LRELEASE [FUNCTION...]
#
# KIND is one of pseudo_texts.py. Needs python3.

set -eu

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
kind=$1 program=$2 bundle=$3 lrelease=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

python3 -B "$root/tests/appearance/pseudo_texts.py" "$kind" "$root" "$bundle" "$work"
find "$work" -name '*.ts' | while IFS= read -r file; do
    "$lrelease" -silent "$file" -qm "${file%.ts}.qm"
done
export CORVANA_TEST_BUNDLE=$work/${bundle##*/} CORVANA_TEST_SHARE=$work/share
"$program" "${@:5}"

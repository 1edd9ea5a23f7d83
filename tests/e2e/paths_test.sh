#!/usr/bin/env bash
# Files and folders with blanks and Japanese letters in their names.

# shellcheck source=tests/e2e/support.bash
. "$(dirname "${BASH_SOURCE[0]}")/support.bash"

everyFileMayHaveBlanksAndJapaneseLettersInItsName() {
    local place="$work/新しい フォルダー (1)"
    mkdir -p "$place/plug ins"
    cp -R "$bundle_root/$bundle" "$place/plug ins"
    cp "$ppd" "$place/プリンター 1.ppd"
    cp "$sample" "$place/報告書 'draft' \"2\".pdf"
    bundles="$place/plug ins"
    printer=(--ppd "$place/プリンター 1.ppd")
    document="$place/報告書 'draft' \"2\".pdf"
    output="$place/印刷 結果.ps"
    print -o QXMediaType=Thick -o QXGray=ON
    expect_printed
    expect_code QXMediaType=Thick QXGray=ON
    expect_lines 'Media Type: Thick Paper'
    grep -qF "$output" "$work/out" || fail 'the place of the result is not told'
    expect_equal "$(find "$place" -name '*.part')" ''
}

# A shell or a script knows its current folder only.
relativeNamesAreThoseOfTheCurrentFolder() {
    mkdir "印刷 物"
    cp "$sample" "印刷 物/手紙.pdf"
    cp "$ppd" p.ppd
    ln -s "$bundle_root" plug-ins
    bundles=plug-ins
    run --ppd p.ppd --output "印刷 物/手紙.ps" "印刷 物/手紙.pdf"
    expect_status 0
    [ -s "印刷 物/手紙.ps" ] || fail 'nothing was printed'
    output=手紙.ps
    run --ppd p.ppd "印刷 物/手紙.pdf"
    expect_printed
}

# Names that a careless program would take for options or patterns.
oddNamesPrint() {
    local name
    for name in '-n.pdf' '*.pdf' 'a%20b%1.pdf' 'a;b&c.pdf' 'tab	.pdf'; do
        cp "$sample" "$work/$name"
        document=$work/$name
        output=$folder/$name.ps
        print
        expect_printed
        rm "$output"
    done
    expect_equal "$(ls -A "$folder")" ''
}

# The printer of the samples takes PostScript.
aNameThatSaysPdfIsNotBelieved() {
    output=$folder/letter.PDF
    print
    expect_printed
    grep -qF "Printed to $output, which holds data for the printer and is no PDF document" \
        "$work/out" || fail 'nobody says that it is no PDF'
    output=$folder/letter.ps
    print
    expect_printed
    ! grep -qF 'no PDF document' "$work/out" || fail 'nobody takes it for a PDF'
    changed_ppd 's#application/vnd.cups-postscript application/postscript 0 -#application/vnd.cups-pdf application/pdf 0 -#'
    output=$folder/real.pdf
    print
    expect_printed
    expect_equal "$(head -c 5 "$output")" '%PDF-'
    ! grep -qF 'no PDF document' "$work/out" || fail 'a PDF is called none'
}

run_tests

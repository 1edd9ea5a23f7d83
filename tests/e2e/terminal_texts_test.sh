#!/usr/bin/env bash
# Texts of PPDs and names of documents on standard output and standard error: a terminal must not
# obey what is in them. Each control character, line break and change of direction is written as its
# number; every other character stays as it is.

# shellcheck source=tests/e2e/support.bash
. "$(dirname "${BASH_SOURCE[0]}")/support.bash"

# What the texts of a PPD say in hexadecimal digits: a sequence that clears the screen, one that is
# a single character, a line break, and a change of direction.
attack='<1B>[2J<C2><9B>31m<0A>corvana-print: lie<E2><80><AE>'
attack_shown='<U+001B>[2J<U+009B>31m<U+000A>corvana-print: lie<U+202E>'

# expect_harmless: neither output has a byte sequence that a terminal obeys, nor a line that a text
# has begun.
expect_harmless() {
    local file
    for file in "$work/out" "$work/err"; do
        ! LC_ALL=C grep -aqP '[\x00-\x08\x0b-\x1f\x7f]|\xc2[\x80-\x9f]|\xe2\x80[\x8e\x8f\xa8-\xae]|\xe2\x81[\xa6-\xa9]' \
            "$file" || fail "a character that a terminal obeys is in $file"
        ! grep -q '^corvana-print: lie' "$file" || fail "a text has begun a line in $file"
    done
}
# expect_shown: the texts are there all the same.
expect_shown() {
    grep -qF -- "$attack_shown" "$work/$1" || fail "the text is not in \$work/$1"
}
attacking_ppd() {
    local colon='<3A>'
    local text=${attack/:/$colon}
    changed_ppd "s|ISOLatin1|UTF-8|
        s|/Media Type:|/${text}Media Type:|
        s|^\\(\\*QXMediaType Glossy/\\)|\\1${text}|
        s|^\\(\\*Duplex DuplexNoTumble/\\)|\\1${text}|
        s|^\\*NickName: \".*\"|*NickName: \"$(printf '\033[2J\302\23331mName\342\200\256')\"|
        s|^\\*ModelName: \".*\"|*ModelName: \"$(printf '\033[2JModel')\"|"
}

aSummaryShowsThemAsNumbers() {
    attacking_ppd
    print -o QXMediaType=Glossy
    expect_printed
    expect_harmless
    expect_shown out
    expect_lines "${attack_shown}Media Type: ${attack_shown}Glossy Paper"
}

aRefusalShowsThemAsNumbers() {
    attacking_ppd
    print -o QXMediaType=Glossy -o Duplex=DuplexNoTumble
    expect_status 1
    expect_harmless
}

theListOfPrintersHasALineForEach() {
    attacking_ppd
    run "${printer[@]}" --list-printers
    expect_harmless
    grep -qF '<U+001B>[2J<U+009B>31mName<U+202E>' "$work/out" || fail 'the name is not there'
    # The printer of the PPD is a line of its own, and nothing else is.
    expect_equal "$(wc -l <"$work/out")" 1
}

namesOfDocumentsAndPrintersAreQuotedThatWay() {
    document=$work/$'\e[2J\u202emissing.pdf'
    print
    expect_status 1
    expect_harmless
    expect_said '<U+001B>[2J<U+202E>missing.pdf'
    document=$sample
    run -d $'\e[2Jnone' "$document"
    expect_status 1
    expect_harmless
    run $'--\e[2Junknown'
    expect_status 2
    expect_harmless
    expect_said '<U+001B>[2Junknown'
}

# Qt complains of each font that it tries such a text with.
fontsThatLackAScriptAreNotComplainedOf() {
    document=$work/devanagari.txt
    printf 'नमस्ते दुनिया\n' >"$document"
    print
    ! grep -q OpenType "$work/err" || fail "$(grep -c OpenType "$work/err") lines about fonts"
}

whatIsLoggedIsForATerminalToo() {
    attacking_ppd
    bundles=$work/$'bundles\e[2J'
    cp -r "$bundle_root" "$bundles"
    chmod 777 "$bundles/$bundle"
    print
    expect_status 1
    expect_harmless
    expect_said 'bundles<U+001B>[2J'
}

lettersOfEveryScriptStay() {
    changed_ppd 's|^\(\*QXMediaType Thick/\)Thick Paper|\1厚紙 Büro مكتب|; s|ISOLatin1|UTF-8|'
    print -o QXMediaType=Thick
    expect_printed
    expect_lines 'Media Type: 厚紙 Büro مكتب'
}

run_tests

#!/usr/bin/env bash
# The manual in other languages than English: that it says all of what the English one says, names what
# that names, and can be read.

# shellcheck source=tests/packaging/support.bash
. "$(dirname -- "${BASH_SOURCE[0]}")/support.bash"

for tool in po4a-updatepo msgcmp man groff; do
    command -v "$tool" >/dev/null || {
        echo "$tool is needed and missing"
        exit 77
    }
done
manual=$source_root/packaging/man
pages=$build/packaging/man

# languages: those of the program, one a line.
languages() {
    find "$source_root/resources/translations" -name '*.ts' | sed 's/.*corvana-print_\(.*\)\.ts/\1/' |
        LC_ALL=C sort >"$work/languages"
    [ "$(wc -l <"$work/languages")" -ge 9 ] || fail 'the languages were not found'
    cat "$work/languages"
}
names() { printf '%s\n' man1/corvana-print.1 man5/corvana-print-policy.5; }

# template FOLDER: what there is to be translated in the English pages of a folder, in all.pot.
template() {
    rm -f all.pot
    po4a-updatepo -f man -M UTF-8 -m "$1/corvana-print.1" -m "$1/corvana-print-policy.5" -p all.pot \
        >"$work/out" 2>"$work/err" || fail 'the English pages cannot be read'
    [ "$(grep -c '^msgid ' all.pot)" -gt 200 ] || fail 'the English pages are short'
}

everySentenceOfTheManualIsTranslated() {
    local language
    template "$manual"
    for language in $(languages); do
        msgcmp "$manual/po/$language.po" all.pot >"$work/out" 2>"$work/err" ||
            fail "$language: the manual says something else in English"
        msgfmt --check --output-file=/dev/null "$manual/po/$language.po" >"$work/out" 2>"$work/err" ||
            fail "$language: the translations have errors"
    done
    expect_equal "$(sed -n 's/^\[po4a_langs\] //p' "$manual/po4a.cfg" | tr ' ' '\n')" "$(languages)"
}

# The test above would see it.
aSentenceThatChangesInEnglishIsMissing() {
    local change
    for change in 's/^it prints from a terminal/it writes from a terminal/' '/^\.SH NOTES/i .PP\nOne more.'; do
        rm -rf changed
        mkdir changed
        cp "$manual"/*.[15] changed
        sed -i "$change" changed/corvana-print.1
        ! cmp -s changed/corvana-print.1 "$manual/corvana-print.1" || fail "nothing was changed by: $change"
        template changed
        ! msgcmp "$manual/po/de.po" all.pot >"$work/out" 2>&1 || fail "not noticed: $change"
    done
}

everyPageCanBeReadWithoutAWarning() {
    local language name
    for language in $(languages); do
        for name in $(names); do
            groff -man -Kutf8 -Tutf8 -ww "$pages/$language/$name" >page 2>"$work/err" ||
                fail "$language/$name cannot be read"
            expect_nothing "$language/$name: troff warns" "$(cat "$work/err")"
            [ "$(wc -l <page)" -gt 60 ] || fail "$language/$name is short"
        done
    done
}

# Lines as a terminal of 80 columns shows them. One of the examples is longer in English, too.
noLineIsLongerThanTheTerminal() {
    local language
    for language in $(languages); do
        LC_ALL=C.UTF-8 MANWIDTH=80 man --local-file "$pages/$language/man1/corvana-print.1" 2>"$work/err" |
            grep -vF 'lpadmin -p office' >page
        [ "$(wc -l <page)" -gt 400 ] || fail "$language: the page is short"
        [ "$(wc --max-line-length <page)" -le 80 ] || fail "$language: a line has $(wc -L <page) columns" \
            "$(awk '{ print length, $0 }' page | sort -rn | head -1)"
    done
}

# words PAGE: the options, values of options, variables and files that a page names, and how often.
words() {
    MANWIDTH=500 man --local-file "$1" 2>/dev/null | grep -oP -- \
        '(?<![\p{Latin}\p{N}_/.~-])(--?[A-Za-z][A-Za-z-]*|[A-Za-z-]+=[A-Za-z0-9-]*|[A-Z]+_[A-Z_]+|[~\/]\/?[a-z.][a-z\/*.-]+[a-z])' |
        LC_ALL=C sort | uniq -c
}

everyPageNamesWhatTheEnglishOneNames() {
    local language name
    for name in $(names); do
        words "$manual/${name#*/}" >expected
        [ "$(wc -l <expected)" -ge 3 ] || fail "nothing was found in $name"
        for language in $(languages); do
            words "$pages/$language/$name" >found
            diff expected found >"$work/out" 2>&1 || fail "$language/$name names something else"
        done
    done
}

everyPageHasTheParagraphsOfTheEnglishOne() {
    local language name
    for name in $(names); do
        grep -oE '^\.(TH|SH|SS|TP|PP|IP|EX|RS|nf)' "$manual/${name#*/}" >expected
        for language in $(languages); do
            grep -oE '^\.(TH|SH|SS|TP|PP|IP|EX|RS|nf)' "$pages/$language/$name" >found
            diff expected found >"$work/out" 2>&1 || fail "$language/$name has other paragraphs"
        done
    done
}

# manual_in LANGUAGE [PAGE]: what a user of that language gets.
manual_in() {
    MANPATH=$pages MANWIDTH=80 man -L "$1" "${2-corvana-print}" 2>"$work/err" | tee "$work/out"
}

whoeverReadsTheManualGetsTheirLanguage() {
    manual_in de | grep -qF 'ohne Fenster' || fail 'no German'
    manual_in fr_CA | grep -qF 'sans fenêtre' || fail 'no French in Canada'
    manual_in pt_BR | grep -qF 'janela' || fail 'no Portuguese'
    manual_in zh_TW | grep -qF '列印' || fail 'no traditional Chinese'
    manual_in zh_CN corvana-print-policy | grep -qF '管理员' || fail 'no simplified Chinese'
    manual_in ja corvana-print-policy | grep -qF '管理者' || fail 'no Japanese'
}

run_tests

#!/usr/bin/env bash
# What comes beside the program: the manual, the completion of the command line, the desktop entry.

# shellcheck source=tests/packaging/support.bash
. "$(dirname -- "${BASH_SOURCE[0]}")/support.bash"

manual=$source_root/packaging/man/corvana-print.1
completion=$source_root/packaging/completion/corvana-print.bash
desktop=$source_root/packaging/desktop/corvana-print.desktop
icon=$source_root/packaging/desktop/corvana-print.svg

# options: those that the program lists, one a line.
options() {
    "$build/bin/corvana-print" --help | grep -E '^  -' | grep -oE -- '(^|[ ,])--?[A-Za-z][a-z-]*' |
        tr -d ' ,' >"$work/options"
    [ "$(wc -l <"$work/options")" -gt 10 ] || fail 'the options were not found' "$(cat "$work/options")"
    cat "$work/options"
}

theManualExplainsEveryOption() {
    local option
    man --local-file "$manual" >"$work/manual" 2>"$work/err" || fail 'the manual cannot be read'
    for option in $(options); do
        grep -qE -- "^ {7}(-[A-Za-z], )?$option( |\$)|^ {7}$option," "$work/manual" ||
            fail "the manual has no paragraph on $option"
    done
}

# What the package cups does with the file: the drivers that it lists are searched for the expression,
# then for the name that a queue's PPD has.
queuesOfOurPpdsAreRenewedWithAnUpgradeAndNoOthers() {
    local ppd name DRIVER_REGEXP='' GENNICKNAME_REGEXP=''
    # shellcheck source=packaging/cups/corvana-print.ppd-updater
    . "$source_root/packaging/cups/corvana-print.ppd-updater"
    for ppd in "$source_root"/resources/ppd/*.ppd; do
        name=$(sed -n 's/^\*NickName: "\(.*\)"/\1/p' "$ppd")
        printf 'corvana/%s %s\n' "$(basename "$ppd")" "$name"
    done >"$work/drivers"
    [ "$(wc -l <"$work/drivers")" -gt 2 ] || fail 'no PPDs were found'
    expect_equal "$(grep -cE "$DRIVER_REGEXP" "$work/drivers")" "$(wc -l <"$work/drivers")"
    expect_equal "$(printf 'everywhere IPP Everywhere\ndrv:///sample.drv/corvana/x.ppd Sample\n' |
        grep -cE "$DRIVER_REGEXP")" 0
    expect_nothing 'two PPDs have one name' "$(cut -d ' ' -f 2- "$work/drivers" | sort | uniq -d)"
}

theManualHasNoErrors() {
    LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings --encoding=UTF-8 --local-file "$manual" \
        >/dev/null 2>"$work/err" || fail 'the manual cannot be read'
    expect_nothing 'troff warns' "$(cat "$work/err")"
}

theManualNamesTheEnvironmentThatTheProgramReads() {
    local name
    for name in $(grep -rhoE '"CORVANA_PRINT_[A-Z_]+"' "$source_root/dialog" "$source_root/platform" \
        --include='*.cpp' | tr -d '"' | sort -u); do
        grep -qF "$name" "$manual" || fail "the manual does not name $name"
    done
}

# complete_line WORD...: what the completion offers for the last of the words, one a line. The shell
# itself splits words at "=", which is a word of its own here, too.
complete_line() {
    (
        # shellcheck source=packaging/completion/corvana-print.bash
        . "$completion"
        COMP_WORDS=("$@")
        COMP_CWORD=$(($# - 1))
        # Only readline has it.
        compopt() { :; }
        previous=
        [ $# -lt 2 ] || previous=${COMP_WORDS[COMP_CWORD - 1]}
        _corvana_print "$1" "${COMP_WORDS[COMP_CWORD]}" "$previous"
        printf '%s\n' "${COMPREPLY[@]}" | LC_ALL=C sort
    )
}
# offered WORD...: the same in one line.
offered() { complete_line "$@" | tr '\n' ' '; }

theCompletionOffersEveryOption() {
    local option
    complete_line corvana-print - >offers
    for option in $(options); do
        grep -qxF -- "$option" offers || fail "not offered: $option"
    done
}

optionsAreCompletedByTheirBeginning() {
    expect_equal "$(offered corvana-print --no-d)" '--no-dialog '
}

policiesAreOffered() {
    expect_equal "$(offered corvana-print --on-alert '')" 'hold print refuse '
    expect_equal "$(offered corvana-print --on-alert r)" 'refuse '
    expect_equal "$(offered corvana-print --on-alert =)" 'hold print refuse '
    expect_equal "$(offered corvana-print --on-alert = h)" 'hold '
}

everyOfferedPolicyIsUnderstood() {
    local policy
    for policy in $(complete_line corvana-print --on-alert ''); do
        "$build/bin/corvana-print" --demo --on-alert "$policy" --list-printers >"$work/out" 2>&1 ||
            fail "not understood: --on-alert $policy"
    done
}

printersAreThoseOfTheProgram() {
    expect_equal "$(offered "$build/bin/corvana-print" --demo -d corvana-cl)" \
        'corvana-cl2 corvana-cl3 corvana-cl4 corvana-cl5 '
    expect_equal "$(offered "$build/bin/corvana-print" --demo --printer = corvana-m)" \
        'corvana-mf4 corvana-ml3 '
}

# add_program: a program that notes how it was asked for its printers.
add_program() {
    mkdir bin
    cat >bin/corvana-print
    chmod +x bin/corvana-print
}

printersAreAskedOfTheServerOfTheLine() {
    add_program <<END
#!/bin/sh
printf '%s ' "\$@" >>"$work/asked"
printf 'office one\tOn the first floor\n'
END
    expect_equal "$(complete_line "$work/bin/corvana-print" --server there --ppd = my.ppd -d '')" \
        'office one'
    expect_equal "$(cat asked)" '--server there --ppd my.ppd --list-printers '
}

aServerThatDoesNotAnswerHoldsUpTheTerminalForTwoSecondsOnly() {
    local start=$SECONDS
    add_program <<'END'
#!/bin/sh
exec sleep 60
END
    expect_equal "$(offered "$work/bin/corvana-print" -d '')" ' '
    [ $((SECONDS - start)) -lt 20 ] || fail 'the completion waited'
}

documentsAreOfferedByTheirKind() {
    mkdir 'a folder'
    touch 'my letter.pdf' PHOTO.JPG notes.txt program.cpp corvana.ppd
    expect_equal "$(complete_line corvana-print '')" \
        "$(printf '%s\n' PHOTO.JPG 'a folder' 'my letter.pdf' notes.txt)"
    expect_equal "$(complete_line corvana-print --ppd c)" corvana.ppd
    expect_equal "$(complete_line corvana-print --output p)" program.cpp
    expect_equal "$(complete_line corvana-print --bundle-root a)" 'a folder'
}

# refused_as_unknown OPTION: whether the program has never heard of it.
refused_as_unknown() {
    ! "$build/bin/corvana-print" --bundle-root "$build/plugins" --demo --no-dialog --summary -o "$1" >"$work/out" 2>&1 &&
        grep -q 'has no such option' "$work/out"
}

# attributes: the names of the job attributes that -o takes, one a line: as a refusal lists them, and
# what only a queue knows or is another spelling.
attributes() {
    "$build/bin/corvana-print" --bundle-root "$build/plugins" --demo --no-dialog --summary \
        -o nonsense=1 2>&1 | sed -n 's/.*Job attributes: \(.*\)\./\1/p' | tr -d ' ' | tr ',' '\n' \
        >"$work/attributes"
    [ "$(wc -l <"$work/attributes")" -gt 30 ] || fail 'the job attributes were not found'
    cat "$work/attributes"
    printf '%s\n' raw landscape
}

theManualNamesEveryAttributeOfAJob() {
    local name
    sed -n '/^\.SH PRINTER AND JOB OPTIONS/,/^\.SH EXIT STATUS/s/^\.B[RI]* //p' "$manual" |
        sed 's/\\-/-/g' | tr -s ' "(),.:;' '\n' >"$work/named"
    for name in $(attributes); do
        grep -qxF -- "$name" "$work/named" || fail "the manual does not name $name"
    done
}

theReadmeNamesEveryAttributeOfAJob() {
    local name
    for name in $(attributes); do
        grep -qF -- "\`$name\`" "$source_root/README.md" || fail "the README does not name $name"
    done
}

# everyShellOffersTheSame has the others.
theCompletionOffersEveryAttributeOfAJob() {
    local name
    complete_line corvana-print -o '' >"$work/offers"
    for name in $(attributes); do
        grep -qxF -- "$name=" "$work/offers" || fail "not offered: $name"
    done
}

keywordsOfJobsAreOffered() {
    local keyword
    expect_equal "$(offered corvana-print -o sid)" 'sides-by-hand= sides= '
    expect_equal "$(offered corvana-print --option page-s)" 'page-set= '
    refused_as_unknown nonsense=1 || fail 'an unknown option is not told from others' "$(cat out)"
    for keyword in $(complete_line corvana-print -o '' | grep -vxE 'raw=|sides-by-hand='); do
        ! refused_as_unknown "${keyword}1" || ! refused_as_unknown "${keyword}true" || fail "offered, and not known: $keyword"
    done
}

valuesOfKeywordsAreOffered() {
    local keyword value
    expect_equal "$(offered corvana-print -o sides = two)" \
        'two-sided-long-edge two-sided-short-edge '
    expect_equal "$(offered corvana-print -o page-set =)" 'all even odd '
    expect_equal "$(offered corvana-print --option page-set =)" 'all even odd '
    # A sample printer has no filters to go past, and turns its sheets over itself.
    for keyword in $(complete_line corvana-print -o '' | grep -vxE 'raw=|sides-by-hand='); do
        for value in $(complete_line corvana-print -o "${keyword%=}" = ''); do
            "$build/bin/corvana-print" --bundle-root "$build/plugins" --demo --no-dialog \
                --summary -o "$keyword$value" >"$work/out" 2>&1 || fail "not taken: $keyword$value" "$(cat "$work/out")"
        done
    done
}

everyShellOffersTheSame() {
    local shell word file
    for shell in zsh fish; do
        file=$source_root/packaging/completion/corvana-print.fish
        [ $shell = fish ] || file=$source_root/packaging/completion/_corvana-print
        for word in $(options); do
            case $shell:$word in
            fish:--*) grep -qE -- " -l ${word#--}( |\$)" "$file" ;;
            fish:*) grep -qE -- " -s ${word#-}( |\$)" "$file" ;;
            *) grep -qE -- "[{',)*]${word}[]+=,[}]" "$file" ;;
            esac || fail "not offered in $shell: $word"
        done
        for word in $(complete_line corvana-print -o ''); do
            grep -qE -- "(^|[ *'])${word%=}([ =]|\$)" "$file" || fail "not offered in $shell: $word"
        done
        command -v $shell >/dev/null || continue
        $shell -n "$file" 2>"$work/err" || fail "not understood by $shell" "$(cat "$work/err")"
    done
}

everyExitStatusIsInTheManual() {
    local status
    "$build/bin/corvana-print" --help | sed -nE 's/^  ([0-9]+)  +.*/\1/p' >"$work/statuses"
    [ "$(wc -l <"$work/statuses")" -ge 5 ] || fail 'the exit statuses were not found'
    while read -r status; do
        grep -qx "\.B $status" "$manual" || fail "the manual has no paragraph on $status"
    done <"$work/statuses"
}

valuesThatOnlyTheUserKnowsAreLeftAlone() {
    touch 3.pdf
    for option in -n -t --copies --title -P -q --wait --password-fd; do
        expect_equal "$(offered corvana-print $option '')" ' '
    done
}

theDesktopEntryFollowsTheStandard() {
    command -v desktop-file-validate >/dev/null || skip 'desktop-file-validate is missing.'
    desktop-file-validate "$desktop" >"$work/out" 2>&1 || fail 'the desktop entry is wrong'
    expect_nothing 'hints of the standard' "$(cat "$work/out")"
}

theActionsOfFileManagersAreForTheFilesThatTheProgramPrints() {
    local action type count=0
    for action in "${desktop%.desktop}".{servicemenu.desktop,action.desktop,nemo_action}; do
        for type in $(sed -nE 's/^Mime[Tt]ypes?=//p' "$action" | tr ';' ' '); do
            grep -qF "\"$type\"" "$source_root/dialog/job/Document.cpp" ||
                fail "not printed: $type"
            count=$((count + 1))
        done
        grep -qF 'Exec=corvana-print %F' "$action" || fail "$action starts something else"
    done
    expect_equal "$count" 15
}

# default_of TYPE: what opens a file of a type where no other program is installed.
default_of() {
    env -i LC_ALL=C.UTF-8 PATH="$PATH" HOME="$work/home" XDG_DATA_DIRS="$work/share" XDG_DATA_HOME="$work/none" \
        XDG_CONFIG_DIRS="$work/none" XDG_CONFIG_HOME="$work/none" gio mime "$1" 2>&1
}

nothingIsOpenedByPrintingIt() {
    command -v gio >/dev/null || skip 'gio is missing.'
    local type
    mkdir -p share/applications home
    sed 's/^TryExec=.*/TryExec=true/; s/^Exec=corvana-print/Exec=true/' "$desktop" \
        >share/applications/corvana-print.desktop
    # What update-desktop-database would write.
    { echo '[MIME Cache]'; sed -n 's/^MimeType=//p' share/applications/corvana-print.desktop |
        tr ';' '\n' | sed -n 's/..*/&=corvana-print.desktop;/p'; } \
        >share/applications/mimeinfo.cache
    for type in application/pdf text/plain image/png image/jpeg application/postscript; do
        [[ $(default_of "$type" | head -n 1) == "No default applications for "* ]] ||
            fail "there is a default for $type" "$(default_of "$type")"
    done
    # The check sees an entry that names its types.
    echo 'text/plain=corvana-print.desktop;' >>share/applications/mimeinfo.cache
    default_of text/plain | grep -q corvana-print || fail 'gio reads other entries'
}

theDesktopEntryIsTranslated() {
    local key language
    for key in Name GenericName Comment Keywords; do
        for language in ja zh_CN de fr es it pt_BR ko zh_TW; do
            grep -qE "^$key\[$language\]=.+" "$desktop" || fail "no $key in $language"
        done
    done
}

theIconOfTheDesktopEntryCanBeDrawn() {
    command -v rsvg-convert >/dev/null || skip 'rsvg-convert is missing.'
    expect_equal "$(sed -n 's/^Icon=//p' "$desktop")" "$(basename "$icon" .svg)"
    rsvg-convert --width 48 --output icon.png "$icon" 2>"$work/err" || fail 'the icon cannot be drawn'
    # More than one colour on a clear ground.
    [ "$(convert icon.png -format '%k' info:)" -gt 16 ] || fail 'the icon is empty'
}

run_tests

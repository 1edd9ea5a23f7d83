#!/usr/bin/env bash
# Documents, PPDs, outputs and arguments that cannot be used: each is told on standard error in
# words that help, nothing is printed, and what was printed earlier stays.
#
# Exit status: 1 when printing is refused or fails, 2 when the command line is not understood.

# shellcheck source=tests/e2e/support.bash
. "$(dirname "${BASH_SOURCE[0]}")/support.bash"

# as_somebody_without_rights: whoever may write anywhere runs the program as somebody who may not.
as_somebody_without_rights() {
    [ "$(id -u)" -eq 0 ] || return 0
    chmod 755 "$work" "$folder"
    chmod 777 "$work/home"
    local somebody=(setpriv --reuid=65534 --regid=65534 --clear-groups)
    environment+=("${somebody[@]}")
    "${somebody[@]}" "$program" --version >/dev/null 2>&1 ||
        skip "other users cannot start $program"
}

# Documents

aDocumentThatDoesNotExistIsNamed() {
    document=$work/missing.pdf
    expect_refusal "$document" 'no such file' --
}

aFolderIsNoDocument() {
    document=$work
    expect_refusal "$document" folder --
}

anEmptyDocumentIsRefused() {
    document=$work/empty.pdf
    : >"$document"
    expect_refusal "$document" empty --
}

# A web server's error page, saved under the name of the document that was wanted.
aDocumentThatIsNotWhatItsNameSaysIsRefused() {
    document=$work/report.pdf
    cp "$source_root/tests/data/page.png" "$document"
    expect_refusal "$document" PDF PNG --
    echo '<html><body>404</body></html>' >"$document"
    expect_refusal "$document" PDF text --
}

aDocumentThatNoFilterKnowsIsRefused() {
    document=$work/program.bin
    printf '\177ELF\002\001\001\000' >"$document"
    expect_refusal "$document" 'PDF, PostScript, text, PNG or JPEG' --
}

aDocumentThatCannotBeReadIsRefused() {
    document=$work/secret.pdf
    cp "$sample" "$document"
    chmod 000 "$document"
    as_somebody_without_rights
    expect_refusal "$document" 'cannot be read' --
}

aTruncatedPdfIsNotPrinted() {
    document=$work/truncated.pdf
    head -c 3000 "$sample" >"$document"
    expect_refusal 'is damaged at byte 3,000' 'None of its pages can be printed' --
}

everyKindOfDocumentPrints() {
    local kind
    for kind in txt ps png jpg; do
        document=$source_root/tests/data/page.$kind
        rm -f "$output"
        print -o QXMediaType=Thick
        expect_printed
        expect_code QXMediaType=Thick
    done
}

# PPDs

aBrokenPpdIsToldWithItsLine() {
    # A keyword line without its asterisk.
    sed '50s/^\*//' "$ppd" >"$work/broken.ppd"
    printer=(--ppd "$work/broken.ppd")
    expect_refusal "$work/broken.ppd:50:" asterisk --
}

aFileThatIsNoPpdIsRefused() {
    printer=(--ppd "$source_root/tests/data/page.txt")
    expect_refusal "$source_root/tests/data/page.txt:1:" --
}

aMissingPpdIsNamed() {
    printer=(--ppd "$work/missing.ppd")
    expect_refusal "$work/missing.ppd" 'No such file' --
    printer=(--ppd "$work")
    expect_refusal "$work" directory --
}

withoutAnyPrinterTheWayToOneIsTold() {
    printer=()
    expect_refusal --ppd --demo --
}

anUnknownPrinterIsRefusedWithTheKnownOnes() {
    printer=(--demo -d laserwriter)
    expect_refusal laserwriter corvana-cl5 --
    printer=(--demo -d corvana-cl5)
    print
    expect_printed
}

# Options

anUnknownOptionIsRefusedWithTheKnownOnes() {
    expect_refusal Glitter=ON 'no such option' QXMediaType number-up -- -o Glitter=ON
    expect_refusal Glitter=true -- -o Glitter
}

anUnknownChoiceIsRefusedWithTheKnownOnes() {
    expect_refusal QXMediaType=Silk 'Plain, Thin, Thick' -- -o QXMediaType=Silk
    expect_refusal QXMediaType=Thic 'Plain, Thin, Thick' -- -o QXMediaType=Thic
    expect_refusal QXSkipBlank=true 'OFF, ON' -- -o QXSkipBlank
}

# Everything at once, so that nobody has to try again and again.
everyBadOptionIsToldAtOnce() {
    expect_refusal Glitter=ON QXMediaType=Silk QXSleepTime=Custom.100 -- \
        -o 'Glitter=ON QXResolution=1200dpi QXMediaType=Silk' -o QXSleepTime=Custom.100
}

choicesThatExcludeEachOtherAreRefusedByName() {
    expect_refusal QXMediaType=Glossy Duplex=DuplexNoTumble combined -- \
        -o QXMediaType=Glossy -o Duplex=DuplexNoTumble
    expect_refusal PageSize=EnvDL QXInputSlot=Tray2 combined -- -o 'PageSize=EnvDL QXInputSlot=Tray2'
    # Against a default of the PPD as well.
    changed_ppd 's/^\*DefaultQXInputSlot: .*/*DefaultQXInputSlot: Tray2/'
    expect_refusal PageSize=EnvDL QXInputSlot=Tray2 combined -- -o PageSize=EnvDL
}

# Outputs

theOutputsFolderMustExist() {
    output=$folder/missing/job.ps
    print
    expect_status 1
    expect_said "$output" 'No such file or directory'
    expect_equal "$(ls -A "$folder")" ''
}

aFolderIsNoOutput() {
    mkdir "$work/folder"
    output=$work/folder
    print
    expect_status 1
    expect_said "$output" folder
    expect_equal "$(ls -A "$folder")$(ls -A "$output")" ''
}

aFolderWithoutWritePermissionIsToldAndStaysAsItIs() {
    echo 'printed earlier' >"$output"
    as_somebody_without_rights
    chmod 555 "$folder"
    print
    chmod 755 "$folder"
    expect_status 1
    expect_said "$output" 'Permission denied'
    expect_nothing_new
}

aPrintReplacesTheFormerOneAndLeavesNothingBeside() {
    echo 'printed earlier' >"$output"
    print -o QXMediaType=Thick
    expect_printed
    expect_code QXMediaType=Thick
    expect_equal "$(ls -A "$folder")" job.ps
}

# Without --output the result gets a free name beside the former ones, in the current folder.
withoutAnOutputTheResultIsNamedLikeTheDocument() {
    run "${printer[@]}" "$sample"
    expect_status 0
    run "${printer[@]}" "$sample"
    expect_status 0
    expect_equal "$(echo *)" 'welcome-2.ps welcome.ps'
}

# Whoever writes a PPD would run programs as its users.
aPpdThatNamesAProgramIsRefused() {
    local filter
    printf '#!/bin/sh\ntouch "%s/ran"\ncat\n' "$work" >"$work/tool"
    chmod +x "$work/tool"
    while IFS= read -r filter; do
        changed_ppd "s|^\*cupsFilter2.*|*cupsFilter2: \"application/vnd.cups-postscript application/postscript 0 $filter\"|
\$ a\\
*FoomaticRIPCommandLine: \"touch '$work/ran'; cat\"\\
*FoomaticRIPCommandLinePDF: \"touch '$work/ran'; cat\""
        expect_refusal "$filter" 'Print on the printer itself instead of into a file' --
        [ ! -e "$work/ran" ] || fail "a program ran: $filter"
    done <<TABLE
foomatic-rip
$work/tool
../../../../$work/tool
pstops;'$work/tool'
TABLE
}

# The filter chain

withoutTheFilterProgramTheMessageNamesIt() {
    environment+=("CORVANA_PRINT_CUPSFILTER=$work/nothing")
    expect_refusal "$work/nothing" CORVANA_PRINT_CUPSFILTER --
}

# It says nothing and dies, or says why and fails after half of the data.
aFilterChainThatFailsPrintsNothing() {
    environment+=("CORVANA_PRINT_CUPSFILTER=$work/filter")
    printf '#!/bin/sh\nkill -KILL $$\n' >"$work/filter"
    chmod +x "$work/filter"
    expect_refusal crashed --
    printf '#!/bin/sh\necho half\necho "ERROR: out of toner" >&2\nexit 1\n' >"$work/filter"
    expect_refusal 'out of toner' --
    printf '#!/bin/sh\nexit 3\n' >"$work/filter"
    expect_refusal 'exit status 3' --
    printf '#!/bin/sh\nexit 0\n' >"$work/filter"
    expect_refusal 'Nothing would be printed' --
}

# It may set a printer up, and that is what queues take it for. A file of it would be an empty one.
postScriptThatDrawsNoPageIsRefused() {
    document=$work/empty.ps
    echo '%!PS' >"$document"
    expect_refusal 'Nothing would be printed: what came out has no page.' --
    printf '%%!PS\n72 500 moveto 200 500 lineto stroke\n' >"$document"
    expect_refusal 'Nothing would be printed: what came out has no page.' --
    echo showpage >>"$document"
    print
    expect_status 0
}

# The command line

# A profile names a platform for every program, and a session that is over has left its variables.
withoutADisplayOnlyThatIsSaid() {
    local setting
    while read -r setting; do
        timeout "$patience" env --unset=QT_QPA_PLATFORM --unset=DISPLAY --unset=WAYLAND_DISPLAY \
            XDG_RUNTIME_DIR="$work" "$setting" "$program" "$document" >"$work/out" 2>"$work/err" </dev/null
        status=$?
        expect_status 1
        expect_equal "$(cat "$work/out")" ''
        expect_equal "$(cat "$work/err")" \
            'corvana-print: no display can be reached. Print without a window with --no-dialog.'
    done <<TABLE
DISPLAY=
DISPLAY=:9876
WAYLAND_DISPLAY=gone
QT_QPA_PLATFORM=
QT_QPA_PLATFORM=xcb
QT_QPA_PLATFORM=wayland
QT_QPA_PLATFORM=wayland;xcb
QT_QPA_PLATFORM=none-of-them
TABLE
}

aCommandLineThatIsNotUnderstoodHasAStatusOfItsOwn() {
    local line
    while read -r line; do
        # The words of the row are the arguments.
        # shellcheck disable=SC2086
        run $line
        expect_status 2
        expect_said --help
    done <<TABLE
-n 0 letter.pdf
-n 10000 letter.pdf
-n two letter.pdf
-n -1 letter.pdf
--glitter letter.pdf
- -
-o =5 letter.pdf
--demo
--output
TABLE
    run -n 0 letter.pdf
    expect_said '1 to 9999'
    run --glitter
    expect_said glitter
    run - -
    expect_said 'standard input'
    expect_equal "$(ls -A "$folder")" ''
}

run_tests

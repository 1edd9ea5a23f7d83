#!/usr/bin/env bash
# The dialog as a screen reader has it, over the accessibility bus: every control is looked at, and
# somebody who sees nothing prints an envelope.

# shellcheck source=tests/e2e/support.bash
. "$(dirname "${BASH_SOURCE[0]}")/support.bash"
# shellcheck source=tests/e2e/window.bash
. "$(dirname "${BASH_SOURCE[0]}")/window.bash"

readonly reader=$here/screenreader
# Debian's own, for which the bindings of the accessibility bus are packaged.
readonly python=/usr/bin/python3

# The bus of the test's own, and what has to be there for it.
with_screen_reader() {
    command -v dbus-run-session >/dev/null || skip 'skipped: there is no dbus-run-session (dbus-daemon)'
    "$python" -c 'import gi; gi.require_version("Atspi", "2.0"); from gi.repository import Atspi' \
        2>/dev/null || skip 'skipped: Python has no accessibility bus (gir1.2-atspi-2.0, python3-gi)'
    [ -e /usr/share/dbus-1/services/org.a11y.Bus.service ] ||
        skip 'skipped: there is no accessibility bus (at-spi2-core)'
    [ -n "${DISPLAY-}" ] || open_display
    # The session's bus is reached by what dbus-run-session sets.
    timeout $((patience * 12)) env --unset=DBUS_SESSION_BUS_ADDRESS "${environment[@]}" QT_QPA_PLATFORM=xcb \
        QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 GIO_USE_VFS=local GSETTINGS_BACKEND=memory \
        PYTHONDONTWRITEBYTECODE=1 dbus-run-session -- "$python" "$@" >"$work/out" 2>"$work/err"
    status=$?
    grep -E '^[0-9]+ controls|^heard' "$work/out" | sed 's/^/    /'
    [ "$status" -eq 0 ] || fail "the screen reader's status is $status"
}
# walk STATIONS [MODEL]: with two documents, of which there is a list then.
walk() {
    with_screen_reader "$reader/walk.py" "$1" "$program" --bundle-root "$bundles" \
        --ppd "$source_root/resources/ppd/corvana-${2:-cl5}.ppd" --output "$output" "$document" "$document"
}

everyPageOfEachPrinterSaysWhatItIs() {
    local model
    for model in "${models[@]}"; do
        walk every_page "$model"
    done
}

everyListSaysWhatItIs() { walk every_list; }
everyMenuAndDialogSaysWhatItIs() { walk every_dialog; }

# Names that are the same words as in English were forgotten.
everyNameIsInTheLanguageOfTheUser() {
    environment+=("CORVANA_WRITE_NAMES=$work/names.json")
    walk every_page
    in_language ja_JP
    environment+=("CORVANA_ENGLISH_NAMES=$work/names.json")
    walk every_page
}

anEnvelopeIsPrintedByNamesAlone() {
    with_screen_reader "$reader/envelope.py" envelope "$program" --bundle-root "$bundles" --ppd "$ppd" \
        --output "$output" "$document"
    status=0 expect_printed
    expect_code PageSize=EnvDL QXMediaType=Env
}

aRefusedChoiceIsSaidWithItsWayOut() {
    with_screen_reader "$reader/refusal.py" refusal "$program" --bundle-root "$bundles" --ppd "$ppd" \
        --output "$output" -o QXMediaType=Glossy "$document"
}

# The other pages are walked for their language. All printers take minutes: CORVANA_ALL_PRINTERS=1.
models=(ml3)
[ -z "${CORVANA_ALL_PRINTERS-}" ] || models=(cl2 cl3 cl4 cl5 mf4 ml3)

run_tests

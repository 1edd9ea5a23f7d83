#!/usr/bin/env bash
# Proves that the panels have each of their texts in every language, in a form that fits where the
# panels join or compare them, and that instructions call settings what the printer calls them.
#
#   strings_test.sh
#
# Needs python3.

set -u

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd) || exit 1
if ! command -v python3 >/dev/null; then
    echo "$0: python3 is needed and missing" >&2
    exit 1
fi

exec python3 -B - "$root" <<'PYTHON'
import re
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path

root = Path(sys.argv[1])
sys.path.insert(0, str(root / "tests/resources"))
from languages import LANGUAGES


def messages(language):
    file = root / f"resources/bundle/strings/{language}.ts"
    context, = ElementTree.parse(file).getroot().findall("context")
    if context.findtext("name") != "Localizable":
        raise ValueError(f"{language}: the context is {context.findtext('name')}")
    return [(m.findtext("source"), m.findtext("translation") or "")
            for m in context.iter("message")]


def printer_texts(language):
    """All texts that the sample printers have for "keyword choice" and for an option's keyword."""
    code = LANGUAGES[language].ppd
    form = (rf"\*{code}\.(\w+ \w+)/(.*): \"\"$" if code
            else r"\*((?:OpenUI \*)?\w+(?: \w+)?)/([^:]*): ")
    for ppd in sorted((root / "resources/ppd").glob("*.ppd")):
        for line in ppd.read_text(encoding="utf-8").splitlines():
            if found := re.match(form, line):
                yield re.sub(r"^(OpenUI \*|Translation )", "", found[1]), found[2]


def everyLanguageHasTheSameKeysInTheSameOrder(fail):
    english = [key for key, _ in messages("English")]
    if len(english) != len(set(english)) or not english:
        fail("English: a key is there twice, or none at all")
    for language in LANGUAGES:
        keys = [key for key, _ in messages(language)]
        if keys != english:
            fail(f"{language}: other keys than in English: {sorted(set(keys) ^ set(english))}")


# Panels join pieces with blanks, line breaks and list marks of their own, through formats.
def textsAreOneLineThatCanBeJoined(fail):
    for language in LANGUAGES:
        for key, text in messages(language):
            if not text or text != text.strip() or "\n" in text or text.startswith("-"):
                fail(f"{language}, {key}: {text!r}")
            if "%" in text:
                fail(f"{language}, {key}: a directive in {text!r}")


def noNameOfAMessageIsShownInItsPlace(fail):
    for language in LANGUAGES:
        for key, text in messages(language):
            if re.match("(STR_MES|DLG)_", text):
                fail(f"{language}, {key}: {text}")


# By an item of this title a menu is known as the one of paper sizes.
def theNameOfA4IsThatOfThePrinters(fail):
    for language in LANGUAGES:
        found = {text for key, text in printer_texts(language) if key == "PageSize A4"}
        # Printers without a translation show the English text.
        found = found or {text for key, text in printer_texts("English") if key == "PageSize A4"}
        if found != {dict(messages(language))["A4"]}:
            fail(f"{language}: printers say {sorted(found)}")


def instructionsNameSettingsAsThePrinterDoes(fail):
    for language in LANGUAGES:
        on_screen = {text for _, text in printer_texts(language)}
        names = [name for _, text in messages(language)
                 for name in re.findall(LANGUAGES[language].quotes, text)]
        if not names:
            fail(f"{language}: no setting is named")
        for name in names:
            if name not in on_screen:
                fail(f"{language}: no printer says: {name}")


failures = 0
for test in [
    everyLanguageHasTheSameKeysInTheSameOrder,
    textsAreOneLineThatCanBeJoined,
    noNameOfAMessageIsShownInItsPlace,
    theNameOfA4IsThatOfThePrinters,
    instructionsNameSettingsAsThePrinterDoes,
]:
    complaints = []
    try:
        test(complaints.append)
    except (OSError, ValueError, KeyError, ElementTree.ParseError) as problem:
        complaints.append(f"{type(problem).__name__}: {problem}")
    print("FAILED " if complaints else "ok     ", test.__name__)
    for complaint in complaints:
        print("   ", complaint, file=sys.stderr)
    failures += bool(complaints)
sys.exit(failures > 0)
PYTHON

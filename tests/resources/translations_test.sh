#!/usr/bin/env bash
# Proves that the dialog has each of its texts in every language, and that a translation keeps what
# the program puts something into, or looks at: places for values, access keys, dots, lines, blanks.
#
#   translations_test.sh LUPDATE [LANGUAGE...]
#
# LUPDATE is Qt's program of that name. Needs python3.

set -u

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd) || exit 1
if ! command -v python3 >/dev/null; then
    echo "$0: python3 is needed and missing" >&2
    exit 1
fi

exec python3 -B - "$root" "$@" <<'PYTHON'
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from collections import Counter
from pathlib import Path

root = Path(sys.argv[1])
lupdate = sys.argv[2]
sys.path.insert(0, str(root / "tests/resources"))
from languages import LANGUAGES

# How many forms a number's noun has.
PLURAL_FORMS = {"ja": 1, "zh_CN": 1, "ko": 1, "zh_TW": 1}
CODES = [language.translation for language in LANGUAGES.values() if language.translation]
CODES = [code for code in CODES if code in sys.argv[3:] or len(sys.argv) == 3]
QUOTES = {language.translation: language.quotes for language in LANGUAGES.values()}
# Every character that quotes in one of the languages. A French apostrophe looks like a quote.
QUOTING = set("“”„«»「」")


class Message:
    def __init__(self, context, element):
        self.key = (context, element.findtext("source"), element.findtext("comment"))
        self.source = element.findtext("source")
        translation = element.find("translation")
        self.counts = element.get("numerus") == "yes"
        self.forms = [form.text or "" for form in translation.iter("numerusform")]
        self.texts = self.forms if self.counts else [translation.text or ""]
        self.state = translation.get("type")


def messages(code):
    return messagesIn(root / f"resources/translations/corvana-print_{code}.ts")


def messagesIn(file):
    for context in ElementTree.parse(file).getroot().iter("context"):
        for element in context.iter("message"):
            yield Message(context.findtext("name"), element)


def texts():
    for code in CODES:
        for message in messages(code):
            for text in message.texts:
                yield code, message.source, text


def places(text):
    return Counter(re.findall(r"%L?\d|%n", text))


def theLanguagesHaveTheSameTexts(fail):
    first = {message.key for message in messages("de")}
    for code in CODES:
        keys = [message.key for message in messages(code)]
        if len(keys) != len(set(keys)):
            fail(f"{code}: a text is there twice")
        if set(keys) != first:
            fail(f"{code}: other texts than in German: {sorted(map(str, set(keys) ^ first))}")


# A text under the name of another class is never found, and stays English.
def theTextsAreThoseOfTheProgram(fail):
    with tempfile.TemporaryDirectory() as folder:
        file = Path(folder) / "texts.ts"
        command = [lupdate, "-silent", "-I", ".", "-locations", "none", "dialog", "-ts", str(file)]
        subprocess.run(command, cwd=root, check=True)
        ofProgram = {message.key for message in messagesIn(file)}
    for code in CODES:
        for key in ofProgram ^ {message.key for message in messages(code)}:
            fail(f"{code}: {'not translated' if key in ofProgram else 'not used'}: {key}")


def everyTextIsTranslated(fail):
    for code in CODES:
        for message in messages(code):
            if message.state or not all(message.texts) or not message.texts:
                fail(f"{code}: {message.state or 'empty'}: {message.source!r}")
            if message.counts and len(message.forms) != PLURAL_FORMS.get(code, 2):
                fail(f"{code}: {len(message.forms)} plural forms: {message.source!r}")


def placesForValuesAreKept(fail):
    for code, source, text in texts():
        if places(source) != places(text):
            fail(f"{code}: {source!r} became {text!r}")


def aTextHasOneAccessKeyWhereTheSourceHasOne(fail):
    for code, source, text in texts():
        keys = [re.findall(r"&(\S)", t.replace("&&", "")) for t in (source, text)]
        if len(keys[0]) != len(keys[1]) or not all(key.isalnum() for key in keys[1]):
            fail(f"{code}: {source!r} became {text!r}")
        if code in ("ko", "zh_TW") and keys[0] and f"(&{keys[0][0].upper()})" not in text:
            fail(f"{code}: another access key than in English: {text!r}")


# Blanks at the ends join pieces; dots say that more is asked for or going on.
def endsAndLinesAreKept(fail):
    for code, source, text in texts():
        if not text:
            continue
        if source.count("\n") != text.count("\n"):
            fail(f"{code}: other lines than {source!r}: {text!r}")
        dots = [bool(re.search(r"(…|\.\.\.)( ?\(&\w\))?$", t)) for t in (source, text)]
        if dots[0] != dots[1]:
            fail(f"{code}: the dots of {source!r} are not those of {text!r}")
        # Ideographs stand beside each other without a blank.
        if code in ("ja", "zh_CN", "zh_TW", "ko"):
            continue
        if (source[0].isspace(), source[-1].isspace()) != (text[0].isspace(), text[-1].isspace()):
            fail(f"{code}: the blanks of {source!r} are not those of {text!r}")


def nothingIsMarkup(fail):
    for code, source, text in texts():
        if set(re.findall(r"</?[A-Za-z][^>]*>|&\w+;", text)) - {source}:
            fail(f"{code}: {text!r}")


def quotesAreThoseOfTheLanguage(fail):
    for code, source, text in texts():
        own = set(re.sub(r"[\[\]()^*\u00a0]", "", QUOTES[code]))
        # A German quotation ends with the sign that an English one begins with.
        if foreign := QUOTING & set(text) - own:
            if code not in ("ja", "zh_CN"):
                fail(f"{code}: {sorted(foreign)} in {text!r}")
        if code not in ("ja", "zh_CN"):
            quoted = len(re.findall(QUOTES["pt_BR"], source))
            if len(re.findall(QUOTES[code], text)) != quoted:
                fail(f"{code}: {source!r} is quoted otherwise in {text!r}")


def noBlankBreaksAFrenchLineBeforeItsSigns(fail):
    for code, source, text in texts():
        # A time and a list of file types have such signs without a blank.
        if code == "fr" and re.search(r"[^\u00a0\u202f][!?»]|[^\u00a0:;/]:( |$)|[^\u00a0;];( |$)|«[^\u00a0]", text):
            fail(f"fr: {text!r}")


def printersWithoutADriverSpeakEveryLanguage(fail):
    folder = root / "dialog/driverless"
    row = re.compile(r'\{"([^"]+)",\s*"([^"]*)"')
    english = row.findall((folder / "CapabilityTexts.cpp").read_text(encoding="utf-8"))
    if len(english) < 100:
        fail(f"only {len(english)} texts")
    for code in set(CODES) - {"ja", "zh_CN"}:
        texts = row.findall((folder / f"CapabilityTexts-{code}.cpp").read_text(encoding="utf-8"))
        if [key for key, _ in texts] != [key for key, _ in english]:
            fail(f"{code}: other keys: {sorted(set(english) ^ set(texts))[:3]}")
        for (key, text), (_, source) in zip(texts, english):
            if not text or places(text) != places(source):
                fail(f"{code}, {key}: {text!r}")
        # Names of papers are alike in many languages; words are not.
        if sum(text == source for (_, text), (_, source) in zip(texts, english)) > 30:
            fail(f"{code}: speaks English")


failures = 0
for test in [
    theLanguagesHaveTheSameTexts,
    theTextsAreThoseOfTheProgram,
    everyTextIsTranslated,
    placesForValuesAreKept,
    aTextHasOneAccessKeyWhereTheSourceHasOne,
    endsAndLinesAreKept,
    nothingIsMarkup,
    quotesAreThoseOfTheLanguage,
    noBlankBreaksAFrenchLineBeforeItsSigns,
    printersWithoutADriverSpeakEveryLanguage,
]:
    complaints = []
    try:
        test(complaints.append)
    except (OSError, subprocess.SubprocessError, ValueError, KeyError, AttributeError, ElementTree.ParseError) as problem:
        complaints.append(f"{type(problem).__name__}: {problem}")
    print("FAILED " if complaints else "ok     ", test.__name__)
    for complaint in complaints:
        print("   ", complaint, file=sys.stderr)
    failures += bool(complaints)
sys.exit(failures > 0)
PYTHON

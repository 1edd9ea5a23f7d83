#!/usr/bin/env bash
# Proves that every help page is there in each language, says the same things in the same order, is
# text that the help window can show in any palette, and calls the settings by the names that the
# printer and the window show.
#
#   help_test.sh
#
# Needs python3.

set -u

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd) || exit 1
if ! command -v python3 >/dev/null; then
    echo "$0: python3 is needed and missing" >&2
    exit 1
fi

exec python3 -B - "$root" <<'PYTHON'
import json
import re
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path

root = Path(sys.argv[1])
sys.path.insert(0, str(root / "tests/resources"))
from languages import LANGUAGES

help_folder = root / "resources/help"

TITLES = {
    "QXLaserPrintSetting.help": "Corvana Print Settings Help (Laser)",
    "QXLaserColorSetting.help": "Corvana Color Settings Help (Laser)",
}
BOOKS = [*TITLES, "dialog"]
TOP = "QxHelpAnchor"

# What the help window's browser shows, and nothing that would set a color or load something.
ELEMENTS = set(
    "html head meta title body h1 h2 p ul ol li table tr th td a b i strong pre blockquote".split()
)
ATTRIBUTES = {
    "html": {"lang"},
    "meta": {"charset"},
    "a": {"name", "href"},
    "table": {"border", "cellspacing", "cellpadding", "style"},
    "th": {"align"},
}
# The only style: tables keep a distance from the text above them.
STYLES = {"margin-top: 8px"}
# What all languages have in common; rows of tables may differ with what a language's panel offers.
OUTLINE = {"h1", "h2", "table", "ol", "ul", "pre", "blockquote"}


def page_file(book, language):
    return help_folder / book / language / "index.html"


def page(book, language):
    return ElementTree.fromstring(page_file(book, language).read_text(encoding="utf-8"))


def pages():
    for book in BOOKS:
        for language in LANGUAGES:
            yield f"{book}/{language}", language, page(book, language)


def text_of(element):
    return " ".join("".join(element.itertext()).split())


def anchors(tree):
    return [a.get("name") for a in tree.iter("a") if a.get("name")]


def outline(tree):
    return [
        "#" + e.get("name") if e.tag == "a" else e.tag
        for e in tree.iter()
        if e.tag in OUTLINE or (e.tag == "a" and e.get("name"))
    ]


# What is on the screen: the PPD's texts, the panels' and the dialog's.


def texts_of_printers(language):
    """Each text of an option or choice, as (keyword, choice, text); an option's choice is None."""
    code = LANGUAGES[language].ppd
    for ppd in sorted((root / "resources/ppd").glob("*.ppd")):
        for line in ppd.read_text(encoding="utf-8").splitlines():
            if code:
                found = re.match(rf"\*{code}\.(\w+) (\w+)/(.*): \"\"$", line)
                if found and found[1] == "Translation":
                    yield found[2], None, found[3]
                elif found:
                    yield found[1], found[2], found[3]
            elif found := re.match(r"\*OpenUI \*(\w+)/(.*): (?:PickOne|Boolean)$", line):
                yield found[1], None, found[2]
            elif found := re.match(r"\*(\w+) (\w+)/([^:]*): \"", line):
                yield found[1], found[2], found[3]


def printer_texts(language):
    """A text for each keyword and choice. Printers may have several: this is the last one's."""
    return {(keyword, choice): text for keyword, choice, text in texts_of_printers(language)}


def messages(file):
    for message in ElementTree.parse(file).iter("message"):
        yield message.findtext("source"), message.findtext("translation")


def dialog_messages(language):
    """The dialog's texts, each with its source text. A source may have several translations."""
    if code := LANGUAGES[language].translation:
        return list(messages(root / f"resources/translations/corvana-print_{code}.ts"))
    sources = set()
    for file in (root / "dialog").rglob("*.cpp"):
        code = file.read_text(encoding="utf-8")
        for literals in re.findall(r"\btr\(\s*((?:\"(?:[^\"\\]|\\.)*\"\s*)+)", code):
            sources.add("".join(re.findall(r"\"((?:[^\"\\]|\\.)*)\"", literals)))
        sources.update(re.findall(r"translate\(\"\w+\",\s*\"((?:[^\"\\]|\\.)*)\"", code))
    return [(source, source) for source in sources]


def dialog_texts(language):
    return dict(dialog_messages(language))


def words_on_screen(language):
    """A pattern for each text: what stands for %1 can be anything."""
    panel_texts = messages(root / f"resources/bundle/strings/{language}.ts")
    texts = {text for *_, text in texts_of_printers(language)} | {text for _, text in panel_texts}
    for _, text in dialog_messages(language):
        text = re.sub(r"\(&\w\)|&", "", text)  # the access key
        texts.add(re.sub(r"\s*[:：]$", "", text))
    # A text of nothing but places, such as "%1 %2", would stand for every word.
    texts = {text for text in texts if re.search(r"\w", re.sub(r"%L?\w", "", text))}
    return [re.sub(r"%\d", ".+", re.escape(" ".join(text.split()))) for text in texts]


def everyBookHasItsTitleAndAPageInEachLanguage(fail):
    for book, title in TITLES.items():
        info = json.loads((help_folder / book / "info.json").read_text(encoding="utf-8"))
        if info.get("CFBundleHelpBookName") != title:
            fail(f"{book}: the title is {info.get('CFBundleHelpBookName')}")
    for name, _, tree in pages():
        if not (tree.findtext("head/title") or "").strip():
            fail(f"{name}: no title")
        if len(text_of(tree.find("body"))) < 300:
            fail(f"{name}: hardly any text")


def everyBookThatIsThereIsProved(fail):
    found = {folder.name for folder in help_folder.iterdir()}
    if found != set(BOOKS):
        fail(f"the help folder holds {sorted(found)}")
    files = {file for file in help_folder.rglob("*") if file.is_file()}
    expected = {page_file(book, language) for book in BOOKS for language in LANGUAGES}
    expected |= {help_folder / book / "info.json" for book in TITLES}
    for file in files ^ expected:
        fail(f"missing, or not a page: {file}")


def aPageSaysHowItsTextIsEncodedAndInWhichLanguage(fail):
    for name, language, tree in pages():
        first = tree.find("head")[0]
        if first.tag != "meta" or first.get("charset") != "utf-8":
            fail(f"{name}: the encoding does not stand first")
        if tree.get("lang") != LANGUAGES[language].html:
            fail(f"{name}: the language is {tree.get('lang')}")


def theHelpButtonsPlaceIsTheTopHeading(fail):
    for name, _, tree in pages():
        top = tree.find("body")[0]
        if top.tag != "h1" or len(top) == 0 or top[0].get("name") != TOP:
            fail(f"{name}: does not begin with the heading {TOP}")
        if len(tree.findall(".//h1")) != 1:
            fail(f"{name}: not one top heading")


def theLanguagesSayTheSameInTheSameOrder(fail):
    for book in BOOKS:
        english = page(book, "English")
        for language in LANGUAGES:
            tree = page(book, language)
            if anchors(tree) != anchors(english):
                fail(f"{book}/{language}: other anchors than in English: {anchors(tree)}")
            if outline(tree) != outline(english):
                fail(f"{book}/{language}: another outline than in English: {outline(tree)}")


def everyChapterHasAPlaceAndStandsInTheContentsUnderItsHeading(fail):
    for name, _, tree in pages():
        chapters = [(h.find("a").get("name"), text_of(h)) for h in tree.iter("h2")
                    if h.find("a") is not None]
        if len(chapters) != len(tree.findall(".//h2")) or len(chapters) < 5:
            fail(f"{name}: a chapter has no place, or chapters are missing")
        contents = [(a.get("href")[1:], text_of(a)) for a in tree.find("body/ul").iter("a")]
        if contents != chapters:
            fail(f"{name}: the contents are {contents}")


def linksLeadToAPlaceInTheSamePage(fail):
    for name, _, tree in pages():
        names = anchors(tree)
        if len(set(names)) != len(names):
            fail(f"{name}: a place has the name of another one")
        for link in tree.iter("a"):
            if link.get("href") is not None and link.get("href") not in {"#" + n for n in names}:
                fail(f"{name}: a link leads to {link.get('href')}")


def nothingIsLoadedRunOrColored(fail):
    for name, _, tree in pages():
        for element in tree.iter():
            if element.tag not in ELEMENTS:
                fail(f"{name}: the element {element.tag}")
            for attribute in set(element.keys()) - ATTRIBUTES.get(element.tag, set()):
                fail(f"{name}: the attribute {attribute} of {element.tag}")
            if element.get("style") not in {None} | STYLES:
                fail(f"{name}: the style {element.get('style')}")
        if re.search(r"\w+://|&\w+;", text_of(tree)):
            fail(f"{name}: an address or an entity in the text")


# Japanese and Chinese know no blank between two sentences, and a line break shows as one.
def noLineBreakShowsAsABlankBetweenIdeographs(fail):
    ideograph = "[\u3000-\u9fff\uff00-\uffef]"
    for name, _, tree in pages():
        for element in tree.iter():
            if element.tag in {"h1", "h2", "p", "li", "th", "td"}:
                text = "".join(element.itertext())
                if re.search(f"{ideograph}\\s*\n\\s*{ideograph}", text):
                    fail(f"{name}: a line breaks in: {text}")


# Bold words are words on the screen; what is stressed only is "strong".

def settingsAreNamedAsOnTheScreen(fail):
    for name, language, tree in pages():
        words = {text_of(bold) for bold in tree.iter("b")}
        if len(words) < 10:
            fail(f"{name}: names hardly any settings")
        patterns = words_on_screen(language)
        for word in sorted(words):
            if not any(re.fullmatch(pattern, word) for pattern in patterns):
                fail(f"{name}: neither the printer nor the window says: {word}")


def theConflictOfTheExampleIsShownInTheseWords(fail):
    for language in LANGUAGES:
        texts, dialog = printer_texts(language), dialog_texts(language)

        def choice(keyword, name):
            return dialog["“%1: %2”"].replace("%1", texts[keyword, None]).replace(
                "%2", texts[keyword, name])

        message = dialog["%1 cannot be combined with %2."].replace(
            "%1", choice("QXMediaType", "Glossy")).replace(
            "%2", choice("Duplex", "DuplexNoTumble"))
        way_out = dialog["Change to %1"].replace("%1", choice("Duplex", "None"))
        # A page may break its lines at any blank.
        message, way_out = " ".join(message.split()), " ".join(way_out.split())
        tree = page("dialog", language)
        if text_of(tree.find(".//blockquote")) != message:
            fail(f"dialog/{language}: the window says: {message}")
        if way_out not in [text_of(bold) for bold in tree.iter("b")]:
            fail(f"dialog/{language}: the button says: {way_out}")


def theCommandsAreTheSameInEveryLanguage(fail):
    commands = {language: page("dialog", language).findtext(".//pre") for language in LANGUAGES}
    if len(set(commands.values())) != 1 or len(commands["English"].splitlines()) != 3:
        fail(f"not the same three lines: {commands}")


failures = 0
for test in [
    everyBookHasItsTitleAndAPageInEachLanguage,
    everyBookThatIsThereIsProved,
    aPageSaysHowItsTextIsEncodedAndInWhichLanguage,
    theHelpButtonsPlaceIsTheTopHeading,
    theLanguagesSayTheSameInTheSameOrder,
    everyChapterHasAPlaceAndStandsInTheContentsUnderItsHeading,
    linksLeadToAPlaceInTheSamePage,
    nothingIsLoadedRunOrColored,
    noLineBreakShowsAsABlankBetweenIdeographs,
    settingsAreNamedAsOnTheScreen,
    theConflictOfTheExampleIsShownInTheseWords,
    theCommandsAreTheSameInEveryLanguage,
]:
    complaints = []
    try:
        test(complaints.append)
    except (OSError, ValueError, KeyError, AttributeError, ElementTree.ParseError) as problem:
        complaints.append(f"{type(problem).__name__}: {problem}")
    print("FAILED " if complaints else "ok     ", test.__name__)
    for complaint in complaints:
        print("   ", complaint, file=sys.stderr)
    failures += bool(complaints)
sys.exit(failures > 0)
PYTHON

"""Writes all texts of the dialog, the panels and the sample printers in a language that does not exist.

    pseudo_texts.py KIND ROOT BUNDLE OUTPUT

KIND "longer": the English texts, 40 per cent longer. What has room for them has room for a language
that nobody has written yet. KIND "mirrored": texts in letters that are read from the right to the
left, for a locale that reads so. ROOT is the source tree, BUNDLE the bundle in the build folder.
OUTPUT gets what CORVANA_TEST_BUNDLE and CORVANA_TEST_SHARE may name, with .ts files in the place of
.qm files.
"""

import re
import shutil
import sys
from pathlib import Path
from typing import Callable, NamedTuple
from xml.sax.saxutils import escape, unescape

# What libcups keeps of a text. Units: bytes.
MAX_TEXT = 80
MAX_GROUP_TEXT = 39

PLACE = re.compile(r"%L?\d|%n|&(?=\w)|\n")


def longer(text):
    """The text with its own first letters once more at its end, before a colon or dots."""
    letters = re.sub(r"[^A-Za-z ]", "", PLACE.sub("", text))
    # Names of papers and numbers are alike in every language.
    if not re.search("[a-z]", letters):
        return text
    pad = letters[: max(1, round(len(letters) * 0.4))].rstrip()
    body, end = re.fullmatch(r"(.*?)([:…. )]*)", text, re.S).groups()
    return body + (" " if " " in body else "") + pad + end


def mirrored(text):
    """The text in Hebrew letters, which any font has; they mean nothing."""

    def letter(found):
        return chr(0x5D0 + (ord(found[0].lower()) - ord("a")) % 27)

    if not re.search("[a-z]", text):
        return text
    parts = re.split(f"({PLACE.pattern})", text)
    return "".join(p if PLACE.fullmatch(p) else re.sub("[A-Za-z]", letter, p) for p in parts)


class Kind(NamedTuple):
    change: Callable
    language: str  # of the dialog's texts
    plural_forms: int


KINDS = {"longer": Kind(longer, "en", 2), "mirrored": Kind(mirrored, "ar", 6)}


def dialog_texts(kind, root, share):
    """German has every text; its translations are replaced."""
    german = (root / "resources/translations/corvana-print_de.ts").read_text(encoding="utf-8")
    entities = {"&quot;": '"', "&apos;": "'"}

    def message(found):
        source = unescape(re.search("<source>(.*?)</source>", found[0], re.S)[1], entities)
        text = escape(kind.change(source))
        if "numerus=" in found[0]:
            text = f"<numerusform>{text}</numerusform>" * kind.plural_forms
        return re.sub(
            "<translation>.*</translation>",
            lambda _: f"<translation>{text}</translation>",
            found[0],
            flags=re.S,
        )

    pseudo = re.sub("<message.*?</message>", message, german, flags=re.S)
    pseudo = pseudo.replace('language="de"', f'language="{kind.language}"')
    folder = share / "translations"
    folder.mkdir()
    (folder / f"corvana-print_{kind.language}.ts").write_text(pseudo, encoding="utf-8")


def panel_texts(kind, root, bundle):
    """In the place of the English ones, which are those of every language that is not there."""
    english = (root / "resources/bundle/strings/English.ts").read_text(encoding="utf-8")
    pseudo = re.sub(
        "<translation>(.*?)</translation>",
        lambda found: f"<translation>{kind.change(found[1])}</translation>",
        english,
    )
    (bundle / "strings/English.qm").unlink()
    (bundle / "strings/English.ts").write_text(pseudo, encoding="utf-8")


def cut(text, most):
    while len(text.encode("utf-8")) > most:
        text = text[:-1].rstrip()
    return text


def longer_printer(kind, lines):
    """The English texts, which stand in the options themselves, are replaced."""
    for line in lines:
        if re.match(r"\*(\w\w(_\w\w)?\.|cupsLanguages)", line):
            continue
        if found := re.fullmatch(r"(\*OpenGroup: \w+/)(.*)", line):
            line = found[1] + cut(kind.change(found[2]), MAX_GROUP_TEXT)
        elif found := re.fullmatch(r"(\*(?:OpenUI \*)?\w+(?: [\w.-]+)?/)([^:]*)(: .*)", line):
            line = found[1] + cut(kind.change(found[2]), MAX_TEXT) + found[3]
        yield line


def mirrored_printer(kind, lines):
    """English texts are Latin letters; these are a translation of their own."""
    groups = set(re.findall(r"^\*OpenGroup: (\w+)/", "\n".join(lines), re.M))
    for line in lines:
        if found := re.fullmatch(r"\*de\.((?:Translation )?([^/]*))/(.*): \"\"", line):
            most = MAX_GROUP_TEXT if found[2] in groups else MAX_TEXT
            line = f'*ar.{found[1]}/{cut(kind.change(found[3]), most)}: ""'
        yield re.sub(r"^(\*cupsLanguages: .*)\bde\b", r"\1ar", line)


def printer_texts(kind, root, share):
    write = longer_printer if kind.change is longer else mirrored_printer
    (share / "ppd").mkdir()
    for ppd in (root / "resources/ppd").glob("*.ppd"):
        lines = ppd.read_text(encoding="utf-8").splitlines()
        text = "\n".join(write(kind, lines)) + "\n"
        (share / "ppd" / ppd.name).write_text(text, encoding="utf-8")


def main():
    kind = KINDS[sys.argv[1]]
    root, built, output = map(Path, sys.argv[2:])
    bundle, share = output / built.name, output / "share"
    shutil.copytree(built, bundle)
    share.mkdir()
    dialog_texts(kind, root, share)
    panel_texts(kind, root, bundle)
    printer_texts(kind, root, share)


main()

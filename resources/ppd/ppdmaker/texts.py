"""Texts that exist in every language of the product.

Japanese and Chinese stand beside the English text, because the panels' rules
look at some of them. The other languages have a module each in languages/,
whose table TEXTS is looked up by the English text. Where one English text means
two things, the key "KEYWORD CHOICE" ("Translation KEYWORD" for an option's own
text) comes first. A text that reads alike everywhere has no row.

The English text stands in the option itself, the others in translation lines
("*ja.QXMediaType Plain/..."). libcups keeps texts in arrays of fixed size and
cuts a longer one in the middle of a character, so the limits below are checked
when a PPD is written.
"""

import importlib
from typing import NamedTuple

# Bytes of UTF-8 that libcups keeps of a text, and characters it keeps of a keyword.
MAX_CHOICE_TEXT = 80
MAX_GROUP_TEXT = 39
MAX_KEYWORD = 40
MAX_OPTION_KEYWORD = 33
MAX_SHORT_NAME = 31
# "zh_CN.ParamCustom" and the option keyword share one 40 byte array.
MAX_CUSTOM_OPTION_KEYWORD = 23


class Text(NamedTuple):
    """One text in English, Japanese and Simplified Chinese."""

    en: str
    ja: str
    zh_CN: str


def same(text):
    """A text that reads alike in every language: a number, a format's name."""
    return Text(text, text, text)


# Languages that have their texts in a module of their own, and its name. CUPS asks for a language
# without a region beside one with a region, except in Chinese: Portuguese is that of Brazil.
_MODULES = {
    "de": "de",
    "fr": "fr",
    "es": "es",
    "it": "it",
    "pt": "pt_BR",
    "ko": "ko",
    "zh_TW": "zh_TW",
}
# Language codes of the translation lines, in the order of *cupsLanguages.
TRANSLATIONS = ("ja", "zh_CN", *_MODULES)

_TABLES = {
    language: importlib.import_module(f"{__package__}.languages.{module}").TEXTS
    for language, module in _MODULES.items()
}


def translated(key, text, language):
    """The text of a PPD's key ("QXMediaType Plain") in one of TRANSLATIONS.

    Raises ValueError when a language has no word for it.
    """
    if language not in _TABLES:
        return getattr(text, language)
    table = _TABLES[language]
    found = table.get(key, table.get(text.en))
    if found is None and text != same(text.en):
        raise ValueError(f"{key}, {language}: no text for {text.en!r}")
    return text.en if found is None else found


def check_text(text, limit, where):
    """Raises ValueError when a text would arrive cut, or would break its PPD line."""
    values = {"en": text.en} | {code: translated(where, text, code) for code in TRANSLATIONS}
    for language, value in values.items():
        size = len(value.encode("utf-8"))
        if not 0 < size <= limit:
            raise ValueError(f"{where}, {language}: {size} bytes, allowed are 1 to {limit}")
        if any(c in value for c in '/:"<>') or not value.isprintable():
            raise ValueError(f"{where}, {language}: {value!r} holds a character of PPD syntax")
        # The panels offer such a medium where its text begins otherwise.
        if text.en.startswith("Hagaki") and not value.startswith("Hagaki") and language != "ja":
            raise ValueError(f"{where}, {language}: {value!r} does not begin with Hagaki")
    if not text.en.isascii():
        raise ValueError(f"{where}: the English text {text.en!r} is not ASCII")


def check_keyword(keyword, limit, where):
    """Raises ValueError for a keyword that CUPS would cut or not accept on a command line."""
    if not 0 < len(keyword) <= limit:
        raise ValueError(f"{where}: {keyword!r} is not 1 to {limit} characters long")
    if not all(c.isascii() and (c.isalnum() or c in "-._") for c in keyword):
        raise ValueError(f"{where}: {keyword!r} holds a character that keywords must not have")

"""Texts that exist in every language of the product.

The English text stands in the option itself, the others in translation lines
("*ja.QXMediaType Plain/..."). libcups keeps texts in arrays of fixed size and
cuts a longer one in the middle of a character, so the limits below are checked
when a PPD is written.
"""

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


# Language codes of the translation lines, in the order of *cupsLanguages.
TRANSLATIONS = ("ja", "zh_CN")


def check_text(text, limit, where):
    """Raises ValueError when a text would arrive cut, or would break its PPD line."""
    for language, value in text._asdict().items():
        size = len(value.encode("utf-8"))
        if not 0 < size <= limit:
            raise ValueError(f"{where}, {language}: {size} bytes, allowed are 1 to {limit}")
        if any(c in value for c in '/:"<>') or not value.isprintable():
            raise ValueError(f"{where}, {language}: {value!r} holds a character of PPD syntax")
    if not text.en.isascii():
        raise ValueError(f"{where}: the English text {text.en!r} is not ASCII")


def check_keyword(keyword, limit, where):
    """Raises ValueError for a keyword that CUPS would cut or not accept on a command line."""
    if not 0 < len(keyword) <= limit:
        raise ValueError(f"{where}: {keyword!r} is not 1 to {limit} characters long")
    if not all(c.isascii() and (c.isalnum() or c in "-._") for c in keyword):
        raise ValueError(f"{where}: {keyword!r} holds a character that keywords must not have")

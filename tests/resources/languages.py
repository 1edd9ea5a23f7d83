"""The languages of the product, for tests of its texts."""

from typing import NamedTuple, Optional


class Language(NamedTuple):
    ppd: Optional[str]  # its code in PPD files; English stands in the options themselves
    translation: Optional[str]  # its code in the names of translation files
    html: str  # its code in a page
    quotes: str  # how texts quote what is on the screen


# By the name of the localisation, as the bundle declares it.
LANGUAGES = {
    "English": Language(None, None, "en", "“([^”]*)”"),
    "Japanese": Language("ja", "ja", "ja", "「([^」]*)」"),
    "zh_CN": Language("zh_CN", "zh_CN", "zh-CN", "“([^”]*)”"),
    "de": Language("de", "de", "de", "„([^“]*)“"),
    "fr": Language("fr", "fr", "fr", "«\u00a0([^»]*)\u00a0»"),
    "es": Language("es", "es", "es", "«([^»]*)»"),
    "it": Language("it", "it", "it", "«([^»]*)»"),
    "pt_BR": Language("pt", "pt_BR", "pt-BR", "“([^”]*)”"),
    "ko": Language("ko", "ko", "ko", "‘([^’]*)’"),
    "zh_TW": Language("zh_TW", "zh_TW", "zh-TW", "「([^」]*)」"),
}

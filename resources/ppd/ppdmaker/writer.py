"""Turns a model into the lines of its PPD file.

Every choice ends up in the print data as page device code that names its option and itself,
"<</CorvanaOption(QXMediaType=Thick)>>setpagedevice": the controller of the printer takes each
such string as one setting, and other interpreters ignore the unknown key. Choices that CUPS
carries out itself have no code.
"""

from . import media
from .options import PAGE_SIZE
from .models import PRINT_PANELS
from .texts import (
    MAX_CHOICE_TEXT,
    MAX_CUSTOM_OPTION_KEYWORD,
    MAX_GROUP_TEXT,
    MAX_KEYWORD,
    MAX_OPTION_KEYWORD,
    MAX_SHORT_NAME,
    TRANSLATIONS,
    check_keyword,
    check_text,
    translated,
)

# The order in which the code of options runs. Page sizes reset the page device's state, so they
# come first; the rest keeps the order of its tables.
_PAGE_SIZE_ORDER = 10
_OPTION_ORDER = 30

_FONTS = (
    "AvantGarde-Book AvantGarde-BookOblique AvantGarde-Demi AvantGarde-DemiOblique "
    "Bookman-Demi Bookman-DemiItalic Bookman-Light Bookman-LightItalic "
    "Courier Courier-Bold Courier-BoldOblique Courier-Oblique "
    "Helvetica Helvetica-Bold Helvetica-BoldOblique Helvetica-Narrow Helvetica-Narrow-Bold "
    "Helvetica-Narrow-BoldOblique Helvetica-Narrow-Oblique Helvetica-Oblique "
    "NewCenturySchlbk-Bold NewCenturySchlbk-BoldItalic NewCenturySchlbk-Italic "
    "NewCenturySchlbk-Roman Palatino-Bold Palatino-BoldItalic Palatino-Italic Palatino-Roman "
    "Symbol Times-Bold Times-BoldItalic Times-Italic Times-Roman "
    "ZapfChancery-MediumItalic ZapfDingbats"
).split()


def write_ppd(model):
    """The whole PPD file of a model, as text. Raises ValueError when a table breaks a limit."""
    writer = _Writer(model)
    writer.header()
    writer.groups()
    writer.custom_page_sizes()
    writer.conflicts()
    writer.fonts()
    writer.translations()
    return "\n".join(writer.lines) + "\n"


def _setting(keyword, choice, device=""):
    return f"<<{device}/CorvanaOption({keyword}={choice})>>setpagedevice"


def _pc_file_name(file_name):
    """"corvana-cl5.ppd" as "CORVCL5.PPD", the eight and three characters that old systems keep."""
    maker, series = file_name.upper().split("-")
    return maker[:4] + series


def _kind(option):
    is_boolean = {choice.keyword for choice in option.choices} == {"True", "False"}
    return "Boolean" if is_boolean else "PickOne"


class _Writer:
    """Collects the English lines in `lines` and every text to translate in `_texts`."""

    def __init__(self, model):
        self.lines = []
        self._model = model
        self._texts = []  # of (key such as "QXMediaType Plain", Text)
        self._order = _OPTION_ORDER

    def header(self):
        m = self._model
        if len(m.short_name) > MAX_SHORT_NAME:
            raise ValueError(f"the short name {m.short_name!r} is over {MAX_SHORT_NAME} characters")
        model_name = m.name.removeprefix("Corvana ")
        self.lines += [
            '*PPD-Adobe: "4.3"',
            '*FormatVersion: "4.3"',
            '*FileVersion: "1.0"',
            "*LanguageVersion: English",
            "*LanguageEncoding: ISOLatin1",
            f'*cupsLanguages: "{" ".join(TRANSLATIONS)}"',
            f'*PCFileName: "{_pc_file_name(m.file_name)}"',
            '*Manufacturer: "Corvana"',
            f'*Product: "({m.name})"',
            f'*ModelName: "{m.name}"',
            f'*ShortNickName: "{m.short_name}"',
            f'*NickName: "{m.name}, PostScript"',
            f'*1284DeviceID: "MFG:Corvana;MDL:{model_name};CMD:POSTSCRIPT;CLS:PRINTER;"',
            '*PSVersion: "(3010.000) 0"',
            '*LanguageLevel: "3"',
            f"*ColorDevice: {m.color}",
            f"*DefaultColorSpace: {'RGB' if m.color else 'Gray'}",
        ]
        if not self._has_option("Resolution"):  # which would name its default itself
            # At which CUPS renders what PostScript cannot express, such as transparency.
            self.lines.append("*DefaultResolution: 600dpi")
        self.lines += [
            "*FileSystem: False",
            f'*Throughput: "{m.pages_per_minute}"',
            "*LandscapeOrientation: Plus90",
            "*TTRasterizer: Type42",
            "",
            '*cupsVersion: "2.4"',
            f"*cupsModelNumber: {m.number}",
            "*cupsManualCopies: False",
            # CUPS turns every document into PostScript with the options' code in it; the printer
            # takes that as it is.
            '*cupsFilter2: "application/vnd.cups-postscript application/postscript 0 -"',
            f'*QXPrintDialogExtension: "{PRINT_PANELS}"',
        ]
        if m.color_matching_name:
            self._add_text("APCustomColorMatchingName Corvana", m.color_matching_name)
            self.lines += [
                "*APSupportsCustomColorMatching: True",
                f'*APCustomColorMatchingName Corvana/{m.color_matching_name.en}: ""',
                "*APDefaultCustomColorMatchingProfile: sRGB",
                "*APCustomColorMatchingProfile: sRGB",
            ]
        self.lines.append("")

    def groups(self):
        for group, group_options in self._model.groups:
            self._add_text(f"Translation {group.keyword}", group.text, MAX_GROUP_TEXT)
            self.lines.append(f"*OpenGroup: {group.keyword}/{group.text.en}")
            if group.keyword == "General":
                self._page_sizes()
            for option in group_options:
                self._option(option)
            self.lines += [f"*CloseGroup: {group.keyword}", ""]

    def custom_page_sizes(self):
        limits = self._model.custom_sizes
        if not limits:
            return
        parameters = {
            "Width": f"1 points {limits.min_width} {limits.max_width}",
            "Height": f"2 points {limits.min_height} {limits.max_height}",
            "WidthOffset": "3 points 0 0",
            "HeightOffset": "4 points 0 0",
            "Orientation": "5 int 0 0",
        }
        margins = " ".join([str(media.SHEET_MARGIN)] * 4)
        code = (
            "pop pop pop<</PageSize[5 -2 roll]/ImagingBBox null"
            "/CorvanaOption(PageSize=Custom)>>setpagedevice"
        )
        self._add_text("CustomPageSize True", media.CUSTOM_SIZE_TEXT)
        self.lines += [
            "*VariablePaperSize: True",
            f'*MaxMediaWidth: "{limits.max_width}"',
            f'*MaxMediaHeight: "{limits.max_height}"',
            f"*HWMargins: {margins}",
            f'*CustomPageSize True/{media.CUSTOM_SIZE_TEXT.en}: "{code}"',
        ]
        for name, form in parameters.items():
            text = media.CUSTOM_SIZE_PARAMETERS[name]
            self._add_text(f"ParamCustomPageSize {name}", text)
            self.lines.append(f"*ParamCustomPageSize {name}/{text.en}: {form}")
        self.lines.append("")

    def conflicts(self):
        for (left, left_choice), (right, right_choice) in self._model.conflicts:
            self._check_choice(left, left_choice)
            self._check_choice(right, right_choice)
            # Both directions: dialogs look a conflict up by the option that was changed.
            self.lines += [
                f"*UIConstraints: *{left} {left_choice} *{right} {right_choice}",
                f"*UIConstraints: *{right} {right_choice} *{left} {left_choice}",
            ]
        if self._model.conflicts:
            self.lines.append("")

    def fonts(self):
        self.lines.append("*DefaultFont: Courier")
        for font in _FONTS:
            encoding = "Special" if font in ("Symbol", "ZapfDingbats") else "Standard"
            version = "001.001" if encoding == "Special" else "001.005"
            self.lines.append(f'*Font {font}: {encoding} "({version})" {encoding} ROM')
        self.lines.append("")

    def translations(self):
        for language in TRANSLATIONS:
            for key, text in self._texts:
                self.lines.append(f'*{language}.{key}/{translated(key, text, language)}: ""')

    def _page_sizes(self):
        m = self._model
        sizes = [media.SIZES[keyword] for keyword in m.sizes]
        for order, keyword in enumerate(("PageSize", "PageRegion")):
            self._add_text(f"Translation {keyword}", PAGE_SIZE)
            self.lines += [
                f"*OpenUI *{keyword}/{PAGE_SIZE.en}: PickOne",
                f"*OrderDependency: {_PAGE_SIZE_ORDER + order} AnySetup *{keyword}",
                f"*Default{keyword}: {m.default_size}",
            ]
            for size in sizes:
                self._add_text(f"{keyword} {size.keyword}", size.text)
                device = f"/PageSize[{size.width} {size.height}]/ImagingBBox null"
                code = _setting(keyword, size.keyword, device)
                self.lines.append(f'*{keyword} {size.keyword}/{size.text.en}: "{code}"')
            self.lines.append(f"*CloseUI: *{keyword}")
        self.lines.append(f"*DefaultImageableArea: {m.default_size}")
        for size in sizes:
            right, top = size.width - size.margin, size.height - size.margin
            area = f"{size.margin} {size.margin} {right} {top}"
            self.lines.append(f'*ImageableArea {size.keyword}/{size.text.en}: "{area}"')
        self.lines.append(f"*DefaultPaperDimension: {m.default_size}")
        for size in sizes:
            self.lines.append(
                f'*PaperDimension {size.keyword}/{size.text.en}: "{size.width} {size.height}"'
            )

    def _option(self, option):
        keyword = option.keyword
        check_keyword(keyword, MAX_OPTION_KEYWORD, "option")
        self._add_text(f"Translation {keyword}", option.text)
        self.lines += [
            f"*OpenUI *{keyword}/{option.text.en}: {_kind(option)}",
            f"*OrderDependency: {self._order} AnySetup *{keyword}",
            f"*Default{keyword}: {option.default}",
        ]
        self._order += 1
        if option.default not in (choice.keyword for choice in option.choices):
            raise ValueError(f"option {keyword}: its default {option.default!r} is no choice of it")
        for choice in option.choices:
            check_keyword(choice.keyword, MAX_KEYWORD, f"option {keyword}, choice")
            self._add_text(f"{keyword} {choice.keyword}", choice.text)
            code = "" if option.done_by_cups else _setting(keyword, choice.keyword, choice.device)
            self.lines.append(f'*{keyword} {choice.keyword}/{choice.text.en}: "{code}"')
        self.lines.append(f"*CloseUI: *{keyword}")
        if option.custom:
            self._custom_integer(keyword, option.custom)

    def _custom_integer(self, keyword, custom):
        check_keyword(keyword, MAX_CUSTOM_OPTION_KEYWORD, "option with a custom number")
        self._add_text(f"Custom{keyword} True", custom.text)
        self._add_text(f"ParamCustom{keyword} {custom.parameter}", custom.parameter_text)
        # The number stands on the stack below the dictionary that is being built.
        code = f"<</CorvanaOption({keyword}=Custom)/CorvanaValue 5 -1 roll>>setpagedevice"
        self.lines += [
            f'*Custom{keyword} True/{custom.text.en}: "{code}"',
            f"*ParamCustom{keyword} {custom.parameter}/{custom.parameter_text.en}: "
            f"1 int {custom.minimum} {custom.maximum}",
        ]

    def _add_text(self, key, text, limit=MAX_CHOICE_TEXT):
        check_text(text, limit, key)
        self._texts.append((key, text))

    def _has_option(self, keyword):
        return any(
            option.keyword == keyword
            for _, group_options in self._model.groups
            for option in group_options
        )

    def _check_choice(self, keyword, choice):
        if keyword == "PageSize":
            known = choice in self._model.sizes
        else:
            known = any(
                option.keyword == keyword and choice in [c.keyword for c in option.choices]
                for _, group_options in self._model.groups
                for option in group_options
            )
        if not known:
            raise ValueError(f"conflict: {self._model.name} has no {keyword}={choice}")

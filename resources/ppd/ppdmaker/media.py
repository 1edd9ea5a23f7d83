"""Paper sizes. All lengths are PostScript points, 1/72 inch."""

from typing import NamedTuple

from .texts import Text, same

# The engines leave 12 points (4.2 mm) blank on every side of a sheet, and 28 points (10 mm) on
# envelopes, whose flaps and seams the fuser must not meet with toner on them.
SHEET_MARGIN = 12
ENVELOPE_MARGIN = 28


class PaperSize(NamedTuple):
    keyword: str
    text: Text
    width: int
    height: int
    margin: int


class CustomSizes(NamedTuple):
    """Limits of the sizes a user may enter."""

    min_width: int
    min_height: int
    max_width: int
    max_height: int


_SIZES = (
    PaperSize("A4", same("A4"), 595, 842, SHEET_MARGIN),
    PaperSize("Letter", Text("US Letter", "レター", "US Letter"), 612, 792, SHEET_MARGIN),
    PaperSize("Legal", Text("US Legal", "リーガル", "US Legal"), 612, 1008, SHEET_MARGIN),
    PaperSize("A5", same("A5"), 420, 595, SHEET_MARGIN),
    PaperSize("B5", Text("JIS B5", "B5 (JIS)", "B5 (JIS)"), 516, 729, SHEET_MARGIN),
    PaperSize("Executive", Text("Executive", "エグゼクティブ", "Executive"), 522, 756, SHEET_MARGIN),
    PaperSize("Postcard", Text("Postcard", "はがき", "明信片"), 284, 419, SHEET_MARGIN),
    PaperSize("EnvDL", Text("Envelope DL", "封筒 DL", "信封 DL"), 312, 624, ENVELOPE_MARGIN),
    PaperSize("EnvC5", Text("Envelope C5", "封筒 C5", "信封 C5"), 459, 649, ENVELOPE_MARGIN),
    PaperSize("Env10", Text("Envelope #10", "封筒 #10", "信封 #10"), 297, 684, ENVELOPE_MARGIN),
    PaperSize(
        "EnvMonarch",
        Text("Envelope Monarch", "封筒 Monarch", "信封 Monarch"),
        279,
        540,
        ENVELOPE_MARGIN,
    ),
    PaperSize(
        "EnvChou3",
        Text("Envelope Chou #3", "封筒 長形 3 号", "信封 长形 3 号"),
        340,
        666,
        ENVELOPE_MARGIN,
    ),
    PaperSize(
        "EnvYou4",
        Text("Envelope You #4", "封筒 洋形 4 号", "信封 洋形 4 号"),
        298,
        666,
        ENVELOPE_MARGIN,
    ),
)

SIZES = {size.keyword: size for size in _SIZES}

# 76.2 x 127 mm to 215.9 x 355.6 mm, rounded to whole points.
FULL_CUSTOM_SIZES = CustomSizes(216, 360, 612, 1008)
# 90 x 148 mm to 215.9 x 297 mm: engines whose multi-purpose tray is no longer than their cassette.
SHORT_CUSTOM_SIZES = CustomSizes(255, 420, 612, 842)

CUSTOM_SIZE_TEXT = Text("Custom Size", "ユーザー定義サイズ", "自定义尺寸")
CUSTOM_SIZE_PARAMETERS = {
    "Width": Text("Width", "幅", "宽度"),
    "Height": Text("Height", "高さ", "高度"),
    "WidthOffset": Text("Width Offset", "幅方向のずらし量", "宽度偏移"),
    "HeightOffset": Text("Height Offset", "高さ方向のずらし量", "高度偏移"),
    "Orientation": Text("Orientation", "給紙の向き", "送纸方向"),
}

"""The printer options of the family: keywords, texts, choices, defaults.

A model takes options from here (see models). Keywords and choice keywords are what the print
panels, scripts and the printer's controller compare, so they never change once published; texts
may.
"""

from typing import NamedTuple, Optional

from .texts import Text, same


class Choice(NamedTuple):
    keyword: str
    text: Text
    device: str = ""  # entries for the page device dictionary, beside the option's own


class CustomInteger(NamedTuple):
    """A whole number that the user may enter instead of picking a choice."""

    text: Text  # of the choice "Custom", which libcups appends to the others
    parameter: str
    minimum: int
    maximum: int
    parameter_text: Text  # shown behind an entry field and as a title, so it names its range


class Option(NamedTuple):
    keyword: str
    text: Text
    choices: tuple
    default: str
    custom: Optional[CustomInteger] = None
    done_by_cups: bool = False  # in the pages themselves, so that the printer must not be told

    def offering(self, *keywords, default=None):
        """The option of a model that has only these choices. They keep the order of the table."""
        unknown = set(keywords) - {choice.keyword for choice in self.choices}
        if unknown:
            raise ValueError(f"option {self.keyword} has no choices {sorted(unknown)}")
        return self._replace(
            choices=tuple(choice for choice in self.choices if choice.keyword in keywords),
            default=default or self.default,
        )


class Group(NamedTuple):
    keyword: str
    text: Text


GENERAL = Group("General", Text("General", "基本", "常规"))
QUALITY = Group("QXQuality", Text("Print Quality", "印刷品質", "打印质量"))
COLOR = Group("QXColor", Text("Color", "カラー", "颜色"))
OPERATION = Group("QXOperation", Text("Printer Operation", "プリンターの動作", "打印机操作"))

PAGE_SIZE = Text("Paper Size", "用紙サイズ", "纸张尺寸")

_ON = Text("On", "オン", "开")
_OFF = Text("Off", "オフ", "关")


def _switch(keyword, text, default="OFF"):
    """An option shown as a check box."""
    return Option(keyword, text, (Choice("OFF", _OFF), Choice("ON", _ON)), default)


# --- General -----------------------------------------------------------------------------------

# The panels take the default choice as the one-sided setting, so that is what it has to be.
DUPLEX = Option(
    "Duplex",
    Text("Two-Sided Printing", "両面印刷", "双面打印"),
    (
        Choice("None", Text("Off (1-Sided)", "オフ（片面）", "关（单面）"), "/Duplex false"),
        Choice(
            "DuplexNoTumble",
            Text("Long-Edge Binding", "長辺とじ", "长边装订"),
            "/Duplex true/Tumble false",
        ),
        Choice(
            "DuplexTumble",
            Text("Short-Edge Binding", "短辺とじ", "短边装订"),
            "/Duplex true/Tumble true",
        ),
    ),
    "None",
)

INPUT_SLOT = Option(
    "QXInputSlot",
    Text("Paper Source", "給紙方法", "纸张来源"),
    (
        Choice("AutoSelect", Text("Auto Select", "自動選択", "自动选择")),
        Choice("Tray1", Text("Tray 1", "トレイ 1", "纸盒 1")),
        Choice("Tray2", Text("Tray 2", "トレイ 2", "纸盒 2")),
        Choice("Tray3", Text("Tray 3", "トレイ 3", "纸盒 3")),
        Choice("MPTray", Text("Multi-Purpose Tray", "多目的トレイ", "多功能纸盒")),
        Choice("Manual", Text("Manual Feed", "手差し", "手动送纸")),
    ),
    "AutoSelect",
)

# The panels know two of these apart from the rest. "PlainDuplex", plain paper that already bears
# print on its back, is never listed; where a job holds it, plain paper is shown. A medium whose text
# begins with "Hagaki", the picture side of a Japanese postcard, is not listed either: the word is
# spelt so wherever nobody could buy such cards, and in Japanese letters where people can.
MEDIA_TYPE = Option(
    "QXMediaType",
    Text("Media Type", "用紙の種類", "介质类型"),
    (
        Choice("Plain", Text("Plain Paper", "普通紙", "普通纸")),
        Choice(
            "PlainDuplex",
            Text("Plain Paper (Second Side)", "普通紙（2 面目）", "普通纸（第二面）"),
        ),
        Choice("Thin", Text("Thin Paper", "普通紙（薄め）", "薄纸")),
        Choice("Thick", Text("Thick Paper", "厚紙", "厚纸")),
        Choice("Thicker", Text("Thicker Paper", "超厚紙", "超厚纸")),
        Choice("BOND", Text("Bond Paper", "ボンド紙", "证券纸")),
        Choice("Label", Text("Labels", "ラベル紙", "标签纸")),
        Choice("Glossy", Text("Glossy Paper", "光沢紙", "光面纸")),
        Choice("Env", Text("Envelopes", "封筒", "信封")),
        Choice("EnvThin", Text("Thin Envelopes", "封筒（薄め）", "薄信封")),
        Choice("EnvThick", Text("Thick Envelopes", "封筒（厚め）", "厚信封")),
        Choice("PostCard", Text("Postcards", "はがき", "明信片")),
        Choice(
            "HagakiUra", Text("Hagaki (Picture Side)", "はがき（裏面）", "Hagaki（图案面）")
        ),
    ),
    "Plain",
)

_PRINTER = Text("Printer", "プリンター", "打印机")

OUTPUT = Option(
    "QXOutput",
    Text("Output To", "出力先", "输出到"),
    (
        Choice("Printer", _PRINTER),
        Choice("FAX", Text("Fax", "ファクス", "传真")),
    ),
    "Printer",
)

# With the fax unit as an accessory, the controller knows the printer itself as no output at all.
OUTPUT_WITH_FAX_UNIT = OUTPUT._replace(
    choices=(Choice("None", _PRINTER), OUTPUT.choices[1]), default="None"
)

MIRROR_PRINT = Option(
    "MirrorPrint",
    Text("Mirror Image", "左右反転印刷", "镜像打印"),
    (Choice("False", _OFF), Choice("True", _ON)),
    "False",
    done_by_cups=True,
)

# --- Print quality -----------------------------------------------------------------------------

RESOLUTION = Option(
    "QXResolution",
    Text("Resolution", "解像度", "分辨率"),
    (
        Choice("600dpi", same("600 dpi")),
        Choice("1200dpi", same("1200 dpi")),
        Choice("2400x600dpi", same("2400 x 600 dpi")),
    ),
    "600dpi",
)

# Of the older controllers: the same choices under the keyword that every PostScript printer has.
STANDARD_RESOLUTION = RESOLUTION._replace(keyword="Resolution")

MONO_COLOR = Option(
    "QXMonoColor",
    Text("Color Mode", "カラーモード", "颜色模式"),
    (
        Choice("Auto", Text("Auto (Color or Mono)", "自動（カラー／モノクロ）", "自动（彩色或黑白）")),
        Choice("Color", Text("Color", "カラー", "彩色")),
        Choice("Mono", Text("Mono", "モノクロ", "黑白")),
    ),
    "Auto",
)

TONER_SAVE = _switch("TonerSaveMode", Text("Toner Save", "トナー節約", "节省墨粉"))

_FIX_INTENSITY = Text("Improve Toner Fixing", "トナーの定着を改善", "改善墨粉定影")
_LESS_PAPER_CURL = Text("Reduce Paper Curl", "用紙のカールを軽減", "减少纸张卷曲")

IMPROVE_OUTPUT = Option(
    "QXImproveOutput",
    Text("Improve Print Output", "印刷結果の改善", "改善打印输出"),
    (
        Choice("OFF", _OFF),
        Choice("QXFixIntensity", _FIX_INTENSITY),
        Choice("QXLessPaperCurl", _LESS_PAPER_CURL),
    ),
    "OFF",
)

# Printers that can do both at a time have a switch for each.
FIX_INTENSITY = _switch("QXFixIntensity", _FIX_INTENSITY)
LESS_PAPER_CURL = _switch("QXLessPaperCurl", _LESS_PAPER_CURL)

REDUCE_GHOST = _switch("QXReduceGhost", Text("Reduce Ghosting", "残像を軽減", "减少重影"))

_DENSITY = Text("Density Adjustment", "濃度調整", "浓度调整")
_STANDARD_DENSITY = Choice("0", Text("Standard", "標準", "标准"))


def density(minimum, maximum):
    """Density as a number in the engine's own steps; 0 is standard and has to be among them."""
    return Option(
        "QXDensityAdjustment",
        _DENSITY,
        (_STANDARD_DENSITY,),
        "0",
        CustomInteger(
            Text("Set Density", "濃度を指定", "指定浓度"),
            "Density",
            minimum,
            maximum,
            Text(
                f"Density ({minimum} to {maximum})",
                f"濃度（{minimum} ～ {maximum}）",
                f"浓度（{minimum} 至 {maximum}）",
            ),
        ),
    )


# Older controllers take no number; each of their steps is a choice.
DENSITY_STEPS = Option(
    "QXDensityAdjustment",
    _DENSITY,
    tuple(
        Choice(str(n), same(f"{n:+}")) if n else _STANDARD_DENSITY for n in range(-6, 7)
    ),
    "0",
)

SLOW_DRYING = _switch(
    "QXSlowDrying", Text("Extra Drying Time", "乾燥時間を長くする", "延长干燥时间")
)

# --- Color -------------------------------------------------------------------------------------

# Who matches colors, the application or the printer. A choice of the print system, not of the
# engine; an application that brings its own profile asks for the first.
MATCHED_BY = Option(
    "AP_ColorMatchingMode",
    Text("Colors Matched By", "色補正を行う側", "颜色匹配执行方"),
    (
        Choice(
            "AP_ApplicationColorMatching", Text("Application", "アプリケーション", "应用程序")
        ),
        Choice("AP_VendorColorMatching", Text("Printer", "プリンター", "打印机")),
    ),
    "AP_VendorColorMatching",
)

COLOR_MATCHING = Option(
    "QXColorMatching",
    Text("Color Matching", "カラーマッチング", "颜色匹配"),
    (
        Choice("Normal", Text("Normal", "標準", "标准")),
        Choice("Vivid", Text("Vivid", "鮮やか", "鲜艳")),
        Choice("Photo", Text("Photo", "写真", "照片")),
        Choice("None", Text("None", "なし", "无")),
    ),
    "Normal",
)

ENHANCE_BLACK = _switch(
    "QXEnhanceBlkPrt", Text("Enhance Black Printing", "黒の印刷品質を向上", "增强黑色打印")
)

GRAY = _switch(
    "QXGray", Text("Print Gray with Black Toner Only", "グレーを黒トナーのみで印刷", "灰色仅用黑色墨粉打印")
)


def _effect(keyword, text):
    """A color effect in the printer's own steps, 0 leaving colors as they are."""
    return Option(keyword, text, tuple(Choice(str(n), same(str(n))) for n in range(-20, 21)), "0")


EFFECTS = (
    _effect("QXBrightness", Text("Brightness", "明るさ", "亮度")),
    _effect("QXContrast", Text("Contrast", "コントラスト", "对比度")),
    _effect("QXRed", Text("Red", "赤", "红色")),
    _effect("QXGreen", Text("Green", "緑", "绿色")),
    _effect("QXBlue", Text("Blue", "青", "蓝色")),
    _effect("QXSaturation", Text("Saturation", "彩度", "饱和度")),
)

# --- Printer operation -------------------------------------------------------------------------


def sleep_time(minimum, maximum, parameter="Time"):
    """Minutes of idleness until the printer sleeps, chosen by the printer or by the user."""
    return Option(
        "QXSleepTime",
        Text("Sleep Time", "スリープまでの時間", "休眠时间"),
        (Choice("Default", Text("Automatic", "自動", "自动")),),
        "Default",
        CustomInteger(
            Text("Manual", "手動", "手动"),
            parameter,
            minimum,
            maximum,
            Text(
                f"Minutes ({minimum} to {maximum})",
                f"分（{minimum} ～ {maximum}）",
                f"分钟（{minimum} 至 {maximum}）",
            ),
        ),
    )


# Printers that are told only whether to sleep.
SLEEP_MODE = Option(
    "QXSleepTime",
    Text("Sleep Mode", "スリープモード", "休眠模式"),
    (Choice("False", _OFF), Choice("True", _ON)),
    "True",
)

TWO_WAY = _switch("QXBiDir", Text("Two-Way Communication", "双方向通信", "双向通信"), "ON")

QUIET_MODE = Option(
    "QXQuietMode",
    Text("Quiet Mode", "静音モード", "静音模式"),
    (
        Choice("UseDeviceSettings", Text("Use Printer Setting", "本体設定に従う", "使用打印机设置")),
        Choice("ON", _ON),
        Choice("OFF", _OFF),
    ),
    "UseDeviceSettings",
)

SKIP_BLANK = _switch("QXSkipBlank", Text("Skip Blank Pages", "白紙ページを省く", "跳过空白页"))

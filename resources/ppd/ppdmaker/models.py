"""The printers of the family and what each of them offers."""

from typing import NamedTuple, Optional

from . import media, options
from .texts import Text

# The print panels that a print dialog shows for these printers, by the name of their bundle.
PRINT_PANELS = "QXCLQuality13PDE.bundle"


class Model(NamedTuple):
    """One printer, which is one PPD file."""

    file_name: str
    number: int  # *cupsModelNumber: the generation, by which the panels choose their defaults
    name: str  # maker and model
    short_name: str  # shown where space is short
    pages_per_minute: int
    color: bool
    default_size: str
    sizes: tuple
    custom_sizes: Optional[media.CustomSizes]
    groups: tuple  # of (group, options)
    # Pairs of (option keyword, choice keyword) that the engine cannot do together.
    conflicts: tuple
    color_matching_name: Optional[Text]  # of the printer's own color matching, if it has one


def _each_with_each(left, right):
    """Every pairing of the choices of two options, each given as (option, choices)."""
    return tuple(((left[0], a), (right[0], b)) for a in left[1] for b in right[1])


_TWO_SIDED = ("Duplex", ("DuplexNoTumble", "DuplexTumble"))
_NARROW_PAPER = ("PageSize", ("Postcard", "EnvDL", "EnvC5", "Env10", "EnvMonarch"))

_COLOR_MATCHING_NAME = Text(
    "Corvana Color Matching", "Corvana カラーマッチング", "Corvana 颜色匹配"
)

# Color, for homes and small offices in Japan: one cassette, a hand feed and no two-sided printing.
# Its oldest controller knows neither numbers for the density nor names for its resolution.
CL_220 = Model(
    file_name="corvana-cl2.ppd",
    number=2,
    name="Corvana CL-220 Color",
    short_name="Corvana CL-220 Color",
    pages_per_minute=16,
    color=True,
    default_size="A4",
    sizes=("A4", "A5", "B5", "Postcard", "EnvChou3", "EnvYou4"),
    custom_sizes=None,
    groups=(
        (
            options.GENERAL,
            (
                options.MEDIA_TYPE.offering(
                    "Plain", "Thin", "Thick", "BOND", "Label", "Glossy", "Env", "PostCard",
                    "HagakiUra",
                ),
            ),
        ),
        (
            options.QUALITY,
            (
                options.STANDARD_RESOLUTION.offering("600dpi", "1200dpi"),
                options.MONO_COLOR.offering("Color", "Mono", default="Color"),
                options.TONER_SAVE,
                options.FIX_INTENSITY,
                options.LESS_PAPER_CURL,
                options.DENSITY_STEPS,
            ),
        ),
        (
            options.COLOR,
            (
                options.COLOR_MATCHING.offering("Normal", "Vivid"),
                options.GRAY,
                *options.EFFECTS,
            ),
        ),
        (options.OPERATION, (options.sleep_time(1, 60), options.TWO_WAY)),
    ),
    conflicts=(),
    color_matching_name=_COLOR_MATCHING_NAME,
)

# Color, for American and European offices, with envelopes printed one-sided only. Adjusts no more
# than brightness and contrast.
CL_330 = Model(
    file_name="corvana-cl3.ppd",
    number=3,
    name="Corvana CL-330 Color",
    short_name="Corvana CL-330 Color",
    pages_per_minute=24,
    color=True,
    default_size="Letter",
    sizes=(
        "A4", "Letter", "Legal", "A5", "B5", "Executive", "EnvDL", "EnvC5", "Env10", "EnvMonarch",
    ),
    custom_sizes=media.FULL_CUSTOM_SIZES,
    groups=(
        (
            options.GENERAL,
            (
                options.DUPLEX,
                options.INPUT_SLOT.offering("AutoSelect", "Tray1", "MPTray"),
                options.MEDIA_TYPE.offering(
                    "Plain", "Thin", "Thick", "BOND", "Label", "Env", "EnvThick",
                ),
                options.MIRROR_PRINT,
            ),
        ),
        (
            options.QUALITY,
            (
                options.RESOLUTION.offering("600dpi", "2400x600dpi"),
                options.MONO_COLOR,
                options.FIX_INTENSITY,
                options.LESS_PAPER_CURL,
                options.REDUCE_GHOST,
                options.density(0, 10),
            ),
        ),
        (
            options.COLOR,
            (
                options.MATCHED_BY,
                options.COLOR_MATCHING.offering("Normal", "None"),
                options.ENHANCE_BLACK,
                *(
                    effect
                    for effect in options.EFFECTS
                    if effect.keyword in ("QXBrightness", "QXContrast")
                ),
            ),
        ),
        (
            options.OPERATION,
            (
                # Its controller calls the number so.
                options.sleep_time(1, 240, parameter="Minutes"),
                options.QUIET_MODE.offering("ON", "OFF", default="OFF"),
                options.SKIP_BLANK,
            ),
        ),
    ),
    conflicts=(
        # Declared by the engine's maker, unlike the newer printers': a two-sided job has to be made
        # one-sided before an envelope can be chosen.
        *_each_with_each(("QXMediaType", ("Env", "EnvThick")), _TWO_SIDED),
    ),
    color_matching_name=_COLOR_MATCHING_NAME,
)

# Monochrome, the cheapest of the family.
ML_310 = Model(
    file_name="corvana-ml3.ppd",
    number=3,
    name="Corvana ML-310",
    short_name="Corvana ML-310",
    pages_per_minute=30,
    color=False,
    default_size="A4",
    sizes=("A4", "Letter", "Legal", "A5", "B5", "Executive", "EnvDL", "EnvC5"),
    custom_sizes=None,
    groups=(
        (
            options.GENERAL,
            (
                options.DUPLEX,
                options.INPUT_SLOT.offering("Tray1", "Manual", default="Tray1"),
                options.MEDIA_TYPE.offering("Plain", "Thin", "Thick", "BOND", "Env"),
            ),
        ),
        (
            options.QUALITY,
            (options.TONER_SAVE, options.LESS_PAPER_CURL, options.density(-3, 3)),
        ),
        (options.OPERATION, (options.SLEEP_MODE, options.SKIP_BLANK)),
    ),
    conflicts=(),
    color_matching_name=None,
)

# Color, for designers: heavy and coated media, pictures, and the finest resolution as the default.
CL_440 = Model(
    file_name="corvana-cl4.ppd",
    number=4,
    name="Corvana CL-440 Color",
    short_name="Corvana CL-440 Color",
    pages_per_minute=28,
    color=True,
    default_size="A4",
    sizes=("A4", "Letter", "A5", "B5", "Postcard", "EnvDL", "EnvC5", "EnvYou4"),
    custom_sizes=media.SHORT_CUSTOM_SIZES,
    groups=(
        (
            options.GENERAL,
            (
                options.DUPLEX,
                options.INPUT_SLOT.offering("AutoSelect", "Tray1", "Tray2", "Tray3", "MPTray"),
                options.MEDIA_TYPE.offering(
                    "Plain", "PlainDuplex", "Thin", "Thick", "Thicker", "Label", "Glossy", "Env",
                    "EnvThin", "EnvThick", "PostCard",
                ),
            ),
        ),
        (
            options.QUALITY,
            (
                options.RESOLUTION.offering("600dpi", "1200dpi", default="1200dpi"),
                options.MONO_COLOR,
                options.TONER_SAVE,
                options.SLOW_DRYING,
            ),
        ),
        (
            options.COLOR,
            (
                options.MATCHED_BY,
                options.COLOR_MATCHING,
                options.ENHANCE_BLACK,
                options.GRAY,
                *options.EFFECTS,
            ),
        ),
        (
            options.OPERATION,
            (options.sleep_time(5, 240), options.QUIET_MODE, options.SKIP_BLANK),
        ),
    ),
    conflicts=(
        *_each_with_each(("QXMediaType", ("Thicker", "Glossy")), _TWO_SIDED),
        *_each_with_each(
            ("PageSize", ("Postcard", "EnvDL", "EnvC5", "EnvYou4")),
            ("QXInputSlot", ("Tray2", "Tray3")),
        ),
    ),
    color_matching_name=_COLOR_MATCHING_NAME,
)

# Color printer, scanner and fax in one, for Asian offices: Letter only as a size of one's own.
MF_450 = Model(
    file_name="corvana-mf4.ppd",
    number=4,
    name="Corvana MF-450 Color",
    short_name="Corvana MF-450 Color",
    pages_per_minute=26,
    color=True,
    default_size="A4",
    sizes=("A4", "A5", "B5", "Postcard", "EnvDL", "EnvChou3"),
    custom_sizes=media.FULL_CUSTOM_SIZES,
    groups=(
        (
            options.GENERAL,
            (
                options.DUPLEX,
                options.INPUT_SLOT.offering("AutoSelect", "Tray1", "Tray2", "MPTray"),
                options.MEDIA_TYPE.offering(
                    "Plain", "Thin", "Thick", "Label", "Env", "PostCard", "HagakiUra",
                ),
                options.OUTPUT_WITH_FAX_UNIT,
            ),
        ),
        (
            options.QUALITY,
            (
                options.STANDARD_RESOLUTION.offering("600dpi", "2400x600dpi"),
                options.MONO_COLOR,
                options.TONER_SAVE,
                options.IMPROVE_OUTPUT,
                options.density(-5, 5),
            ),
        ),
        (
            options.COLOR,
            (
                options.COLOR_MATCHING.offering("Normal", "Vivid", "None"),
                options.ENHANCE_BLACK,
                options.GRAY,
                *options.EFFECTS,
            ),
        ),
        (options.OPERATION, (options.QUIET_MODE.offering("ON", "OFF", default="OFF"),)),
    ),
    conflicts=(
        *_each_with_each(
            ("PageSize", ("Postcard", "EnvDL", "EnvChou3")), ("QXInputSlot", ("Tray2",))
        ),
    ),
    color_matching_name=_COLOR_MATCHING_NAME,
)

# Color, for workgroups: the newest, with everything that the panels offer.
CL_550 = Model(
    file_name="corvana-cl5.ppd",
    number=5,
    name="Corvana CL-550 Color",
    short_name="Corvana CL-550 Color",
    pages_per_minute=33,
    color=True,
    default_size="A4",
    sizes=(
        "A4", "Letter", "Legal", "A5", "B5", "Executive", "Postcard", "EnvDL", "EnvC5", "Env10",
        "EnvMonarch",
    ),
    custom_sizes=media.FULL_CUSTOM_SIZES,
    groups=(
        (
            options.GENERAL,
            (
                options.DUPLEX,
                options.INPUT_SLOT.offering("AutoSelect", "Tray1", "Tray2", "MPTray", "Manual"),
                options.MEDIA_TYPE.offering(
                    "Plain", "Thin", "Thick", "Thicker", "BOND", "Label", "Glossy", "Env",
                    "EnvThin", "EnvThick", "PostCard",
                ),
                options.OUTPUT,
            ),
        ),
        (
            options.QUALITY,
            (
                options.RESOLUTION,
                options.MONO_COLOR,
                options.TONER_SAVE,
                options.IMPROVE_OUTPUT,
                options.REDUCE_GHOST,
                options.density(-6, 6),
                options.SLOW_DRYING,
            ),
        ),
        (
            options.COLOR,
            (
                options.MATCHED_BY,
                options.COLOR_MATCHING.offering("Normal", "Vivid", "None"),
                options.ENHANCE_BLACK,
                options.GRAY,
                *options.EFFECTS,
            ),
        ),
        (
            options.OPERATION,
            (options.sleep_time(1, 99), options.QUIET_MODE, options.SKIP_BLANK),
        ),
    ),
    conflicts=(
        # Stiff and coated paper does not pass the turning path. Envelopes, labels and postcards
        # are missing here on purpose: the panels make such a job one-sided when it is printed,
        # and say so; a conflict would refuse the very choice that the paper asks for.
        *_each_with_each(("QXMediaType", ("Thicker", "Glossy")), _TWO_SIDED),
        # The cassette of tray 2 has no guides for narrow paper.
        *_each_with_each(_NARROW_PAPER, ("QXInputSlot", ("Tray2",))),
    ),
    color_matching_name=_COLOR_MATCHING_NAME,
)

MODELS = (CL_220, CL_330, ML_310, CL_440, MF_450, CL_550)

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

CL_550 = Model(
    file_name="corvana-cl5.ppd",
    number=5,
    name="Corvana CL-550 Color",
    short_name="Corvana CL-550 Color",
    pages_per_minute=33,
    default_size="A4",
    sizes=tuple(media.SIZES),
    custom_sizes=media.FULL_CUSTOM_SIZES,
    groups=(
        (
            options.GENERAL,
            (options.DUPLEX, options.INPUT_SLOT, options.MEDIA_TYPE, options.OUTPUT),
        ),
        (
            options.QUALITY,
            (
                options.RESOLUTION,
                options.MONO_COLOR,
                options.TONER_SAVE,
                options.IMPROVE_OUTPUT,
                options.REDUCE_GHOST,
                options.DENSITY,
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
            (options.SLEEP_TIME, options.QUIET_MODE, options.SKIP_BLANK),
        ),
    ),
    conflicts=(
        # Stiff and coated paper does not pass the turning path. Envelopes, labels and postcards
        # are missing here on purpose: the panels make such a job one-sided when it is printed,
        # and say so; a conflict would refuse the very choice that the paper asks for.
        *_each_with_each(("QXMediaType", ("Thicker", "Glossy")), _TWO_SIDED),
        # The cassette of tray 2 has no guides for narrow paper.
        *_each_with_each(
            ("PageSize", ("Postcard", "EnvDL", "EnvC5", "Env10", "EnvMonarch")),
            ("QXInputSlot", ("Tray2",)),
        ),
    ),
    color_matching_name=Text(
        "Corvana Color Matching", "Corvana カラーマッチング", "Corvana 颜色匹配"
    ),
)

MODELS = (CL_550,)

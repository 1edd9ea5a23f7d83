"""PPDs that are as large in one respect as PpdBounds (dialog/session/PpdBounds.h) lets them be: whatever
libcups or the program does with each of something beside each of something else, takes longest with one of them."""
import pathlib

ROOT = pathlib.Path(__file__).resolve().parents[2]
OPTIONS, CHOICES, ALL_CHOICES, SIZES, GROUPS, ATTRIBUTES, SAME = 5_000, 5_000, 50_000, 2_000, 1_000, 20_000, 5_000
UI_CONSTRAINTS = 20_000


def _sample():
    return (ROOT / "resources/ppd/corvana-cl2.ppd").read_text()


def _option(keyword, choices, kind="PickOne", opening="OpenUI", code=""):
    return (f"*{opening} *{keyword}/{keyword}: {kind}\n*Default{keyword}: C0\n"
            + "".join(f'*{keyword} C{i}/T{i}: "{code}"\n' for i in range(choices))
            + f"*{opening.replace('Open', 'Close')}: *{keyword}\n")


def _options(count, choices, **how):
    return "".join(_option(f"O{i}", choices, **how) for i in range(count))


def _lines(count, line):
    """`line` with "#" for the number of each."""
    return "".join(line.replace("#", str(i)) + "\n" for i in range(count))


def _constraint(terms, keyword, name=""):
    """libcups takes no longer lines than 255 bytes, but texts of several."""
    return f'*{keyword} {name}: "' + "\n ".join(terms) + '"\n*End\n'


def _constraints(options, lines, terms, last, keyword="cupsUIConstraints"):
    """Which hold but for the last choice of each, if that does not."""
    return (_sample() + _options(options, 3)
            + "".join(_constraint([f"*O{(line + i) % options} C0" for i in range(terms - 1)]
                                  + [f"*O{line % options} {last}"], keyword, f"R{line}") for line in range(lines)))


def _papers():
    """Names and measures of papers, each of which is looked up among all."""
    keywords = ("PageSize", "PageRegion")
    text = "".join(f"*OpenUI *{one}/P: PickOne\n*Default{one}: P0\n" + _lines(SIZES, f'*{one} P#/P#: "a"')
                   + f"*CloseUI: *{one}\n" for one in keywords)
    return ('*PPD-Adobe: "4.3"\n*FormatVersion: "4.3"\n' + text + "*DefaultImageableArea: P0\n"
            + _lines(SIZES, '*ImageableArea P#: "0 0 612 792"') + "*DefaultPaperDimension: P0\n"
            + _lines(SIZES, '*PaperDimension P#: "612 792"'))


def _long_codes():
    """Of 200 KB each, 24 MB together."""
    code = ("% nothing\n" * 20_000) + "1 pop"
    return _sample() + _options(60, 2, code=code)


def _localized():
    """What libcups looks for a text of each: among all that begin alike."""
    return (_sample() + '*cupsLanguages: "de"\n' + _options(4, CHOICES)
            + "".join(_lines(SAME - 100, f'*de.O{i} C#/Wort #: ""') for i in range(4)))


def _localized_options():
    return (_sample() + '*cupsLanguages: "de"\n' + _options(OPTIONS - 100, 3)
            + _lines(SAME - 400, '*de.Translation X#/Wort #: ""'))


def _custom_options():
    """Whether a custom value has a place of its own in the job is looked for in all lines that say so."""
    return (_sample() + _options(2_000, 3) + _lines(SAME - 1, "*NonUIOrderDependency: # AnySetup *CustomO# True")
            + _lines(2_000, '*CustomO# True: "pop"\n*ParamCustomO# Value/V: 1 int 0 100'))


# What each is called, and how it is made.
KINDS = {
    "papers": _papers,
    "options": lambda: _sample() + _options(OPTIONS - 50, 9),
    "options of several choices": lambda: _sample() + _options(OPTIONS - 50, 9, kind="PickMany"),
    "choices": lambda: _sample() + _options(9, CHOICES),
    "groups": lambda: _sample() + "".join(f"*OpenGroup: G{i}/G\n{_option(f'O{i}', 3)}*CloseGroup: G{i}\n"
                                          for i in range(GROUPS - 20)),
    "groups in a group": lambda: _sample() + "*OpenGroup: G/G\n" + "".join(
        f"*OpenSubGroup: G{i}/G\n{_option(f'O{i}', 3)}*CloseSubGroup: G{i}\n" for i in range(GROUPS - 20))
    + "*CloseGroup: G\n",
    "job language": lambda: _sample() + _options(OPTIONS - 50, 3, opening="JCLOpenUI", code="@PJL"),
    "constraints": lambda: _sample() + _options(150, 3) + _lines(
        UI_CONSTRAINTS // 150 - 1, "".join(f"*UIConstraints: *O{i} C1 *O{149 - i} C#\n" for i in range(150))),
    "constraints that hold but for one choice": lambda: _constraints(150, 790, 50, "C2"),
    "constraints that are broken": lambda: _constraints(150, 790, 50, "C0"),
    "ways out of constraints": lambda: _constraints(150, 750, 50, "C0") + "".join(
        _constraint([f"*O{i} C1" for i in range(50)], "cupsUIResolver", f"R{line}") for line in range(39)),
    "constraints of many options": lambda: _constraints(OPTIONS - 100, 380, 5, "C2"),
    "filters": lambda: _sample() + _options(OPTIONS - 50, 3, code="a") + _lines(
        SAME - 5, '*cupsFilter: "application/vnd.cups-postscript # -"'),
    "filters of two types": lambda: _sample() + _lines(
        SAME - 5, '*cupsFilter2: "application/pdf application/vnd.x# # -"'),
    "filters before": lambda: _sample() + _lines(SAME - 5, '*cupsPreFilter: "application/pdf # -"'),
    "presets of the maker's": lambda: _sample() + _options(100, 3) + _lines(
        SAME - 5, '*APPrinterPreset P#/P: "*O1 C1 *O2 C2"'),
    "finishings": lambda: _sample() + _options(100, 50) + _lines(SAME - 5, '*cupsIPPFinishings #/F: "*O1 C1"'),
    "places": lambda: _sample() + _options(OPTIONS - 50, 3) + _lines(SAME - 50, "*OrderDependency: # AnySetup *O#"),
    "parameters": lambda: _sample() + _option("O0", 3) + '*CustomO0 True: "pop"\n' + _lines(
        SAME - 5, "*ParamCustomO0 P#/P: 1 string 0 10"),
    "custom options": _custom_options,
    "long codes": _long_codes,
    "texts": _localized,
    "texts of options": _localized_options,
    "attributes": lambda: _sample() + "".join(_lines(SAME, f'*Thing{i} T#: "a"') for i in range(3)),
}

# Beyond them, which is to be said at once: libcups would take minutes.
BEYOND = {
    "long constraints": lambda: _constraints(2_000, 100, 20_000, "C2"),
    "constraints that ask too much": lambda: _constraints(2_000, 790, 50, "C2"),
    "long ways out": lambda: _constraints(100, 10, 5, "C0") + _constraint(
        [f"*O{i % 100} C1" for i in range(20_000)], "cupsUIResolver", "R0"),
    "papers": lambda: _papers().replace("*CloseUI", '*PageSize Q/Q: "a"\n*CloseUI'),
}

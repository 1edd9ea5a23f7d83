"""What the lines of a PPD say of its options, read without the functions that the program reads them
with, and whether a choice stands in the data for a printer."""
import re

from mutation import mutate_text

_OPTION = re.compile(r"^\*(?:JCL)?OpenUI\s+\*([^\s/:]+)", re.MULTILINE)
_OPTION_LINES = re.compile(r"^\*(?:JCL)?OpenUI\s+\*([^\s/:]+).*?(?:^\*(?:JCL)?CloseUI|\Z)", re.MULTILINE | re.DOTALL)
_DEFAULT = re.compile(r"^\*Default([^\s/:]+):\s*(\S+)", re.MULTILINE)
_CONSTRAINT = re.compile(r'^\*(?:(?:Non)?UIConstraints|cupsUIConstraints[^:\n]*):\s*"?([^"\n]*)', re.MULTILINE)
_CONSTRAINED = re.compile(r"\*(\S+)(?:[ \t]+([^*\s]\S*))?")  # without a choice: whatever is not off
_CHOICE = re.compile(r'^\*([^\s/:.%]+)[ \t]+([^\s/:]+)(?:/[^:\n]*)?:\s*"([^"]*)"', re.MULTILINE)

# Where a printer's own parts are; damaged, it may end with the file.
_PARTS = re.compile(r"^\*OpenGroup:?\s*InstallableOptions?\b.*?(?:^\*CloseGroup|\Z)", re.MULTILINE | re.DOTALL)
_SECRET = re.compile(r"^\*(?:JCL)?OpenUI\s+\*(?=[^:\n]*(?:PIN|Pin\b|Pin(?=[A-Z])|(?i:passw|passc|access ?code)))"
                     r"([^\s/:]+)", re.MULTILINE)

_OPTION_BLOCK = re.compile(rb"^\*(?:JCL)?OpenUI\s+\*([^\s/:]+).*?^\*(?:JCL)?CloseUI[^\n]*\n", re.MULTILINE | re.DOTALL)
_SECTIONS = [b"AnySetup", b"DocumentSetup", b"PageSetup", b"Prolog", b"ExitServer", b"JCLSetup", b"Nowhere", b""]


def mutate_option(random, data, others):
    """Changes the lines of one option, or where in the job it is said. Gives its keyword as well."""
    block = random.choice(list(_OPTION_BLOCK.finditer(data)) or [re.search(rb".*", data)])
    keyword = block.group(1) if block.re is _OPTION_BLOCK else b""
    changed = block.group()
    if random.random() < 0.25:
        order = re.search(rb"\*OrderDependency: *[0-9.]+ +(\w+)", changed)
        if order:
            changed = changed[:order.start(1)] + random.choice(_SECTIONS) + changed[order.end(1):]
    else:
        changed = mutate_text(random, changed, others)
    return data[:block.start()] + changed + data[block.end():], keyword.decode("latin-1")


def _plain(code):
    return " ".join(code.split())


def _decoded(code):
    """Hexadecimal digits between angle brackets stand for bytes."""
    return re.sub(r"<([0-9A-Fa-f\s]*)>",
                  lambda m: bytes.fromhex(re.sub(r"\s", "", m.group(1))).decode("latin-1")
                  if len(re.sub(r"\s", "", m.group(1))) % 2 == 0 else m.group(), code)


class Ppd:
    """Choices and their codes. A choice that a damaged PPD has twice has two codes."""

    def __init__(self, data):
        text = data.decode("latin-1").replace("\r\n", "\n").replace("\r", "\n")
        self.codes = {}
        self.defaults = set(_DEFAULT.findall(text))  # a damaged PPD may have two of an option
        keywords = set(_OPTION.findall(text))
        # What is no setting for a later job: a printer's parts, how soon it sleeps, and passwords.
        self.not_kept = {"QXSleepTime"}.union(*(_OPTION.findall(part) for part in _PARTS.findall(text)),
                                              _SECRET.findall(text))
        # What stands behind the end of an option is none of its choices.
        self.choices = {(keyword, choice) for lines in _OPTION_LINES.finditer(text)
                        for keyword, choice, _ in _CHOICE.findall(lines.group()) if keyword == lines.group(1)}
        # A printer that lacks what it collates with gets its copies collated by the filters. That is an attribute
        # of the job then, and nothing for the printer to hear of.
        self.is_collated_before = any(self._excludes_collation(_CONSTRAINED.findall(constraint))
                                      for constraint in _CONSTRAINT.findall(text))
        for keyword, choice, code in _CHOICE.findall(text):
            if keyword in keywords and "\0" not in keyword + choice:  # which no command line can hold
                self.codes.setdefault(keyword, {}).setdefault(choice, []).append(code)

    def _excludes_collation(self, constraint):
        others = [one for one in constraint if one[0] != "Collate"]
        excluded = {choice for keyword, choice in constraint if keyword == "Collate"}
        return bool(excluded & {"True", "On", ""}) and len(others) == 1 and others[0] in self.defaults

    def some_choices(self, random, most, wanted=()):
        """Choices of so many options, KEYWORD=CHOICE; `wanted` options among them."""
        keywords = sorted(set(self.codes) - set(wanted))
        picked = random.sample(keywords, min(len(keywords), random.randint(0 if wanted else 1, most)))
        picked += [keyword for keyword in wanted if keyword in self.codes]
        return [f"{keyword}={random.choice(sorted(self.codes[keyword]))}" for keyword in picked]

    def missing(self, choices, stream):
        """Those of the choices, KEYWORD=CHOICE, whose code the stream lacks. The last one of a keyword
        counts. A choice without a code has nothing to be found, and a default is done unasked."""
        text = _plain(stream.decode("latin-1"))
        return [f"{keyword}={choice}" for keyword, choice in
                dict(choice.split("=", 1) for choice in choices).items()
                if not (keyword == "Collate" and self.is_collated_before)
                and (keyword, choice) not in self.defaults and not self._stands_in(keyword, choice, text)]

    def kept_in(self, preset, keyword):
        """What a preset says of an option, or of the attribute that stands for it."""
        if keyword == "Collate" and self.is_collated_before:
            collate = preset.get("attributes", {}).get("collate")
            names = {"true": ("True", "On"), "false": ("False", "Off")}.get(collate, ())
            return next((name for name in names if (keyword, name) in self.choices), None)
        return preset.get("options", {}).get(keyword)

    def is_the_same(self, keyword, kept, choice):
        """A number that no choice has is the custom value of that number."""
        return kept == choice or (kept == f"Custom.{choice}" and (keyword, choice) not in self.choices)

    def _stands_in(self, keyword, choice, text):
        codes = list(self.codes.get(keyword, {}).get(choice, []))
        if keyword == "PageSize":  # CUPS says the other one where a tray was chosen by hand
            codes += self.codes.get("PageRegion", {}).get(choice, [])
        forms = {_plain(form) for code in codes for form in (code, _decoded(code))}
        return not forms or "" in forms or any(form in text for form in forms)

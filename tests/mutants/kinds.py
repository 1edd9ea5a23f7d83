"""The kinds of runs: what is mutated in each, how the program is called, and what has to be true of the
end beside what is never right. Each is a function that fills a Case."""
import json
import os
import pathlib
import shutil
import signal

import answering
import seeds
from mutation import HOSTILE, NUMBERS, mutate_bytes, mutate_text, resized_png
from ppd import Ppd, mutate_option

# What is asked for without regard to the printer; some of it cannot be.
ATTRIBUTES = ["number-up=2", "number-up=4", "number-up=16", "sides=two-sided-long-edge", "media=A4", "media=a5",
              "page-ranges=1-2", "page-ranges=2", "page-set=odd", "outputorder=reverse", "mirror", "booklet=left",
              "repeat=2", "fit-to-page", "scaling=50", "landscape", "orientation-requested=4", "page-border=single",
              "collate=true", "copies=2", "print-color-mode=monochrome", "print-quality=5", "job-sheets=standard",
              "media=Custom.100x200mm", "page-left=36", "cpi=12", "position=top-left", "finishings=4",
              "sides-by-hand=long-edge", "put-back=face-up", "job-hold-until=12:30", "natural-scaling=50", "raw"]


class Case:
    """One run: a folder of its own, in which a user lives, and a command line."""

    def __init__(self, folder, chance, seed, program, bundles):
        self.folder = folder
        self.random = chance
        self.seed = seed
        self.program = program
        self.bundles = bundles
        self.arguments = ["--no-dialog"]
        self.environment = {}
        self.choices = []      # of the PPD, that were asked for as KEYWORD=CHOICE
        self.ppd = None        # what was made of the PPD, where choices are to be looked for
        self.expects = []      # functions that tell what is wrong with an end, after Case and End
        self.statuses = (0, 1, 2, 3, 4)
        self.end_after = None  # seconds; only for a window
        self.server = None     # to be stopped
        for name in ("work", "home", "runtime", "tmp"):
            (folder / name).mkdir(parents=True)
        (folder / "runtime").chmod(0o700)

    def write(self, name, content):
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)
        return str(path)

    def command(self):
        """No word is longer than the system takes."""
        return [str(self.program), "--bundle-root", str(self.bundles), *(word[:100_000] for word in self.arguments)]

    def all_environment(self):
        """Nothing of the tester's own decides, and no print server is there but the case's."""
        kept = ("PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS", "LD_LIBRARY_PATH")
        return {**{name: os.environ[name] for name in kept if name in os.environ},
                "HOME": str(self.folder / "home"), "XDG_RUNTIME_DIR": str(self.folder / "runtime"),
                "TMPDIR": str(self.folder / "tmp"), "LC_ALL": "C.UTF-8", "CUPS_SERVERROOT": "/nonexistent",
                "CUPS_SERVER": "/nonexistent/cups.sock", "DBUS_SESSION_BUS_ADDRESS": "disabled:",
                "DBUS_SYSTEM_BUS_ADDRESS": "disabled:", "CORVANA_PRINT_POLICY": str(self.folder / "policy"),
                "CORVANA_PRINT_PANELS": str(self.folder / "panels.conf"), **self.environment}

    # What every kind is made of

    def use_ppd(self, content):
        self.arguments += ["--ppd", self.write("printer.ppd", content)]
        self.ppd = Ppd(content)

    def ask_for_choices(self, most=3, keywords=()):
        self.choices = self.ppd.some_choices(self.random, most, keywords)
        for choice in self.choices:
            self.arguments += ["-o", choice]

    def print_to_file(self, document):
        self.arguments += ["--output", "job.ps", document]
        self.expects += [_prints_or_leaves_nothing, _has_what_was_asked_for]

    def keep_as_preset(self):
        """Costs a fraction of printing, and goes the same way up to the filters."""
        self.arguments += ["--save-preset", "Kept"]
        self.expects += [_keeps_what_was_asked_for]


def problems_of(case, end):
    yield from end.problems(case.statuses)
    if any((case.folder / "tmp").iterdir()):
        yield f"left in the temporary folder: {os.listdir(case.folder / 'tmp')}"
    for expectation in case.expects:
        yield from expectation(case, end)


def _prints_or_leaves_nothing(case, end):
    left = sorted(os.listdir(case.folder / "work"))
    if end.status != 0:
        if left:
            yield f"nothing was printed, and this was left: {left}"
    elif left != ["job.ps"] or not (case.folder / "work/job.ps").stat().st_size:
        yield f"printed, and there is {left}"


def _has_what_was_asked_for(case, end):
    result = case.folder / "work/job.ps"
    if end.status == 0 and case.choices and result.exists():
        stream = result.read_bytes()
        choices = _left_of(case.choices, end)
        if stream.count(b"\n%%Page: ") == 1:  # which CUPS prints one-sided, whatever was chosen
            choices = [choice for choice in choices if not choice.startswith("Duplex=")]
        if b"\n%RBINumCopies: 1\n" in stream:  # of which CUPS collates none, whatever was chosen
            choices = [choice for choice in choices if not choice.startswith("Collate=")]
        if missing := case.ppd.missing(choices, stream):
            yield f"printed without {', '.join(missing)}"


def _left_of(choices, end):
    """Envelopes and labels have no back: what their panel turns off, it says."""
    if b"Two-sided printing has been turned off" in end.err:
        return [choice for choice in choices if not choice.startswith("Duplex=")]
    return choices


def _keeps_what_was_asked_for(case, end):
    if end.status != 0:
        return
    preset = _preset_kept(case.folder / "home")
    for keyword, choice in dict(choice.split("=", 1) for choice in case.choices).items():
        kept = case.ppd.kept_in(preset, keyword)
        if keyword not in case.ppd.not_kept and not case.ppd.is_the_same(keyword, kept, choice):
            yield f"kept {keyword}={kept} instead of {choice}"


def _preset_kept(folder):
    """Other presets of the folder may be damaged."""
    for path in folder.rglob("*.json"):
        try:
            preset = json.loads(path.read_bytes())
        except ValueError:
            continue
        if isinstance(preset, dict) and preset.get("name") == "Kept":
            return preset
    return {}


# The kinds

def ppd(case):
    """A mutated PPD, with choices of it. Most lines of a PPD are translations, so that as a rule the lines of
    an option or two are mutated by themselves, and that option is chosen from."""
    content = seeds.some_ppd(case.random, case.seed)
    others = seeds.texts("resources/ppd/*.ppd") + seeds.texts("fuzz/corpus/ppd_session/*.ppd")
    keywords = []
    if case.random.random() < 0.7:
        for _ in range(case.random.choice((1, 1, 2, 3))):
            content, keyword = mutate_option(case.random, content, others)
            keywords.append(keyword)
    else:
        content = mutate_text(case.random, content, others)
    case.use_ppd(content)
    if case.random.random() < 0.85:
        case.ask_for_choices(3, keywords)
    if case.random.random() < 0.42:
        case.print_to_file(str(seeds.ROOT / "tests/data/pages.pdf"))
    else:
        case.keep_as_preset()


def options(case):
    """A PPD as it is, with choices of it, attributes, and what neither is."""
    case.use_ppd(seeds.some_ppd(case.random, case.seed))
    case.ask_for_choices(4)
    given = []
    for _ in range(case.random.choice((0, 0, 1, 1, 2))):
        option = case.random.choice(ATTRIBUTES)
        if case.random.random() < 0.4:
            option = mutate_text(case.random, option.encode(), [b"\n".join(HOSTILE)])
            option = os.fsdecode(option.replace(b"\0", b""))
        given += ["-o", option]
    if case.random.random() < 0.2:
        keyword = case.random.choice(sorted(case.ppd.codes))
        given += ["-o", f"{keyword}=Custom.{os.fsdecode(case.random.choice(NUMBERS))}"]
    if case.random.random() < 0.2:
        given += ["-o", os.fsdecode(mutate_text(case.random, case.random.choice(case.choices).encode(), [b"="])
                                    .replace(b"\0", b""))]
    # In front: of an option that is said twice the last counts, which is what is looked for.
    case.arguments += given + [word for choice in case.choices for word in ("-o", choice)]
    if case.random.random() < 0.3:
        case.print_to_file(str(seeds.ROOT / "tests/data/pages.pdf"))
    else:
        case.arguments += ["--summary"]
        case.keep_as_preset()


def document(case):
    """A mutated document, under its own name or another."""
    all_documents = seeds.documents()
    name = case.random.choice(sorted(all_documents))
    mutate = mutate_text if name.endswith((".txt", ".ps", ".pdf")) and case.random.random() < 0.5 else mutate_bytes
    if name.endswith(".png") and case.random.random() < 0.4:
        content = resized_png(case.random, all_documents[name])
    else:
        content = mutate(case.random, all_documents[name], list(all_documents.values()))
    if case.random.random() < 0.1:
        name = case.random.choice(sorted(all_documents))
    path = case.write(name, content)
    if case.random.random() < 0.5:
        case.arguments += ["-d", "pdf"]
    else:
        case.use_ppd(seeds.read("resources/ppd/*.ppd")["corvana-ml3.ppd"])
        case.arguments += ["-o", "QXMediaType=Thick"]
        case.choices = ["QXMediaType=Thick"]
    if case.random.random() < 0.3:
        case.arguments += ["-o", case.random.choice(ATTRIBUTES)]
    case.print_to_file(path)


def preferences(case):
    """What programs, users and administrators keep in files, mutated, all of it read in one run."""
    kept = {".config/corvana-print/com.corvana.print.dialog.ini": "preferences",
            ".config/corvana-print/com.corvana.print.pde.QXCLQuality13PDE.ini": "preferences",
            ".config/corvana-print/instances.json": "panel_rules",
            ".config/corvana-print/known-servers": "known_servers",
            ".cups/lpoptions": "lpoptions",
            ".local/share/corvana-print/presets/Corvana-CL-550-Color-939ad08a9d1ea11a/Reports-dacca3cba3f346a4.json":
                "preset_file",
            "../policy/50-desk.conf": "policy_file",
            "../panels.conf": "panel_rules"}
    for name, corpus in kept.items():
        if case.random.random() < 0.6:
            texts = seeds.texts(f"fuzz/corpus/{corpus}/*")
            content = case.random.choice(texts)
            if name.endswith("Reports-dacca3cba3f346a4.json") and case.random.random() < 0.7:
                content = seeds.read("tests/mutants/seeds/*.json")["Reports.json"]
            case.write(f"home/{name}", mutate_text(case.random, content, texts))
    case.use_ppd(seeds.read("resources/ppd/*.ppd")["corvana-cl5.ppd"])
    act = case.random.choice(["preset", "list", "policy", "save", "save", "print"])
    if act == "list":
        case.arguments += ["--list-presets"]
    elif act == "policy":
        case.arguments += ["--check-policy"]
    elif act == "save":
        case.ask_for_choices()
        case.arguments += ["--summary"]
        case.keep_as_preset()
    else:
        case.ask_for_choices(2)
        if act == "preset":
            case.arguments += ["--preset", "Reports"]
        case.print_to_file(str(seeds.ROOT / "tests/data/pages.pdf"))


def bundle(case):
    """A copy of the bundle with one damaged file. The module itself is code, and trusted."""
    original = pathlib.Path(case.bundles) / "QXCLQuality13PDE.bundle"
    copy = case.folder / "bundles" / original.name
    shutil.copytree(original, copy, ignore=shutil.ignore_patterns("module"))
    (copy / "module").mkdir()
    for module in (original / "module").iterdir():
        os.link(module, copy / "module" / module.name)
    parts = sorted(path for path in copy.rglob("*") if path.is_file() and path.parent.name != "module")
    # Pictures are most of the files, and least of what is read.
    part = case.random.choice([path for path in parts if path.suffix in (".json", ".ui", ".qm")] * 3 + parts)
    mutate = mutate_text if part.suffix in (".json", ".ui") else mutate_bytes
    others = [path.read_bytes() for path in parts if path.suffix == part.suffix]
    content = part.read_bytes()
    part.unlink()
    part.write_bytes(mutate(case.random, content, others))
    case.bundles = copy.parent
    languages = ["C.UTF-8", "ja_JP.UTF-8", "de_DE.UTF-8", "zh_CN.UTF-8"]
    case.environment["LC_ALL"] = case.random.choice(languages)
    case.use_ppd(seeds.read("resources/ppd/*.ppd")["corvana-cl5.ppd"])
    case.ask_for_choices()
    case.arguments += ["--summary"]
    if case.random.random() < 0.15:
        case.print_to_file(str(seeds.ROOT / "tests/data/pages.pdf"))
    else:
        case.keep_as_preset()


def command_line(case):
    """Words of the command line in any order, with values that nobody means."""
    ppd_path = str(seeds.ROOT / "resources/ppd/corvana-ml3.ppd")
    page = str(seeds.ROOT / "tests/data/page.txt")
    words = ["-d", "-h", "-U", "--ppd", "--output", "--demo", "--list-printers", "--preset", "--list-presets",
             "--save-preset", "--check-policy", "--yes", "-o", "-n", "-P", "-q", "-H", "-t", "-s", "-c", "-m", "-E",
             "--summary", "--save-instance", "--on-alert", "--wait", "--no-wait", "--format", "--help", "--version",
             "--password-file", "--document-password-file", "--password-fd", "--bundle-root", "--",
             "-", page, page, ppd_path, "pdf", "corvana-cl5", "corvana-cl5/draft", "ipp://127.0.0.1:9/ipp/print",
             "job.ps", "Reports", "json", "text", "hold", "print", "1-4,7", "100", "127.0.0.1:9", "/dev/null"]
    words += ATTRIBUTES + [os.fsdecode(text) for text in HOSTILE + NUMBERS if b"\0" not in text]
    case.environment["CORVANA_PRINT_PATIENCE"] = "1"
    given = case.random.choice([[], ["--demo"], ["--ppd", ppd_path], ["--demo", "-d", "corvana-cl5"]])
    case.arguments += given + [case.random.choice(words) for _ in range(case.random.randint(1, 6))]
    if case.random.random() < 0.5:
        case.arguments += ["--output", "job.ps", page]


def server(case):
    """A print server one or two of whose answers are mutated, or its PPD."""
    original = seeds.read("resources/ppd/*.ppd")["corvana-cl5.ppd"]
    harm = {}
    if case.random.random() < 0.25:
        original, _ = mutate_option(case.random, original, seeds.texts("resources/ppd/*.ppd"))
    else:
        for name in case.random.sample(answering.REQUESTS, case.random.choice((1, 1, 2))):
            harm[name] = case.random.choice(answering.HARM)
    case.ppd = Ppd(original)
    case.server = answering.MutatingServer(case.folder.name, harm, original)
    case.server.start()
    case.environment["CUPS_SERVER"] = f"127.0.0.1:{case.server.port}"
    case.environment["CORVANA_PRINT_PATIENCE"] = "1"
    act = case.random.choice(["list", "list", "list", "plain", "lobby", "uri", "save"])
    if act == "list":
        case.arguments += ["--list-printers"]
        return
    if act == "uri":
        case.arguments += ["-d", f"ipp://127.0.0.1:{case.server.port}/printers/plain"]
    else:
        case.arguments += ["-d", "plain" if act == "plain" else "lobby"]
    if act in ("lobby", "save"):
        case.ask_for_choices(2)
    if act == "save":
        case.keep_as_preset()
    else:
        case.arguments += ["--wait", "1", str(seeds.ROOT / "tests/data/pages.pdf")]
        case.expects += [_hands_over_what_was_asked_for]


def _hands_over_what_was_asked_for(case, end):
    if end.status != 0:
        return
    if not case.server.documents():
        yield "printed, and the server got no document"
    for keyword, choice in dict(choice.split("=", 1) for choice in _left_of(case.choices, end)).items():
        if not case.server.got(keyword, choice):
            yield f"handed over without {keyword}={choice}"


def window(case):
    """A window that opens on something damaged, and is closed by the desktop a moment later."""
    kind = case.random.choice([ppd, document, preferences, bundle, server])
    kind(case)
    case.arguments.remove("--no-dialog")
    for word in ("--summary", "--list-presets", "--list-printers", "--check-policy"):
        if word in case.arguments:
            case.arguments.remove(word)
    if "--save-preset" in case.arguments:
        at = case.arguments.index("--save-preset")
        case.arguments[at:at + 2] = ["--output", "job.ps", str(seeds.ROOT / "tests/data/pages.pdf")]
    case.environment["QT_QPA_PLATFORM"] = "offscreen"
    if "--wait" in case.arguments:
        at = case.arguments.index("--wait")
        del case.arguments[at:at + 2]
    case.expects = []
    case.statuses = (1, 2, 128 + signal.SIGTERM)
    case.end_after = case.random.uniform(0.2, 1.5)


# How many in a hundred are of which kind.
KINDS = {ppd: 22, options: 12, document: 16, server: 20, preferences: 12, bundle: 8, command_line: 6, window: 4}

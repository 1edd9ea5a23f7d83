"""What is mutated: files of this tree, and PPDs that nobody here wrote."""
import functools
import pathlib
import random
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[2]
_FOREIGN = "/usr/lib/cups/driver/postscript-hp"  # of Debian's printer-driver-postscript-hp
_FOREIGN_COUNT = 12                              # for one seed; reading one takes longer than a run


def files(pattern):
    return sorted(path for path in ROOT.glob(pattern) if path.is_file())


@functools.lru_cache(None)
def read(pattern):
    """The contents of files, by their names."""
    found = {path.name: path.read_bytes() for path in files(pattern)}
    if not found:
        raise FileNotFoundError(pattern)
    return found


@functools.lru_cache(None)
def texts(pattern):
    return tuple(read(pattern).values())


@functools.lru_cache(None)
def foreign_names(seed):
    """Empty where that package is not installed."""
    try:
        listed = subprocess.run([_FOREIGN, "list"], capture_output=True, check=True).stdout
    except (OSError, subprocess.CalledProcessError):
        return ()
    names = sorted({line.split('"')[1] for line in listed.decode(errors="replace").splitlines() if '"' in line})
    return tuple(random.Random(f"foreign {seed}").sample(names, min(_FOREIGN_COUNT, len(names))))


@functools.lru_cache(None)
def foreign(name):
    return subprocess.run([_FOREIGN, "cat", name], capture_output=True, check=True).stdout


def some_ppd(chance, seed):
    """A PPD as it was written: one of this tree's, or a foreign one."""
    names = foreign_names(seed)
    if names and chance.random() < 0.4:
        return foreign(chance.choice(names))
    return chance.choice(texts("resources/ppd/*.ppd"))


def documents():
    """Small documents of every kind, by their names."""
    return {**read("tests/data/*.*"), "welcome.pdf": (ROOT / "resources/sample/welcome.pdf").read_bytes(),
            **read("fuzz/corpus/text_document/*.txt"), **read("fuzz/corpus/picture/small.*")}

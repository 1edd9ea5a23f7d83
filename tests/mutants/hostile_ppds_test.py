#!/usr/bin/python3
"""No PPD keeps the program busy, however much is in it: those that are as large as they may be are read, those
that are larger are refused at once and by name. `hostile_ppds_test.py PROGRAM PLUGINS [KIND...]`"""
import os
import pathlib
import random
import re
import sys
import tempfile

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
import hostile_ppds  # noqa: E402
import kinds  # noqa: E402
import limits  # noqa: E402

SOON = 2 * (8 if limits.SANITIZED else 1)  # seconds of the processor, to refuse


def many_choices(content):
    """Of as many options as people never set together; some exclude each other."""
    options = re.findall(r"^\*(?:JCL)?OpenUI \*(O\d+)/", content, re.MULTILINE)
    return ["-o", " ".join(f"{option}=C1" for option in options[:500])] if options else []


def end_with(program, plugins, content, folder, choices=()):
    case = kinds.Case(pathlib.Path(folder) / "case", random.Random(1), 1, os.path.abspath(program),
                      os.path.abspath(plugins))
    case.arguments += choices
    case.arguments += ["--ppd", case.write("printer.ppd", content.encode()), "--summary"]
    # The language of the texts in some of them.
    case.environment = {"LC_ALL": "de_DE.UTF-8", "LANG": "de_DE.UTF-8"}
    return limits.run(case.command(), case.all_environment(), case.folder, looks_at_memory=True)


def main():
    program, plugins, *names = sys.argv[1:]
    failed = 0
    for makers, statuses, most in ((hostile_ppds.KINDS, (0,), limits.CPU_SECONDS), (hostile_ppds.BEYOND, (1,), SOON)):
        for name, make in makers.items():
            if names and name not in names:
                continue
            content = make()
            asked = many_choices(content) if statuses == (0,) else []
            for choices in ([], asked) if asked else ([],):
                with tempfile.TemporaryDirectory() as folder:
                    end = end_with(program, plugins, content, folder, choices)
                # Choices that exclude each other are refused, which takes long as well.
                problems = list(end.problems((0, 1) if choices else statuses))
                if end.cpu > most:
                    problems.append(f"more than {most} seconds")
                print(f"{name}{', many choices' if choices else ''}: {end.cpu:.1f} s, {end.own_memory // 1024} MiB"
                      f"{''.join(f'; {one}' for one in problems)}", flush=True)
                if problems:
                    print(end.err.decode(errors="replace")[:500])
                failed += bool(problems)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())

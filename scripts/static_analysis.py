#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""static_analysis.py BUILD-FOLDER: clang-tidy over the sources of src and bench, by the compile commands found there.

Nearly all of its time goes into the toolkit's headers, so sources of equal flags are analysed many at a time, as one
unit that includes them. Sources that can't stand in one unit, because a name means two things, are parted until they
can; a source alone is analysed as it is compiled.
"""

import concurrent.futures
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
AT_ONCE = 24
# What is said of included sources counts as that of headers.
OWN_FILES = r"--header-filter=(src|bench)/.*\.(h|cpp)$"
PLANTED = """namespace {
int value(const int* p) {
    int n = 0;
    if (p == nullptr) {
        n = 1;
    }
    return *p + n;
}
} // namespace
int Value(const int* p) {
    return value(p);
}
"""


def flags_of(command):
    """The compiler's arguments without source, result, and the folder of generated files, which each target has."""
    flags = []
    arguments = iter(shlex.split(command)[1:])
    for argument in arguments:
        if argument in ("-o", "-c"):
            next(arguments)
        elif not argument.endswith("_autogen/include"):
            flags.append(argument)
    return tuple(flags)


def batches(build):
    """(flags, sources) for each unit: sources of one folder after the other."""
    flags = {}
    for entry in json.loads((build / "compile_commands.json").read_text()):
        path = pathlib.Path(entry["file"]).relative_to(ROOT)
        if path.parts[0] in ("src", "bench"):
            flags.setdefault(path, flags_of(entry["command"]))
    sources = {}
    for path in sorted(flags):
        sources.setdefault(flags[path], []).append(ROOT / path)
    for same, paths in sources.items():
        for begin in range(0, len(paths), AT_ONCE):
            yield same, paths[begin : begin + AT_ONCE]


def write_unit(folder, sources):
    # The analyzer follows the paths through included functions only in units of such a name.
    unit = folder / f"UnifiedSource_{'_'.join(sources[0].parts[-3:])}_{len(sources)}.cpp"
    # That a source is included is as it should be, for once.
    unit.write_text("".join(f'#include "{source}" // NOLINT\n' for source in sources))
    return unit


def parted(sources, unit, flags):
    """The sources in one part if they can stand in one unit, else in two."""
    command = ["clang++", "-fsyntax-only", "-w", "-ferror-limit=0", *flags, unit]
    result = subprocess.run(command, stderr=subprocess.PIPE, text=True)
    if result.returncode == 0:
        return [sources]
    named = set(re.findall(r"^(.*?):\d+:\d+: (?:fatal )?error: ", result.stderr, re.MULTILINE))
    to_blame = [source for source in sources if str(source) in named]
    if len(to_blame) in (0, len(sources)):
        to_blame = sources[len(sources) // 2 :]
    return [[source for source in sources if source not in to_blame], to_blame]


def clang_tidy(unit, flags):
    """What it finds."""
    command = ["clang-tidy", "--quiet", OWN_FILES, unit, "--", *flags]
    result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
    if result.returncode != 0 and not result.stdout:
        return f"{unit}: clang-tidy ended with {result.returncode}\n{result.stderr}"
    return result.stdout


def analyse(folder, flags, sources):
    """What is found in the sources; the units are written into the folder."""
    unit = sources[0]
    if len(sources) > 1:
        unit = write_unit(folder, sources)
        parts = parted(sources, unit, flags)
        if len(parts) > 1:
            return "".join(analyse(folder, flags, part) for part in parts)
    return clang_tidy(unit, flags)


def finds_planted_faults(folder):
    """Whether the faults of an included source are found, the analyzer's too."""
    planted = folder / "src" / "planted.cpp"
    planted.parent.mkdir(exist_ok=True)
    planted.write_text(PLANTED)
    found = clang_tidy(write_unit(folder, [planted]), ["-std=c++20"])
    return "readability-identifier-naming" in found and "core.NullDereference" in found


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    folder = build / "units"
    folder.mkdir(exist_ok=True)
    if not finds_planted_faults(folder):
        sys.exit("The analysis finds no faults where there are some.")
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        found = "".join(pool.map(lambda batch: analyse(folder, *batch), batches(build)))
    sys.stdout.write(found)
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()

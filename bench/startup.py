#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Times the start of the program: from the start of the process until its window is painted, beside two empty
windows of the toolkit. Needs a display, a real or a virtual one.

usage: startup.py BUILD-FOLDER FILE [RUNS]"""

import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time


def run(command, folder):
    start = time.perf_counter()
    subprocess.run(command, check=True, stderr=subprocess.DEVNULL,
                   env=os.environ | {"XDG_CONFIG_HOME": folder, "XDG_STATE_HOME": folder})
    return (time.perf_counter() - start) * 1000


def times(commands, runs):
    """The median time of each command."""
    with tempfile.TemporaryDirectory() as folder:
        # Settings of its own, in which the first start with its questions is over.
        settings = pathlib.Path(folder) / "Ornbury Workshops" / "Ordelin.ini"
        settings.parent.mkdir()
        settings.write_text("[misc]\nautoOpen=1\n")
        for command in commands:
            run(command, folder)  # The first one fills the system's file cache.
        # In turn, so that all meet the same load.
        rows = [[run(command, folder) for command in commands] for _ in range(runs)]
    return [statistics.median(column) for column in zip(*rows)]


def main():
    if len(sys.argv) not in (3, 4):
        print(__doc__, file=sys.stderr)
        return 2
    build = pathlib.Path(sys.argv[1])
    bare = [build / "bench" / "startup_empty_window", "--bare"]
    empty = [build / "bench" / "startup_empty_window"]
    program = [build / "bench" / "startup_program", "--", sys.argv[2]]
    runs = int(sys.argv[3]) if len(sys.argv) == 4 else 15
    bare_time, empty_time, program_time = times([bare, empty, program], runs)
    print(f"program {program_time:.1f} ms; empty main window {empty_time:.1f} ms, ratio "
          f"{program_time / empty_time:.2f} (aim 1.5); bare widget without text {bare_time:.1f} ms, ratio "
          f"{program_time / bare_time:.2f} (medians of {runs})")
    return 0


if __name__ == "__main__":
    sys.exit(main())

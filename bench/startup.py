#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Times the start of the program: from the start of the process until its window is painted, beside two empty
windows of the toolkit. Needs a display, a real or a virtual one.

usage: startup.py BUILD-FOLDER FILE [RUNS]"""

import pathlib
import statistics
import subprocess
import sys
import time


def run(command):
    start = time.perf_counter()
    subprocess.run(command, check=True, stderr=subprocess.DEVNULL)
    return (time.perf_counter() - start) * 1000


def main():
    if len(sys.argv) not in (3, 4):
        print(__doc__, file=sys.stderr)
        return 2
    build = pathlib.Path(sys.argv[1])
    bare = [build / "bench" / "startup_empty_window", "--bare"]
    empty = [build / "bench" / "startup_empty_window"]
    program = [build / "bench" / "startup_program", "--", sys.argv[2]]
    runs = int(sys.argv[3]) if len(sys.argv) == 4 else 15
    run(program)  # The first one fills the system's file cache.
    # In turn, so that all meet the same load.
    times = [(run(bare), run(empty), run(program)) for _ in range(runs)]
    bare_time, empty_time, program_time = [statistics.median(column) for column in zip(*times)]
    print(f"program {program_time:.1f} ms; empty main window {empty_time:.1f} ms, ratio "
          f"{program_time / empty_time:.2f} (aim 1.5); bare widget without text {bare_time:.1f} ms, ratio "
          f"{program_time / bare_time:.2f} (medians of {runs})")
    return 0


if __name__ == "__main__":
    sys.exit(main())

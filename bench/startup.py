#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Times the start of the program: from the start of the process until its window is painted, beside an empty window
of the toolkit. Needs a display, a real or a virtual one.

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
    program = [build / "bench" / "startup_program", "--", sys.argv[2]]
    empty = [build / "bench" / "startup_empty_window"]
    runs = int(sys.argv[3]) if len(sys.argv) == 4 else 15
    run(program)  # The first one fills the system's file cache.
    # Alternating, so that both meet the same load.
    times = [(run(empty), run(program)) for _ in range(runs)]
    medians = [statistics.median(column) for column in zip(*times)]
    print(f"empty window {medians[0]:.1f} ms, program {medians[1]:.1f} ms, ratio {medians[1] / medians[0]:.2f} "
          f"(medians of {runs}; aim 1.5)")
    return 0


if __name__ == "__main__":
    sys.exit(main())

# SPDX-License-Identifier: MIT
"""What the checks of the source tree share: the command line and the test of the check itself."""

import pathlib
import sys
import tempfile


def self_test(faults_of, cases):
    """Judges small files made for it: `cases` gives the text of each and how many faults are to be found in it."""
    with tempfile.TemporaryDirectory() as folder:
        root = pathlib.Path(folder)
        for name, (text, _) in cases.items():
            (root / name).parent.mkdir(parents=True, exist_ok=True)
            (root / name).write_text(text, encoding="utf-8")
        faults = faults_of(root)
    wrong = [name for name, (_, count) in cases.items() if sum(f"/{name}:" in fault for fault in faults) != count]
    for name in wrong:
        print(f"self-test: {name} is judged wrongly")
    return 1 if wrong else 0


def main(faults_of, cases):
    """Prints the faults of a source folder; the exit status tells whether there are any."""
    if sys.argv[1:] == ["--self-test"]:
        return self_test(faults_of, cases)
    if len(sys.argv) != 2:
        print(f"usage: {sys.argv[0]} SOURCE-FOLDER | --self-test", file=sys.stderr)
        return 2
    faults = faults_of(pathlib.Path(sys.argv[1]))
    for fault in faults:
        print(fault)
    return 1 if faults else 0

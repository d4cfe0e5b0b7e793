#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Holds the layers of the source tree: which folder may include which, and widgets only in ui folders."""

import pathlib
import re
import sys

import source_check

# What a folder may include besides itself. A folder stands for its window-free part only.
DOCUMENT = {"document", "fileformats", "model", "settings", "resources", "platform"}
ALLOWED = {
    "platform": set(),
    "resources": {"platform"},
    "settings": {"platform", "resources"},
    "model": {"platform"},
    "fileformats": {"dictionaries", "model", "platform"},
    "dictionaries": {"model", "platform"},
    "document": DOCUMENT,
    "quiz": DOCUMENT,
    "games": DOCUMENT | {"quiz"},
    "editor": DOCUMENT | {"dictionaries"},
    "tools": DOCUMENT,
    "commandline": DOCUMENT | {"dictionaries", "quiz", "tools"},
    "shell": DOCUMENT | {"dictionaries", "quiz", "games", "editor", "tools"},
}

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
# Modules of the toolkit that the window-free library doesn't link.
WINDOW_MODULES = re.compile(r"^Qt(Widgets|Gui|Svg|PrintSupport)/|^Qt(Widgets|Gui)$")


def core_headers():
    """Names of the toolkit's core headers where it is installed, else None: then module names alone are checked."""
    for folder in pathlib.Path("/usr/include").glob("**/qt6/QtCore"):
        return {header.name for header in folder.iterdir()} | {"QtGlobal"}
    return None


def faults_of(root):
    core = core_headers()
    faults = []
    for path in sorted(root.rglob("*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        parts = path.relative_to(root).parts
        if len(parts) == 1:
            continue  # The program's own file sees everything.
        folder, in_ui = parts[0], "ui" in parts[1:-1]
        if folder not in ALLOWED:
            faults.append(f"{path}: the folder {folder} is in no layer")
            continue
        allowed = ALLOWED[folder] | {folder}
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            match = INCLUDE.match(line)
            if not match:
                continue
            kind, name = match.groups()
            target = name.split("/")
            if kind == "<" and not (len(target) > 1 and target[0] in ALLOWED):
                toolkit = name.startswith("Q")
                if not in_ui and toolkit and (WINDOW_MODULES.search(name)
                                              or core is not None and target[-1] not in core):
                    faults.append(f"{path}:{number}: <{name}> outside a ui folder")
                continue
            if len(target) == 1 or target[0] not in ALLOWED:
                if not name.endswith(".moc"):
                    faults.append(f'{path}:{number}: "{name}" is not named from the source folder')
                continue
            if target[0] not in allowed:
                faults.append(f"{path}:{number}: {folder} may not include {target[0]}")
            if target[1] == "ui" and not in_ui:
                faults.append(f"{path}:{number}: {name} outside a ui folder")
    return faults


# Every kind of wrong include is found, and a right one is not.
CASES = {
    "model/a.h": ('#include "platform/random.h"\n#include <QString>\n', 0),
    "model/b.h": ('#include "document/win32_doc.h"\n', 1),
    "editor/c.cpp": ('#include "quiz/quiz_form.h"\n', 1),
    "quiz/d.cpp": ("#include <QtWidgets/QWidget>\n", 1),
    "quiz/e.cpp": ('#include "quiz/ui/quiz_dialog.h"\n', 1),
    "quiz/ui/f.cpp": ('#include "quiz/quiz_form.h"\n#include <QWidget>\n#include "platform/ui/x.h"\n', 0),
    "quiz/ui/g.cpp": ('#include "editor/ui/win32_view.h"\n', 1),
    "other/h.cpp": ("", 1),
    "model/i.h": ('#include "text.h"\n', 1),
    "model/j.h": ("#include <document/win32_doc.h>\n", 1),
}


if __name__ == "__main__":
    sys.exit(source_check.main(faults_of, CASES))

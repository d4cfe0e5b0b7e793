#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Finds what may take a text from outside for markup: labels made without the factory, and the toolkit's windows
that make labels of their own."""

import re
import sys

import source_check

# Where labels are made, and the one message box.
FACTORIES = {"platform/ui/label.cpp", "platform/ui/elided_label.h", "platform/ui/elided_label.cpp",
             "platform/ui/wrapped_text.h", "platform/ui/wrapped_text.cpp"}
# The help is written with markup.
HELP = {"shell/ui/help_text.h", "shell/ui/help_text.cpp", "shell/ui/help_window.cpp"}
PROMPT = "platform/ui/message_box_prompt.cpp"

LABEL = "a label that MakeLabel() did not make"
RULES = [
    (re.compile(r"\bnew\s+QLabel\b"), LABEL, FACTORIES),
    (re.compile(r"\bmake_(unique|shared)<\s*QLabel\s*>"), LABEL, FACTORIES),
    # A base class, the call of its constructor, a member or a local by value, or several.
    (re.compile(r"(public|protected|private|virtual)\s+QLabel\b"), LABEL, FACTORIES),
    (re.compile(r"[:,]\s*QLabel\s*[({]"), LABEL, FACTORIES),
    (re.compile(r"\bQLabel\s+\w+\s*[;({=,\[]"), LABEL, FACTORIES),
    (re.compile(r"\b(array|vector|list|deque|optional)<\s*QLabel\s*[,>]"), LABEL, FACTORIES),
    (re.compile(r"\bsetTextFormat\s*\((?!\s*Qt::PlainText\s*\))"), "a text format that is not plain", set()),
    # One that is made, by a call too; others may be handed about.
    (re.compile(r"\b(new|public)\s+QMessageBox\b|\bQMessageBox\s+\w+\s*[({;]|\bmake_unique<\s*QMessageBox\b"
                r"|\bQMessageBox::(about|aboutQt|critical|information|question|warning)\s*\("),
     "a message box beside IUserPrompt", {PROMPT}),
    (re.compile(r"\bQ(ErrorMessage|InputDialog|ProgressDialog|WizardPage|SplashScreen|TextBrowser|WhatsThis)\b"),
     "a window of the toolkit that guesses markup", HELP),
    (re.compile(r"\bsetWhatsThis\b|\bWhatsThisRole\b"), "a What's This text, which guesses markup", set()),
]
ADD_ROW = re.compile(r"(\.|->)\s*addRow\s*\(")
COMMENT = re.compile(r"//[^\n]*")


def arguments(text, start):
    """The arguments of the call whose bracket ends in front of `start`."""
    depth, found, first = 0, [], start
    for position in range(start, len(text)):
        character = text[position]
        if character in "([{":
            depth += 1
        elif character in ")]}" and depth > 0:
            depth -= 1
        elif character == ")":
            return [*found, text[first:position].strip()]
        elif character == "," and depth == 0:
            found.append(text[first:position].strip())
            first = position + 1
    return found


def faults_of(root):
    faults = []
    for path in sorted(root.rglob("*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        name = path.relative_to(root).as_posix()
        text = COMMENT.sub("", path.read_text(encoding="utf-8"))

        def fault(position, what):
            faults.append(f"{path}:{text.count(chr(10), 0, position) + 1}: {what}")

        for pattern, what, allowed in RULES:
            if name not in allowed:
                for match in pattern.finditer(text):
                    fault(match.start(), what)
        # A row of a form with a caption makes its label itself; with a label it is a name without a call.
        if name not in FACTORIES:
            for match in ADD_ROW.finditer(text):
                given = arguments(text, match.end())
                if len(given) == 2 and not re.fullmatch(r"\w*[lL]abel\w*|MakeLabel\(.*\)|QString\(\)", given[0], re.DOTALL):
                    fault(match.start(), "a row whose label the form makes; use AddLabelledRow()")
    return faults


# Every way around the factory is found once, and right ones are not.
CASES = {
    "a/new.cpp": ("auto *x = new QLabel(\n    text, this);\n", 1),
    "a/unique.cpp": ("auto x = std::make_unique<QLabel>(text);\n", 1),
    "a/derived.h": ("class CMine : public QLabel\n{\n};\n", 1),
    "a/constructor.cpp": ("CMine::CMine(QWidget *parent) : QLabel(parent)\n{\n}\n", 1),
    "a/member.h": ("    QLabel m_label;\n", 1),
    "a/local.cpp": ("    QLabel label(text);\n", 1),
    "a/several.h": ("    std::array<QLabel, 3> m_labels;\n", 1),
    "a/row.cpp": ('    form.addRow(texts.Get(Text::A), f(1, 2));\n', 1),
    "a/format.cpp": ("    label->setTextFormat(Qt::RichText);\n", 1),
    "a/box.cpp": ("    QMessageBox::warning(this, title, text);\n", 1),
    "a/made.cpp": ("    QMessageBox box(icon, title, text);\n", 1),
    "a/progress.cpp": ("    QProgressDialog dialog(text, cancel, 0, 1);\n", 1),
    "a/whats.cpp": ("    button->setWhatsThis(text);\n", 1),
    "platform/ui/label.cpp": ("auto *x = new QLabel(parent);\nform.addRow(text, control);\n", 0),
    "platform/ui/message_box_prompt.cpp": ("QMessageBox box(icon, title, text);\n", 0),
    "a/right.cpp": ("class QLabel;\nQLabel *const x = MakeLabel(text, this);\nform.addRow(label, field);\n"
                    "rows->addRow(MakeLabel(a, b));\nstd::array<QLabel *, 3> labels;\n"
                    "for (QLabel *label : {a, b}) {}\nfindChild<QLabel *>(name);\n"
                    "qobject_cast<QMessageBox *>(window);\nvoid f(QMessageBox &box);\n"
                    "label->setTextFormat(Qt::PlainText); // never new QLabel(text)\n", 0),
}


if __name__ == "__main__":
    sys.exit(source_check.main(faults_of, CASES))

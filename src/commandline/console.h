// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QString>

#include <optional>

/// The standard input, output and error of a run without a window. What is printed is plain text in UTF-8:
/// control characters, of which terminals make commands, and marks that turn the direction of writing never
/// come out.
class CConsole
{
public:
    /// From here on a reader that went away, or a file that may grow no further, is a fault of writing and not
    /// the end of the process.
    CConsole();

    /// Line feeds are kept.
    void Print(const QString &text);
    /// One message on standard error, behind what was printed so far. The program's name stands before it.
    void Tell(const QString &message);
    /// The next line of standard input without its end; none at the end of the input. What was printed comes
    /// out first. A line of more than LongestLine bytes is given in pieces.
    std::optional<QString> ReadLine();

    /// For bytes that are no text for a reader.
    QIODevice &Output() { return m_output; }
    /// All of standard input; null from the second time on, when nothing is left of it.
    QFile *TakeInput();
    bool IsInputATerminal() const;
    bool IsOutputATerminal() const;

    /// Brings out what was printed. False when that, or anything before it, failed.
    [[nodiscard]] bool Flush();

private:
    static constexpr qint64 LongestLine = 65536;

    QFile m_input;
    QFile m_output;
    QFile m_error;
    bool m_isInputTaken = false;
    bool m_failed = false;
};

/// `text` without what CConsole never prints; line feeds are kept.
QString Printable(QStringView text);
/// A text of the user for a place in a line: printable, on one line, and not endless.
QString ShownInLine(const QString &text);

// SPDX-License-Identifier: MIT
#include "commandline/console.h"

#include "platform/plain_text.h"

#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace {

/// Whether a character has no look of its own and turns what stands beside it round.
bool TurnsDirection(QChar unit)
{
    return (unit >= u'\u202A' && unit <= u'\u202E') || (unit >= u'\u2066' && unit <= u'\u2069')
        || unit == u'\u200E' || unit == u'\u200F' || unit == u'\u061C';
}

/// Puts something in the place of a stream that is closed, so that no file takes it. It can't be used the way
/// that the stream is: that fails as it does without a stream.
void FillPlace(int stream, int flags)
{
    if (::fcntl(stream, F_GETFD) < 0) {
        (void)::open("/dev/null", flags); // Takes the lowest number that is free.
    }
}

}

QString Printable(QStringView text)
{
    QString printable;
    printable.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        const bool pair = unit.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (pair) {
            printable += unit;
            printable += text.at(++i);
        } else if (unit == u'\r' || TurnsDirection(unit)) {
            continue;
        } else if (unit == u'\t' || unit == QChar::LineSeparator || unit == QChar::ParagraphSeparator) {
            printable += u' ';
        } else if ((unit.category() == QChar::Other_Control && unit != u'\n') || unit.isSurrogate()) {
            printable += QChar(QChar::ReplacementCharacter);
        } else {
            printable += unit;
        }
    }
    return printable;
}

QString ShownInLine(const QString &text)
{
    return Printable(OneLine(ShownShort(text)));
}

CConsole::CConsole()
{
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    FillPlace(STDIN_FILENO, O_WRONLY);
    FillPlace(STDOUT_FILENO, O_RDONLY);
    FillPlace(STDERR_FILENO, O_RDONLY);
    (void)m_input.open(STDIN_FILENO, QIODevice::ReadOnly);
    (void)m_output.open(STDOUT_FILENO, QIODevice::WriteOnly);
    (void)m_error.open(STDERR_FILENO, QIODevice::WriteOnly | QIODevice::Unbuffered);
}

void CConsole::Print(const QString &text)
{
    const QByteArray bytes = Printable(text).toUtf8();
    m_failed = m_output.write(bytes) != bytes.size() || m_failed;
}

void CConsole::Tell(const QString &message)
{
    (void)Flush();
    QString line = Printable(message);
    while (line.endsWith(u'\n')) {
        line.chop(1);
    }
    m_error.write((QStringLiteral("ordelin: ") + line + u'\n').toUtf8());
}

QFile *CConsole::TakeInput()
{
    return std::exchange(m_isInputTaken, true) ? nullptr : &m_input;
}

std::optional<QString> CConsole::ReadLine()
{
    (void)Flush();
    QByteArray line = m_input.readLine(LongestLine);
    if (line.isEmpty()) {
        return std::nullopt;
    }
    while (line.endsWith('\n') || line.endsWith('\r')) {
        line.chop(1);
    }
    return QString::fromUtf8(line);
}

bool CConsole::IsInputATerminal() const
{
    return ::isatty(STDIN_FILENO) == 1;
}

bool CConsole::IsOutputATerminal() const
{
    return ::isatty(STDOUT_FILENO) == 1;
}

bool CConsole::Flush()
{
    m_failed = !m_output.flush() || m_failed;
    return !m_failed;
}

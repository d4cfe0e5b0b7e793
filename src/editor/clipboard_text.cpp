// SPDX-License-Identifier: MIT
#include "editor/clipboard_text.h"

#include <QLoggingCategory>

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace {

// Off unless asked for: a text of any size may be pasted by mistake.
Q_LOGGING_CATEGORY(pasting, "ordelin.paste", QtWarningMsg)

constexpr QStringView LineEnd = u"\r\n";

/// The first and the last field that a column stands for.
std::pair<int, int> FieldsOf(int column)
{
    return column == AllColumns ? std::pair(0, CWordEntry::NoteField) : std::pair(column, column);
}

/// The code units of a column, so that a million entries are written without growing the text again and again.
qsizetype LengthOf(const CWordList &list, CWordList::Selection entries, int column)
{
    const auto [first, last] = FieldsOf(column);
    qsizetype length = 0;
    for (const int index : entries) {
        for (int field = first; field <= last; ++field) {
            length += list.Entry(index).GetField(field).size();
        }
    }
    return length;
}

void AppendRichText(QByteArray &document, QStringView text)
{
    for (const QChar character : text) {
        const char16_t unit = character.unicode();
        if (unit > 0x7F) {
            std::array<char, 8> digits = {};
            const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), uint(unit));
            document.append("\\u").append(digits.data(), end.ptr - digits.data()).append('?');
            continue;
        }
        if (unit == u'\\' || unit == u'{' || unit == u'}') {
            document.append('\\');
        }
        document.append(char(unit));
    }
}

/// Moves a line from the start of `rest`, its end dropped.
std::optional<QStringView> TakeLine(QStringView &rest)
{
    const qsizetype end = rest.indexOf(LineEnd);
    if (end < 0) {
        return std::nullopt;
    }
    const QStringView line = rest.first(end);
    rest = rest.sliced(end + LineEnd.size());
    return line;
}

QStringView WithoutByteOrderMark(QStringView text)
{
    return text.startsWith(QChar::ByteOrderMark) ? text.sliced(1) : text;
}

QStringView WithoutOuterMarks(QStringView line)
{
    const auto isMark = [](QChar unit) { return unit == u'\t' || unit == u' ' || unit == u'*'; };
    const auto *const start = std::find_if_not(line.begin(), line.end(), isMark);
    while (line.end() != start && isMark(line.back())) {
        line.chop(1);
    }
    return line.sliced(start - line.begin());
}

/// The start of a line, for a trace.
QByteArray Start(QStringView line)
{
    return line.first(std::min<qsizetype>(line.size(), 200)).toUtf8();
}

std::optional<CWordEntry> EntryFromLine(QStringView line)
{
    // The first of these that occurs anywhere separates, whichever comes first in the line.
    constexpr QStringView Separators = u"\t;:|,=-";
    const auto *const separator =
        std::ranges::find_if(Separators, [line](QChar candidate) { return line.contains(candidate); });
    if (separator == Separators.end()) {
        qCDebug(pasting, "Nothing good in line: \"%s\"", Start(line).constData());
        return std::nullopt;
    }
    const qsizetype first = line.indexOf(*separator);
    const qsizetype second = line.indexOf(*separator, first + 1);
    if (second >= 0 && line.indexOf(*separator, second + 1) >= 0) {
        qCDebug(pasting, "Confusing line: \"%s\"", Start(line).constData());
        return std::nullopt;
    }
    const qsizetype end = second < 0 ? line.size() : second;
    CWordEntry entry(line.first(first).toString(), line.sliced(first + 1, end - first - 1).toString(),
        second < 0 ? QString() : line.sliced(second + 1).toString());
    // Blanks or empty brackets alone are no term either.
    if (entry.GetText(0).isEmpty() || entry.GetText(1).isEmpty()) {
        qCDebug(pasting, "Some empty words in line");
        return std::nullopt;
    }
    return entry;
}

}

QString EntriesAsText(const CWordList &list, CWordList::Selection entries, int column)
{
    const auto [first, last] = FieldsOf(column);
    QString text;
    text.reserve(LengthOf(list, entries, column) + qsizetype(entries.size()) * (last - first + 2));
    for (const int index : entries) {
        const CWordEntry &entry = list.Entry(index);
        for (int field = first; field <= last; ++field) {
            text += entry.GetField(field);
            text += field < last ? QStringView(u"\t") : LineEnd;
        }
    }
    return text;
}

QByteArray EntriesAsRichText(const CWordList &list, CWordList::Selection entries, int column)
{
    constexpr qsizetype Markup = 31; // Of an entry that is flagged twice.
    const auto [first, last] = FieldsOf(column);
    QByteArray document;
    document.reserve(LengthOf(list, entries, column) + qsizetype(entries.size()) * Markup);
    document.append("{\\rtf1\\ansi\\ansicpg1252");
    for (const int index : entries) {
        const CWordEntry &entry = list.Entry(index);
        for (int field = first; field <= last; ++field) {
            document.append(entry.GetFlag(field) ? "{\\b " : "{");
            AppendRichText(document, entry.GetField(field));
            document.append(field < last ? "}{\\tab}" : "}{\\par }");
        }
    }
    return document.append('}');
}

QString EntriesAsRecords(const CWordList &list, CWordList::Selection entries)
{
    constexpr qsizetype FlagsAndLineEnds = 12;
    QString records;
    records.reserve(LengthOf(list, entries, AllColumns) + qsizetype(entries.size()) * FlagsAndLineEnds);
    for (const int index : entries) {
        const CWordEntry &entry = list.Entry(index);
        for (const int language : {0, 1}) {
            records += entry.GetFlag(language) ? u'1' : u'0';
            records += LineEnd;
            records += entry.GetText(language);
            records += LineEnd;
        }
        records += entry.GetNote();
        records += LineEnd;
    }
    return records;
}

CWordList EntriesFromRecords(QStringView records)
{
    records = WithoutByteOrderMark(records);
    constexpr size_t LineCount = 5;
    CWordList list;
    std::array<QStringView, LineCount> lines;
    for (;;) {
        for (QStringView &line : lines) {
            const auto taken = TakeLine(records);
            if (!taken) {
                return list;
            }
            line = *taken;
        }
        list.Insert(CWordEntry(
            lines[1].toString(), lines[3].toString(), lines[4].toString(), lines[0] != u"0", lines[2] != u"0"));
    }
}

CWordList EntriesFromText(QStringView text)
{
    CWordList list;
    text = WithoutByteOrderMark(text);
    while (!text.isEmpty()) {
        // Other programs end lines with a line feed or a carriage return alone. Between the two of a pair there
        // is an empty line, which makes no entry.
        const auto *const end =
            std::ranges::find_if(text, [](QChar unit) { return unit == u'\n' || unit == u'\r'; });
        const QStringView line = text.first(end - text.begin());
        text = text.sliced(std::min(line.size() + 1, text.size()));
        if (auto entry = EntryFromLine(WithoutOuterMarks(line))) {
            list.Insert(std::move(*entry));
        }
    }
    return list;
}

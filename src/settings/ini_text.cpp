// SPDX-License-Identifier: MIT
#include "settings/ini_text.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace {

/// The section of values without one. A section that has this name is written with a "%" before it.
constexpr QStringView NoSection(u"General");

/// Letters for the control characters from \a to \r.
constexpr std::array ControlLetters = {'a', 'b', 't', 'n', 'v', 'f', 'r'};

int HexDigit(QChar digit)
{
    const char16_t unit = digit.unicode();
    return unit >= u'0' && unit <= u'9' ? unit - u'0'
        : unit >= u'a' && unit <= u'f'  ? unit - u'a' + 10
        : unit >= u'A' && unit <= u'F'  ? unit - u'A' + 10
                                        : -1;
}

bool IsBlank(QChar unit)
{
    return unit == u' ' || unit == u'\t';
}

/// The number at the start of `text`, of as many digits as there are up to `most`, and how many they were.
std::pair<char16_t, qsizetype> NumberAt(QStringView text, int base, qsizetype most)
{
    char16_t number = 0;
    qsizetype count = 0;
    while (count < std::min(text.size(), most)) {
        const int digit = HexDigit(text.at(count));
        if (digit < 0 || digit >= base) {
            break;
        }
        number = char16_t(number * base + digit);
        ++count;
    }
    return {number, count};
}

QString KeyOf(QStringView name)
{
    QString key;
    for (qsizetype i = 0; i < name.size(); ++i) {
        const bool wide = name.at(i) == u'%' && i + 1 < name.size() && name.at(i + 1) == u'U';
        const qsizetype start = i + (wide ? 2 : 1);
        const qsizetype length = wide ? 4 : 2;
        if (name.at(i) == u'\\') {
            key += u'/';
        } else if (const auto [unit, count] = NumberAt(name.sliced(std::min(start, name.size())), 16, length);
                   name.at(i) == u'%' && count == length) {
            key += QChar(unit);
            i = start + length - 1;
        } else {
            key += name.at(i);
        }
    }
    return key;
}

/// Keys that can't be told apart in a file are the same.
QString NormalKey(QString key)
{
    while (key.startsWith(u'/')) {
        key.remove(0, 1);
    }
    while (key.endsWith(u'/')) {
        key.chop(1);
    }
    const QString marked = u'%' + NoSection.toString() + u'/';
    if (key.startsWith(marked, Qt::CaseInsensitive)) {
        key.remove(0, 1);
    }
    const QString general = NoSection.toString() + u'/';
    return key.startsWith(general, Qt::CaseInsensitive) ? general + key.sliced(general.size()) : key;
}

QByteArray NameOf(QStringView key)
{
    QByteArray name;
    for (const QChar character : key) {
        const char16_t unit = character.unicode();
        const bool plain =
            unit < 0x80 && (character.isLetterOrNumber() || unit == u'_' || unit == u'-' || unit == u'.');
        if (unit == u'/') {
            name += '\\';
        } else if (plain) {
            name += char(unit);
        } else if (unit <= 0xFF) {
            name += '%' + QByteArray::number(unit, 16).toUpper().rightJustified(2, '0');
        } else {
            name += "%U" + QByteArray::number(unit, 16).toUpper().rightJustified(4, '0');
        }
    }
    return name;
}

/// Reads the escape behind a "\" and returns its length.
qsizetype AppendEscaped(QString &value, QStringView text)
{
    if (text.isEmpty()) {
        return 0;
    }
    const QChar letter = text.front();
    const auto *const control = std::ranges::find(ControlLetters, letter.toLatin1());
    if (control != ControlLetters.end()) {
        value += QChar(int(u'\a' + (control - ControlLetters.begin())));
        return 1;
    }
    if (letter == u'x' || (letter >= u'0' && letter <= u'7')) {
        const qsizetype start = letter == u'x' ? 1 : 0;
        const auto [unit, count] = NumberAt(text.sliced(start), letter == u'x' ? 16 : 8, text.size());
        if (count > 0) {
            value += QChar(unit);
        }
        return start + count;
    }
    if (letter == u'"' || letter == u'\\') {
        value += letter;
    }
    // A line break behind it joins two lines. Of an unknown escape nothing is left.
    return 1;
}

void ChopBlanks(QString &value, qsizetype kept)
{
    while (value.size() > kept && IsBlank(value.back())) {
        value.chop(1);
    }
}

/// The value as it was before it was written; `text` is all that stands behind the "=".
QString ValueOf(QStringView text)
{
    QString value;
    bool quoted = false;
    bool atStart = true; // Of the value, or of what follows a comma: blanks don't count.
    qsizetype kept = 0; // What stood in quotes or was escaped keeps its blanks.
    for (qsizetype i = 0; i < text.size();) {
        const QChar unit = text.at(i++);
        if (!quoted && unit == u',') {
            ChopBlanks(value, kept);
            value += u", ";
            kept = value.size();
            atStart = true;
            continue;
        }
        if (!quoted && atStart && IsBlank(unit)) {
            continue;
        }
        atStart = false;
        if (unit == u'\\') {
            i += AppendEscaped(value, text.sliced(i));
        } else if (unit == u'"') {
            quoted = !quoted;
        } else {
            value += unit;
            if (!quoted) {
                continue;
            }
        }
        kept = value.size();
    }
    ChopBlanks(value, kept);
    return value;
}

/// Texts that begin with "@" are marked by another one; "@String()" holds what couldn't be written otherwise.
std::optional<QString> Unmarked(const QString &value)
{
    if (!value.startsWith(u'@')) {
        return value;
    }
    if (value == u"@Invalid()") {
        return std::nullopt;
    }
    for (const QStringView mark : {QStringView(u"@String("), QStringView(u"@ByteArray(")}) {
        if (value.startsWith(mark) && value.endsWith(u')')) {
            return value.sliced(mark.size()).chopped(1);
        }
    }
    return value.startsWith(u"@@") ? value.sliced(1) : value;
}

QByteArray Quoted(const QString &value)
{
    const QString text = value.startsWith(u'@') ? u'@' + value : value;
    QByteArray quoted;
    bool afterNumber = false; // A digit now would be taken as one more of the escape before.
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        const bool pair = unit.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        const bool byNumber = unit < u' ' || unit == u'\x7F' || (unit.isSurrogate() && !pair)
            || (afterNumber && HexDigit(unit) >= 0);
        afterNumber = false;
        if (unit >= u'\a' && unit <= u'\r') {
            quoted += '\\';
            quoted += ControlLetters.at(size_t(unit.unicode() - u'\a'));
        } else if (unit == u'"' || unit == u'\\') {
            quoted += '\\';
            quoted += char(unit.unicode());
        } else if (byNumber) {
            quoted += "\\x" + QByteArray::number(unit.unicode(), 16);
            afterNumber = true;
        } else {
            quoted += QStringView(text).mid(i, pair ? 2 : 1).toUtf8();
            i += pair ? 1 : 0;
        }
    }
    const bool special =
        std::ranges::any_of(quoted, [](char byte) { return byte == ';' || byte == ',' || byte == '='; });
    return special || quoted.startsWith(' ') || quoted.endsWith(' ') ? '"' + quoted + '"' : quoted;
}

/// The length of the first line of `text`, without the line break at its end. A value may hold line breaks in
/// quotes or behind a "\".
qsizetype LineLength(QStringView text, bool isValue)
{
    bool quoted = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        if (isValue && unit == u'\\') {
            ++i;
        } else if (isValue && unit == u'"') {
            quoted = !quoted;
        } else if (!quoted && (unit == u'\n' || unit == u'\r')) {
            return i;
        }
    }
    return text.size();
}

}

IniValues ParseIni(QByteArrayView bytes)
{
    const QString all = QString::fromUtf8(bytes);
    QStringView text(all);
    IniValues values;
    QString section;
    while (!text.isEmpty()) {
        if (text.front().isSpace()) {
            text = text.sliced(1);
            continue;
        }
        const bool isValue = text.front() != u';' && text.front() != u'[';
        const QStringView line = text.first(LineLength(text, isValue));
        text = text.sliced(line.size());
        const qsizetype equals = line.indexOf(u'=');
        if (line.startsWith(u'[')) {
            const QStringView name = line.sliced(1, std::max<qsizetype>(line.indexOf(u']'), 1) - 1).trimmed();
            section = name.compare(NoSection, Qt::CaseInsensitive) == 0 ? QString() : KeyOf(name) + u'/';
        } else if (isValue && equals > 0) {
            const QString key = NormalKey(section + KeyOf(line.first(equals).trimmed()));
            if (const std::optional<QString> value = Unmarked(ValueOf(line.sliced(equals + 1)));
                value && !key.isEmpty()) {
                values.insert(key, *value);
            }
        }
    }
    return values;
}

QByteArray FormatIni(const IniValues &values)
{
    // Ordered by section, since a name may sort between two keys of another section.
    QMap<QString, QByteArray> sections;
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        const qsizetype slash = value.key().indexOf(u'/');
        const QString section = value.key().first(std::max<qsizetype>(slash, 0));
        sections[section] +=
            NameOf(QStringView(value.key()).sliced(slash + 1)) + '=' + Quoted(value.value()) + '\n';
    }
    QByteArray text;
    for (auto section = sections.cbegin(); section != sections.cend(); ++section) {
        const bool isGeneral = NoSection.compare(section.key(), Qt::CaseInsensitive) == 0;
        text += text.isEmpty() ? "[" : "\n[";
        text += section.key().isEmpty() ? QByteArray("General")
            : isGeneral                 ? "%General"
                                        : NameOf(section.key());
        text += "]\n" + section.value();
    }
    return text;
}

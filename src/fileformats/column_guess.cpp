// SPDX-License-Identifier: MIT
#include "fileformats/column_guess.h"

#include "fileformats/column_names.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

/// A number, a date or a time.
bool IsNumber(const QString &cell)
{
    constexpr QStringView Marks = u".,:-+/% ";
    return std::ranges::any_of(cell, [](QChar unit) { return unit.isDigit(); })
        && std::ranges::all_of(cell, [&](QChar unit) { return unit.isDigit() || Marks.contains(unit); });
}

bool IsFlagCell(const QString &cell)
{
    constexpr std::array<QStringView, 10> Words = {
        u"", u"0", u"1", u"x", u"true", u"false", u"ja", u"nej", u"yes", u"no"};
    const QStringView text = QStringView(cell).trimmed();
    return std::ranges::any_of(
        Words, [text](QStringView word) { return text.compare(word, Qt::CaseInsensitive) == 0; });
}

bool HasOneText(const QStringList &row)
{
    return std::ranges::count_if(row, [](const QString &cell) { return !cell.trimmed().isEmpty(); }) == 1;
}

/// What is in a column, below the heading if there is one.
struct ColumnContent
{
    int texts = 0; ///< Cells with text.
    int numbers = 0;
    bool flagsOnly = true;
};

std::vector<ColumnContent> ContentOf(std::span<const QStringList> rows, bool hasHeading)
{
    std::vector<ColumnContent> content;
    for (size_t row = hasHeading ? 1 : 0; row < rows.size(); ++row) {
        content.resize(std::max(content.size(), size_t(rows[row].size())));
        for (qsizetype column = 0; column < rows[row].size(); ++column) {
            const QString &cell = rows[row].at(column);
            ColumnContent &of = content[size_t(column)];
            of.texts += int(!cell.trimmed().isEmpty());
            of.numbers += int(IsNumber(cell));
            of.flagsOnly = of.flagsOnly && IsFlagCell(cell);
        }
    }
    return content;
}

std::vector<TextColumn> ColumnsByContent(const std::vector<ColumnContent> &content)
{
    const auto isWords = [](const ColumnContent &of) { return of.texts > 0 && of.numbers < of.texts; };
    const auto isProse = [&](const ColumnContent &of) { return isWords(of) && !of.flagsOnly; };
    // Numbers may be what is to be learnt, if there is nothing else.
    const bool onlyWords = std::ranges::count_if(content, isProse) >= 2;
    constexpr std::array Next = {TextColumn::Term1, TextColumn::Term2, TextColumn::Note};
    size_t next = 0;
    bool hasFlag = false;
    std::vector<TextColumn> columns;
    for (const ColumnContent &of : content) {
        if (onlyWords && of.flagsOnly && of.texts > 0) {
            columns.push_back(hasFlag ? TextColumn::Flag2 : TextColumn::Flag1);
            hasFlag = true;
        } else if (of.texts == 0 || (onlyWords && !isWords(of)) || next == Next.size()) {
            columns.push_back(TextColumn::LeftOut);
        } else {
            columns.push_back(Next[next++]);
        }
    }
    return columns;
}

std::vector<TextColumn> ColumnsByName(const QStringList &heading, const std::vector<ColumnContent> &content)
{
    std::vector<std::optional<TextColumn>> known;
    for (const QString &name : heading) {
        known.push_back(ColumnOfName(name));
    }
    // Columns whose names say nothing are terms while there are too few of these, then the note.
    auto missing = 2 - std::ranges::count(known, std::optional(TextColumn::Term1));
    const auto hasText = [&content](size_t column) {
        return column < content.size() && content[column].texts > 0
            && content[column].numbers < content[column].texts;
    };
    const auto hasFlags = [&content](size_t column) {
        return column < content.size() && content[column].texts > 0 && content[column].flagsOnly;
    };
    for (size_t column = 0; column < known.size(); ++column) {
        if (!known[column] && missing > 0 && ((hasText(column) && !hasFlags(column)) || content.empty())) {
            known[column] = TextColumn::Term1;
            --missing;
        }
    }
    std::vector<TextColumn> columns;
    const auto take = [&columns](TextColumn first, TextColumn second) {
        const auto isTaken = [&columns](TextColumn column) { return std::ranges::count(columns, column) > 0; };
        return !isTaken(first) ? first : !isTaken(second) ? second : TextColumn::LeftOut;
    };
    for (size_t column = 0; column < known.size(); ++column) {
        const TextColumn kind = known[column].value_or(hasFlags(column) ? TextColumn::Flag1
                : hasText(column)                                       ? TextColumn::Note
                                                                        : TextColumn::LeftOut);
        columns.push_back(kind == TextColumn::Term1 ? take(TextColumn::Term1, TextColumn::Term2)
                : kind == TextColumn::Flag1         ? take(TextColumn::Flag1, TextColumn::Flag2)
                : kind == TextColumn::Note          ? take(TextColumn::Note, TextColumn::LeftOut)
                                                    : kind);
    }
    return columns;
}

/// Whether the first row alone begins with capitals.
bool HasCapitalsInFirstRow(const std::vector<QStringList> &rows)
{
    constexpr size_t FewestRows = 6;
    if (rows.size() < FewestRows) {
        return false;
    }
    for (const qsizetype column : {0, 1}) {
        const QString first = rows[0].value(column);
        if (first.isEmpty() || !first.at(0).isUpper() || first.contains(u'.') || first.contains(u'!')
            || first.contains(u'?')) {
            return false;
        }
        const auto small = std::count_if(rows.begin() + 1, rows.end(), [column](const QStringList &row) {
            return !row.value(column).isEmpty() && row.value(column).at(0).isLower();
        });
        if (size_t(small) * 10 < (rows.size() - 1) * 9) {
            return false;
        }
    }
    return true;
}

/// How many names of a row say what their columns hold; -1 where names and other words stand together.
int KnownNames(const QStringList &row)
{
    int known = 0;
    int unknown = 0;
    bool hasLanguage = false;
    for (const QString &cell : row) {
        if (!cell.trimmed().isEmpty()) {
            const bool isKnown = ColumnOfName(cell).has_value();
            known += int(isKnown);
            unknown += int(!isKnown);
            hasLanguage = hasLanguage || IsLanguageName(cell);
        }
    }
    // Names of languages are seldom words to learn beside others that are no names.
    return unknown == 0 || hasLanguage || known > unknown ? known : 0;
}

}

bool GuessHeading(const std::vector<QStringList> &rows)
{
    if (rows.empty()) {
        return false;
    }
    const auto below = BelowTitles(rows);
    const int known = KnownNames(below[0]);
    const int knownBelow = below.size() > 1 ? KnownNames(below[1]) : 0;
    return known > 0 ? known > knownBelow : HasCapitalsInFirstRow(rows);
}

int GuessTitleRows(const std::vector<QStringList> &rows)
{
    constexpr std::ptrdiff_t Most = 5;
    constexpr int FewestNames = 2;
    const auto heading = std::ranges::find_if_not(rows, HasOneText);
    const std::ptrdiff_t titles = heading - rows.begin();
    if (titles == 0 || titles > Most || heading == rows.end()) {
        return 0;
    }
    const int known = KnownNames(*heading);
    const int knownBelow = heading + 1 == rows.end() ? 0 : KnownNames(heading[1]);
    return known >= FewestNames && known > knownBelow ? int(titles) : 0;
}

std::span<const QStringList> BelowTitles(const std::vector<QStringList> &rows)
{
    return std::span(rows).subspan(size_t(GuessTitleRows(rows)));
}

std::vector<TextColumn> GuessColumns(const std::vector<QStringList> &rows, bool hasHeading)
{
    if (!hasHeading || rows.empty()) {
        return ColumnsByContent(ContentOf(rows, false));
    }
    const auto below = BelowTitles(rows);
    return ColumnsByName(below[0], ContentOf(below, true));
}

// SPDX-License-Identifier: MIT
#include "quiz/answer_difference.h"

#include "platform/letters.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <optional>
#include <vector>

namespace {

using Kind = DifferencePart::Kind;
using Characters = std::vector<QStringView>;

/// The most cells of the tables that are filled for one answer.
constexpr qint64 MostCells = 1'000'000;

/// What the reader takes for characters: a letter with its combining marks is one.
Characters SplitCharacters(QStringView text)
{
    Characters characters;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text.data(), text.size());
    qsizetype start = 0;
    for (qsizetype end = finder.toNextBoundary(); end > start; end = finder.toNextBoundary()) {
        characters.push_back(text.mid(start, end - start));
        start = end;
    }
    return characters;
}

/// Two texts as characters, and how many they have in common at their start and at their end.
struct Pair
{
    Characters typed;
    Characters expected;
    size_t start = 0;
    size_t end = 0;

    Pair(QStringView typedText, QStringView expectedText)
        : typed(SplitCharacters(typedText)), expected(SplitCharacters(expectedText))
    {
        const size_t shorter = std::min(typed.size(), expected.size());
        while (start < shorter && typed[start] == expected[start]) {
            ++start;
        }
        while (end < shorter - start && typed[typed.size() - 1 - end] == expected[expected.size() - 1 - end]) {
            ++end;
        }
    }
    size_t rows() const { return typed.size() - start - end; }
    size_t columns() const { return expected.size() - start - end; }
    bool sameAt(size_t row, size_t column) const { return typed[start + row] == expected[start + column]; }
};

/// cost(row, column): the fewest steps between what follows the first `row` and `column` characters of the
/// parts that differ.
class CCostTable
{
public:
    explicit CCostTable(const Pair &pair) : m_width(pair.columns() + 1), m_costs((pair.rows() + 1) * m_width)
    {
        for (size_t row = pair.rows() + 1; row-- > 0;) {
            for (size_t column = pair.columns() + 1; column-- > 0;) {
                m_costs[row * m_width + column] = Cost(pair, row, column);
            }
        }
    }
    int At(size_t row, size_t column) const { return m_costs[row * m_width + column]; }

private:
    int Cost(const Pair &pair, size_t row, size_t column) const
    {
        if (row == pair.rows()) {
            return int(pair.columns() - column);
        }
        if (column == pair.columns()) {
            return int(pair.rows() - row);
        }
        const int step = pair.sameAt(row, column) ? 0 : 1;
        return std::min({At(row + 1, column + 1) + step, At(row + 1, column) + 1, At(row, column + 1) + 1});
    }

    size_t m_width;
    std::vector<int> m_costs;
};

/// Joins neighbours of one kind.
void Append(QList<DifferencePart> &parts, Kind kind, QStringView typed, QStringView expected)
{
    if (parts.isEmpty() || parts.last().kind != kind) {
        parts.append({kind, {}, {}});
    }
    parts.last().typed.append(typed);
    parts.last().expected.append(expected);
}

qint64 CellsFor(const Pair &pair)
{
    return qint64(pair.rows() + 1) * qint64(pair.columns() + 1);
}

int Distance(const Pair &pair, qint64 &cells)
{
    const qint64 needed = CellsFor(pair);
    if (needed > cells) {
        return int(std::max(pair.rows(), pair.columns()));
    }
    cells -= needed;
    return CCostTable(pair).At(0, 0);
}

void AppendSteps(QList<DifferencePart> &parts, const Pair &pair)
{
    const CCostTable costs(pair);
    size_t row = 0;
    size_t column = 0;
    while (row < pair.rows() || column < pair.columns()) {
        const QStringView typed = row < pair.rows() ? pair.typed[pair.start + row] : QStringView();
        const QStringView expected =
            column < pair.columns() ? pair.expected[pair.start + column] : QStringView();
        const bool both = row < pair.rows() && column < pair.columns();
        const int cost = costs.At(row, column);
        if (both && typed == expected && cost == costs.At(row + 1, column + 1)) {
            Append(parts, Kind::Same, typed, expected);
            ++row, ++column;
        } else if (both && cost == costs.At(row + 1, column + 1) + 1) {
            Append(parts, Kind::Changed, typed, expected);
            ++row, ++column;
        } else if (row < pair.rows() && cost == costs.At(row + 1, column) + 1) {
            Append(parts, Kind::Surplus, typed, {});
            ++row;
        } else {
            Append(parts, Kind::Missing, {}, expected);
            ++column;
        }
    }
}

QString WithoutMarks(const QString &text)
{
    QString letters = text.normalized(QString::NormalizationForm_D);
    letters.removeIf([](QChar unit) { return unit.isMark(); });
    return letters;
}

QString WithoutPunctuation(const QString &text)
{
    QString kept;
    for (const QStringView character : SplitCharacters(text)) {
        const auto codePoints = character.toUcs4();
        if (!codePoints.isEmpty() && IsWordCharacter(codePoints.first())) {
            kept.append(character);
        }
    }
    return kept;
}

bool IsOneLetter(const QList<DifferencePart> &parts)
{
    const auto isOther = [](const DifferencePart &part) { return part.kind != Kind::Same; };
    const auto isLetter = [](const QString &text) {
        return text.isEmpty() || (SplitCharacters(text).size() == 1 && !KeepLetters(text, false).isEmpty());
    };
    const auto other = std::ranges::find_if(parts, isOther);
    return std::ranges::count_if(parts, isOther) == 1 && isLetter(other->typed) && isLetter(other->expected);
}

/// A slip that leaves the words as they are.
Slip SlipBetween(const QString &typed, const QString &expected)
{
    if (ToLowerCase(typed) == ToLowerCase(expected)) {
        return Slip::LetterCase;
    }
    if (WithoutMarks(typed) == WithoutMarks(expected)) {
        return Slip::Accent;
    }
    const QString words = WithoutPunctuation(typed);
    return !words.isEmpty() && words == WithoutPunctuation(expected) ? Slip::PunctuationOrBlanks : Slip::None;
}

/// The alternatives in their order, then the whole term, each as it may be typed.
QStringList AcceptedTexts(const CWordEntry &entry, int answerColumn, const CheckingOptions &options)
{
    QStringList texts;
    const int last = entry.AlternativeCount(answerColumn);
    for (int k = 0; k <= last; ++k) {
        texts += acceptedForms(entry.GetAlternative(answerColumn, k, false));
    }
    if (last > 0) {
        texts += acceptedForms(entry.GetText(answerColumn));
    }
    for (QString &text : texts) {
        text = normalizeForCheck(text, options);
    }
    return texts;
}

}

QList<DifferencePart> differenceBetween(const QString &typed, const QString &expected)
{
    const Pair pair(typed, expected);
    QList<DifferencePart> parts;
    const auto join = [](const Characters &characters, size_t from, size_t to) {
        return from == to ? QStringView() : QStringView(characters[from].begin(), characters[to - 1].end());
    };
    const auto appendSame = [&](size_t from, size_t to) {
        if (from < to) {
            Append(parts, Kind::Same, join(pair.typed, from, to), join(pair.typed, from, to));
        }
    };
    appendSame(0, pair.start);
    if (pair.rows() == 0 || pair.columns() == 0 || CellsFor(pair) <= MostCells) {
        AppendSteps(parts, pair);
    } else {
        Append(parts, Kind::Changed, join(pair.typed, pair.start, pair.start + pair.rows()),
            join(pair.expected, pair.start, pair.start + pair.columns()));
    }
    appendSame(pair.typed.size() - pair.end, pair.typed.size());
    return parts;
}

AnswerDifference answerDifference(
    const CWordEntry &entry, int answerColumn, const QString &answer, const CheckingOptions &options)
{
    AnswerDifference difference = {.typed = normalizeForCheck(answer, options)};
    qint64 cells = MostCells;
    std::optional<int> nearest;
    for (const QString &text : AcceptedTexts(entry, answerColumn, options)) {
        difference.slip = SlipBetween(difference.typed, text);
        if (difference.slip != Slip::None) {
            difference.expected = text;
            break;
        }
        const int distance = Distance(Pair(difference.typed, text), cells);
        if (!nearest || distance < *nearest) {
            nearest = distance;
            difference.expected = text;
        }
    }
    difference.parts = differenceBetween(difference.typed, difference.expected);
    if (difference.slip == Slip::None && IsOneLetter(difference.parts)) {
        difference.slip = Slip::OneLetter;
    }
    return difference;
}

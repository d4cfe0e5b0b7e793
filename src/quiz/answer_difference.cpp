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
/// More parts than these nobody reads.
constexpr qsizetype MostParts = 400;

/// What the reader takes for characters: a letter with its combining marks is one.
Characters splitCharacters(QStringView text)
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

/// A text as it is compared, character by character, and what stands for each in the text as it was written.
struct ComparedText
{
    struct Character
    {
        QStringView compared;
        QStringView ignored; ///< What does not count, before it.
        QStringView shown;
    };

    QString compared = {};
    std::vector<Character> characters = {};
    QStringView tail = {}; ///< What does not count, after the last character.

    /// `text` must outlive it.
    ComparedText(QStringView text, const CheckingOptions &options)
    {
        std::vector<QStringView> origins; // For every unit that counts.
        for (const QStringView written : splitCharacters(text)) {
            compared += normalizeForCheck(written.toString(), options);
            origins.resize(size_t(compared.size()), written);
        }
        // Not those of the text: what was apart in it may make one character without what stood between.
        const QChar *position = text.begin();
        for (const QStringView character : splitCharacters(compared)) {
            const size_t first = size_t(character.begin() - compared.constBegin());
            const QChar *const start = std::max(position, origins[first].begin());
            const QChar *const end = std::max(start, origins[first + size_t(character.size()) - 1].end());
            characters.push_back({character, {position, start}, {start, end}});
            position = end;
        }
        tail = QStringView(position, text.end());
    }
    QStringView shown(size_t from, size_t count) const
    {
        return count == 0
            ? QStringView()
            : QStringView(characters[from].shown.begin(), characters[from + count - 1].shown.end());
    }
};

/// Two texts, and how many characters they have in common at their start and at their end.
struct Pair
{
    const ComparedText &typed;
    const ComparedText &expected;
    size_t start = 0;
    size_t end = 0;

    Pair(const ComparedText &typedText, const ComparedText &expectedText)
        : typed(typedText), expected(expectedText)
    {
        const size_t typedSize = typed.characters.size();
        const size_t expectedSize = expected.characters.size();
        const size_t shorter = std::min(typedSize, expectedSize);
        while (start < shorter && same(start, start)) {
            ++start;
        }
        while (end < shorter - start && same(typedSize - 1 - end, expectedSize - 1 - end)) {
            ++end;
        }
    }
    size_t rows() const { return typed.characters.size() - start - end; }
    size_t columns() const { return expected.characters.size() - start - end; }
    bool sameAt(size_t row, size_t column) const { return same(start + row, start + column); }

private:
    bool same(size_t i, size_t j) const
    {
        return typed.characters[i].compared == expected.characters[j].compared;
    }
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
                m_costs[row * m_width + column] = cost(pair, row, column);
            }
        }
    }
    int at(size_t row, size_t column) const { return m_costs[row * m_width + column]; }

private:
    int cost(const Pair &pair, size_t row, size_t column) const
    {
        if (row == pair.rows()) {
            return int(pair.columns() - column);
        }
        if (column == pair.columns()) {
            return int(pair.rows() - row);
        }
        const int step = pair.sameAt(row, column) ? 0 : 1;
        return std::min({at(row + 1, column + 1) + step, at(row + 1, column) + 1, at(row, column + 1) + 1});
    }

    size_t m_width;
    std::vector<int> m_costs;
};

/// Goes along both texts and notes the parts.
class CWalk
{
public:
    explicit CWalk(const Pair &pair) : m_typed(&pair.typed), m_expected(&pair.expected) { }

    /// Takes the next characters of both. What does not count before them is the same.
    void take(Kind kind, size_t typed, size_t expected)
    {
        append(Kind::Same, typed == 0 ? QStringView() : m_typed->characters[m_row].ignored,
            expected == 0 ? QStringView() : m_expected->characters[m_column].ignored);
        append(kind, m_typed->shown(m_row, typed), m_expected->shown(m_column, expected));
        m_row += typed;
        m_column += expected;
    }
    void takeTail() { append(Kind::Same, m_typed->tail, m_expected->tail); }
    const QList<DifferencePart> &parts() const { return m_parts; }

private:
    /// Joins neighbours of one kind.
    void append(Kind kind, QStringView typed, QStringView expected)
    {
        if (typed.isEmpty() && expected.isEmpty()) {
            return;
        }
        if (m_parts.isEmpty() || m_parts.last().kind != kind) {
            m_parts.append({kind, {}, {}});
        }
        m_parts.last().typed.append(typed);
        m_parts.last().expected.append(expected);
    }

    const ComparedText *m_typed;
    const ComparedText *m_expected;
    size_t m_row = 0;
    size_t m_column = 0;
    QList<DifferencePart> m_parts;
};

qint64 cellsFor(const Pair &pair)
{
    return qint64(pair.rows() + 1) * qint64(pair.columns() + 1);
}

int editDistance(const Pair &pair, qint64 &cells)
{
    const qint64 needed = cellsFor(pair);
    if (needed > cells) {
        return int(std::max(pair.rows(), pair.columns()));
    }
    cells -= needed;
    return CCostTable(pair).at(0, 0);
}

/// Returns false when they get too many.
bool takeSteps(CWalk &walk, const Pair &pair)
{
    const CCostTable costs(pair);
    size_t row = 0;
    size_t column = 0;
    while (row < pair.rows() || column < pair.columns()) {
        const bool both = row < pair.rows() && column < pair.columns();
        const int cost = costs.at(row, column);
        if (both && pair.sameAt(row, column) && cost == costs.at(row + 1, column + 1)) {
            walk.take(Kind::Same, 1, 1);
            ++row, ++column;
        } else if (both && cost == costs.at(row + 1, column + 1) + 1) {
            walk.take(Kind::Changed, 1, 1);
            ++row, ++column;
        } else if (row < pair.rows() && cost == costs.at(row + 1, column) + 1) {
            walk.take(Kind::Surplus, 1, 0);
            ++row;
        } else {
            walk.take(Kind::Missing, 0, 1);
            ++column;
        }
        if (walk.parts().size() > MostParts) {
            return false;
        }
    }
    return true;
}

QList<DifferencePart> differenceBetween(const Pair &pair)
{
    CWalk before(pair);
    before.take(Kind::Same, pair.start, pair.start);
    CWalk walk = before;
    if (cellsFor(pair) > MostCells || !takeSteps(walk, pair)) {
        walk = before;
        walk.take(pair.rows() == 0    ? Kind::Missing
                : pair.columns() == 0 ? Kind::Surplus
                                      : Kind::Changed,
            pair.rows(), pair.columns());
    }
    walk.take(Kind::Same, pair.end, pair.end);
    walk.takeTail();
    return walk.parts();
}

/// `text` with one character for all that look the same.
QString byLook(const QString &text)
{
    QString look = text.normalized(QString::NormalizationForm_C);
    for (QChar &unit : look) {
        switch (unit.unicode()) {
        case QChar::Nbsp:
        case 0x202F: // A narrow no-break space.
            unit = u' ';
            break;
        case u'\u2018':
        case u'\u2019':
        case u'\u02BC':
        case u'\u00B4':
            unit = u'\'';
            break;
        case u'\u201C':
        case u'\u201D':
            unit = u'"';
            break;
        case u'\u2010':
        case u'\u2011':
            unit = u'-';
            break;
        default:
            break;
        }
    }
    return look;
}

QString withoutAccents(const QString &text)
{
    QString letters;
    for (const QStringView character : splitCharacters(text)) {
        const QString composed = character.toString().normalized(QString::NormalizationForm_C);
        if (QStringView(u"åäöÅÄÖ").contains(composed)) {
            letters += composed;
            continue;
        }
        QString plain = composed.normalized(QString::NormalizationForm_D);
        plain.removeIf([](QChar unit) { return unit.isMark(); });
        letters += plain;
    }
    return letters;
}

QString withoutPunctuation(const QString &text)
{
    QString kept;
    for (const QStringView character : splitCharacters(text)) {
        const auto codePoints = character.toUcs4();
        if (!codePoints.isEmpty() && IsWordCharacter(codePoints.first())) {
            kept.append(character);
        }
    }
    return kept;
}

/// `text` without what these slips are about.
QString without(Slips slips, QString text)
{
    if (slips.testFlag(Slip::LetterCase)) {
        text = ToLowerCase(text);
    }
    if (slips.testFlag(Slip::Accent)) {
        text = withoutAccents(text);
    }
    return slips.testFlag(Slip::PunctuationOrBlanks) ? withoutPunctuation(text) : text;
}

/// Slips that leave the words as they are.
Slips slipsBetween(const QString &typed, const QString &expected)
{
    const QString typedLook = byLook(typed);
    const QString expectedLook = byLook(expected);
    if (typedLook == expectedLook) {
        return Slip::SameLook;
    }
    // The fewest first.
    constexpr Slip Case = Slip::LetterCase;
    constexpr Slip Accent = Slip::Accent;
    constexpr Slip Punctuation = Slip::PunctuationOrBlanks;
    for (const Slips slips : {Slips(Case), Slips(Accent), Slips(Punctuation), Case | Accent, Case | Punctuation,
             Accent | Punctuation, Case | Accent | Punctuation}) {
        const QString left = without(slips, typedLook);
        if (!left.isEmpty() && left == without(slips, expectedLook)) {
            return slips;
        }
    }
    return {};
}

bool isOneLetter(const QList<DifferencePart> &parts)
{
    const auto isOther = [](const DifferencePart &part) { return part.kind != Kind::Same; };
    const auto isLetter = [](const QString &text) {
        return text.isEmpty() || (splitCharacters(text).size() == 1 && !KeepLetters(text, false).isEmpty());
    };
    const auto other = std::ranges::find_if(parts, isOther);
    return std::ranges::count_if(parts, isOther) == 1 && isLetter(other->typed) && isLetter(other->expected);
}

bool isExchange(const Pair &pair)
{
    const auto typed = [&](size_t row) { return pair.typed.characters[pair.start + row].compared; };
    const auto expected = [&](size_t column) { return pair.expected.characters[pair.start + column].compared; };
    return pair.rows() == 2 && pair.columns() == 2 && typed(0) == expected(1) && typed(1) == expected(0);
}

/// Whether less than half of the characters are the same in both.
bool isOtherWord(const Pair &pair, const QList<DifferencePart> &parts)
{
    size_t differing = 0;
    for (const DifferencePart &part : parts) {
        if (part.kind != Kind::Same) {
            differing += std::max(splitCharacters(part.typed).size(), splitCharacters(part.expected).size());
        }
    }
    const size_t longer = std::max(pair.typed.characters.size(), pair.expected.characters.size());
    return longer < 2 * differing;
}

/// What is left to name where the words are not the same.
Slips slipsOf(const Pair &pair, const QList<DifferencePart> &parts)
{
    if (isExchange(pair)) {
        return Slip::Exchange;
    }
    if (isOtherWord(pair, parts)) {
        return Slip::OtherWord;
    }
    return isOneLetter(parts) ? Slips(Slip::OneLetter) : Slips();
}

}

AnswerDifference answerDifference(
    const CWordEntry &entry, int answerColumn, const QString &answer, const CheckingOptions &options)
{
    AnswerDifference difference = {.typed = answer};
    const ComparedText typed(difference.typed, options);
    qint64 cells = MostCells;
    std::optional<int> nearest;
    for (const QString &text : acceptedTexts(entry, answerColumn)) {
        const ComparedText accepted(text, options);
        difference.slips = slipsBetween(typed.compared, accepted.compared);
        if (difference.slips) {
            difference.expected = text;
            break;
        }
        const int distance = editDistance(Pair(typed, accepted), cells);
        if (!nearest || distance < *nearest) {
            nearest = distance;
            difference.expected = text;
        }
    }
    const ComparedText expected(difference.expected, options);
    const Pair pair(typed, expected);
    difference.parts = differenceBetween(pair);
    if (!difference.slips) {
        difference.slips = slipsOf(pair, difference.parts);
    }
    if (difference.slips.testFlag(Slip::OtherWord)) {
        // Letters that agree by chance say nothing.
        difference.parts = {{Kind::Changed, difference.typed, difference.expected}};
    }
    return difference;
}

// SPDX-License-Identifier: MIT
#include "dictionaries/dictionary_index.h"

#include "model/text_search.h"
#include "platform/regular_file.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

/// A headword is a word or a phrase; what is longer is no index.
constexpr qint64 LongestLine = 4096;

/// Headwords that tell of the dictionary itself begin so.
constexpr std::array OwnHeadwords = {QByteArrayView("00database"), QByteArrayView("00-database")};

QByteArrayView HeadwordOf(QByteArrayView line)
{
    const qsizetype end = line.indexOf('\t');
    return end < 0 ? line : line.first(end);
}

bool IsOwn(QByteArrayView headword)
{
    return std::ranges::any_of(
        OwnHeadwords, [headword](QByteArrayView own) { return headword.startsWith(own); });
}

std::optional<qint64> NumberOf(QByteArrayView digits)
{
    constexpr QByteArrayView Alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    constexpr qsizetype MostDigits = 8; // 48 bits.
    if (digits.isEmpty() || digits.size() > MostDigits) {
        return {};
    }
    qint64 number = 0;
    for (const char digit : digits) {
        const qsizetype value = Alphabet.indexOf(digit);
        if (value < 0) {
            return {};
        }
        number = number * 64 + value;
    }
    return number;
}

std::optional<ArticlePlace> PlaceIn(QByteArrayView line)
{
    const QByteArrayView headword = HeadwordOf(line);
    const QByteArrayView rest = line.sliced(std::min(headword.size() + 1, line.size()));
    const QByteArrayView first = HeadwordOf(rest);
    QByteArrayView second = HeadwordOf(rest.sliced(std::min(first.size() + 1, rest.size())));
    second.chop(qsizetype(second.endsWith('\r')));
    const std::optional<qint64> offset = NumberOf(first);
    const std::optional<qint64> length = NumberOf(second);
    if (!offset || !length) {
        return {};
    }
    return ArticlePlace{QString::fromUtf8(headword), *offset, *length};
}

/// The form in which most indexes hold their headwords: small letters, digits and blanks alone, and those of
/// `others`.
QString FoldedText(const QString &headword, QStringView others = {})
{
    QString folded;
    for (const QChar unit : headword.toLower()) {
        if (unit.isLetterOrNumber() || unit.isMark() || unit.isSurrogate() || others.contains(unit)) {
            folded.append(unit);
        } else if (unit.isSpace()) {
            folded.append(u' ');
        }
    }
    return folded.simplified();
}

QByteArray Folded(const QString &headword)
{
    return FoldedText(headword).toUtf8();
}

/// The same of a headword in an index, most of which are in that form as they stand.
QString FoldedHeadword(QByteArrayView headword)
{
    const bool isFolded = std::ranges::all_of(headword,
        [](char byte) { return (byte >= 'a' && byte <= 'z') || (byte >= '0' && byte <= '9') || byte == ' '; });
    return isFolded ? QString::fromLatin1(headword) : FoldedText(QString::fromUtf8(headword));
}

}

bool CDictionaryIndex::Open(const QString &path)
{
    m_starts.clear();
    m_bytes = {};
    m_file.close();
    if (!OpenRegularFile(m_file, path) || m_file.size() == 0) {
        return false;
    }
    const uchar *const bytes = m_file.map(0, m_file.size());
    if (bytes == nullptr) {
        return false;
    }
    m_bytes = QByteArrayView(bytes, m_file.size());
    if (LookThrough()) {
        return true;
    }
    m_starts.clear();
    return false;
}

bool CDictionaryIndex::LookThrough()
{
    QByteArrayView last;
    m_isInOrder = true;
    size_t oddLines = 0; // Such as empty ones.
    for (qint64 start = 0; start < m_bytes.size();) {
        const QByteArrayView line = LineAt(start);
        if (line.size() > LongestLine) {
            return false;
        }
        if (PlaceIn(line)) {
            const QByteArrayView headword = HeadwordOf(line);
            m_isInOrder = m_isInOrder && last.compare(headword) <= 0;
            last = headword;
            m_starts.push_back(start);
        } else {
            ++oddLines;
        }
        start += line.size() + 1;
    }
    if (m_starts.size() <= oddLines) {
        return false;
    }
    if (!m_isInOrder) {
        // Made in an order of its own, which may have left out some characters.
        std::vector<std::pair<QByteArray, qint64>> keys;
        keys.reserve(m_starts.size());
        for (const qint64 start : m_starts) {
            keys.emplace_back(KeyOf(start), start);
        }
        std::ranges::sort(keys);
        std::ranges::transform(keys, m_starts.begin(), [](const auto &key) { return key.second; });
    }
    return true;
}

QByteArrayView CDictionaryIndex::LineAt(qint64 start) const
{
    const QByteArrayView rest = m_bytes.sliced(start);
    const QByteArrayView line = rest.first(std::min(rest.size(), LongestLine + 1));
    const qsizetype end = line.indexOf('\n');
    return end < 0 ? line : line.first(end);
}

QByteArray CDictionaryIndex::KeyOf(qint64 start) const
{
    const QByteArrayView headword = HeadwordOf(LineAt(start));
    return m_isInOrder ? QByteArray::fromRawData(headword.data(), headword.size())
                       : Folded(QString::fromUtf8(headword));
}

std::vector<ArticlePlace> CDictionaryIndex::Search(const QString &text, bool whole, int most) const
{
    std::vector<ArticlePlace> places;
    QByteArrayList keys = {Folded(text)};
    if (m_isInOrder) {
        // Some indexes have capital letters, or all characters.
        for (const QByteArray &key : {text.toLower().toUtf8(), text.toUtf8()}) {
            if (!keys.contains(key)) {
                keys.append(key);
            }
        }
    }
    for (const QByteArray &key : std::as_const(keys)) {
        if (key.isEmpty()) {
            continue;
        }
        auto line = std::ranges::lower_bound(m_starts, key, {}, [this](qint64 start) { return KeyOf(start); });
        for (; line != m_starts.end() && int(places.size()) < most; ++line) {
            const QByteArray found = KeyOf(*line);
            if (whole ? found != key : !found.startsWith(key)) {
                break;
            }
            if (!IsOwn(found) || whole) {
                places.push_back(*PlaceIn(LineAt(*line)));
            }
        }
    }
    return places;
}

std::vector<ArticlePlace> CDictionaryIndex::Find(const QString &headword, int most) const
{
    return Search(headword, true, most);
}

std::vector<ArticlePlace> CDictionaryIndex::FindBeginning(const QString &start, int most) const
{
    return Search(start, false, most);
}

std::vector<ArticlePlace> CDictionaryIndex::FindPart(const QString &text, int most) const
{
    std::vector<ArticlePlace> places;
    if (Folded(text).isEmpty()) {
        return places;
    }
    const CTextMatcher matcher({.text = FoldedText(text, u"*?"), .matchCase = true, .wildcard = true});
    for (auto line = m_starts.begin(); line != m_starts.end() && int(places.size()) < most; ++line) {
        const QByteArrayView headword = HeadwordOf(LineAt(*line));
        if (!IsOwn(headword) && matcher.Find(FoldedHeadword(headword))) {
            places.push_back(*PlaceIn(LineAt(*line)));
        }
    }
    return places;
}

std::vector<ArticlePlace> CDictionaryIndex::All(int most) const
{
    std::vector<ArticlePlace> places;
    for (auto line = m_starts.begin(); line != m_starts.end() && int(places.size()) < most; ++line) {
        if (!IsOwn(HeadwordOf(LineAt(*line)))) {
            places.push_back(*PlaceIn(LineAt(*line)));
        }
    }
    return places;
}

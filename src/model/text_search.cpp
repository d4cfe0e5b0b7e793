// SPDX-License-Identifier: MIT
#include "model/text_search.h"

#include "platform/letters.h"

#include <algorithm>

namespace {

bool Passes(FlagFilter filter, bool flag)
{
    return filter == FlagFilter::Any || (filter == FlagFilter::Flagged) == flag;
}

/// The code point that begins, or that ends, at a position; lone surrogates are themselves.
char32_t CharacterAt(QStringView field, qsizetype position)
{
    const QChar unit = field.at(position);
    return unit.isHighSurrogate() && position + 1 < field.size() && field.at(position + 1).isLowSurrogate()
        ? QChar::surrogateToUcs4(unit, field.at(position + 1))
        : char32_t(unit.unicode());
}

char32_t CharacterBefore(QStringView field, qsizetype position)
{
    const QChar unit = field.at(position - 1);
    return unit.isLowSurrogate() && position > 1 && field.at(position - 2).isHighSurrogate()
        ? QChar::surrogateToUcs4(field.at(position - 2), unit)
        : char32_t(unit.unicode());
}

bool BoundaryBefore(QStringView field, qsizetype position)
{
    return position == 0 || !IsWordCharacter(CharacterBefore(field, position));
}

bool BoundaryAfter(QStringView field, qsizetype position)
{
    return position == field.size() || !IsWordCharacter(CharacterAt(field, position));
}

/// Whether the units at `place`, of which there are enough, stand for those of `text`, which is folded.
bool EqualFolded(const char16_t *place, QStringView text, const char16_t *folding)
{
    return std::equal(text.utf16(), text.utf16() + text.size(), place,
        [folding](char16_t folded, char16_t unit) { return folding[unit] == folded; });
}

/// The first place of `text`, which is folded and not empty, at or after `from`; -1 without one.
qsizetype IndexOfFolded(QStringView field, QStringView text, const char16_t *folding, qsizetype from)
{
    if (field.size() - from < text.size()) {
        return -1;
    }
    const auto isFirst = [folding, first = text.front().unicode()](
                             char16_t unit) { return folding[unit] == first; };
    const char16_t *const end = field.utf16() + field.size() - text.size() + 1;
    const char16_t *place = std::find_if(field.utf16() + from, end, isFirst);
    while (place != end && !EqualFolded(place, text, folding)) {
        place = std::find_if(place + 1, end, isFirst);
    }
    return place == end ? -1 : place - field.utf16();
}

}

CTextMatcher::CTextMatcher(const TextSearch &search)
    : m_folding(search.matchCase ? nullptr : CaseFolding()), m_wholeWord(search.wholeWord),
      m_column(search.column), m_flag1(search.flag1), m_flag2(search.flag2), m_text(search.text)
{
    if (search.wildcard && (m_text.contains(u'*') || m_text.contains(u'?'))) {
        m_segments.emplace_back();
        for (const QChar unit : std::as_const(m_text)) {
            if (unit == u'*') {
                m_segments.emplace_back();
                continue;
            }
            Segment &segment = m_segments.back();
            segment.text.append(QChar(Fold(unit)));
            segment.any.push_back(unit == u'?');
        }
    }
    for (QChar &unit : m_text) {
        unit = QChar(Fold(unit));
    }
    m_isPlain = m_folding != nullptr && !m_wholeWord && m_segments.empty() && !m_text.isEmpty();
}

TextMatch CTextMatcher::FindIn(const CWordEntry &entry, int index) const
{
    if (!Passes(m_flag1, entry.GetFlag(0)) || !Passes(m_flag2, entry.GetFlag(1))) {
        return {};
    }
    const bool all = m_column < 0;
    const int last = all ? CWordEntry::NoteField : std::min(m_column, CWordEntry::NoteField);
    for (int column = all ? 0 : m_column; column <= last; ++column) {
        const QString &field = entry.GetField(column);
        if (m_isPlain) { // In a long list nearly all time is spent here.
            if (const qsizetype start = IndexOfFolded(field, m_text, m_folding, 0); start >= 0) {
                return {index, column, int(start), int(start + m_text.size()) - 1};
            }
        } else if (const auto range = Find(field)) {
            return {index, column, int(range->start), int(range->start + range->length) - 1};
        }
    }
    return {};
}

bool CTextMatcher::IsPrefixOf(QStringView field) const
{
    return m_folding == nullptr
        ? field.startsWith(m_text)
        : field.size() >= m_text.size() && EqualFolded(field.utf16(), m_text, m_folding);
}

std::optional<CTextMatcher::Range> CTextMatcher::Find(QStringView field) const
{
    const qsizetype length = m_text.size();
    if (length == 0) {
        return Range{};
    }
    if (!m_segments.empty()) {
        return FindWildcard(field);
    }
    for (qsizetype from = 0;;) {
        const qsizetype position =
            m_folding == nullptr ? field.indexOf(m_text, from) : IndexOfFolded(field, m_text, m_folding, from);
        if (position < 0) {
            return std::nullopt;
        }
        if (!m_wholeWord || (BoundaryBefore(field, position) && BoundaryAfter(field, position + length))) {
            return Range{position, length};
        }
        from = position + 1;
    }
}

qsizetype CTextMatcher::EndOfSegment(const Segment &segment, QStringView field, qsizetype position) const
{
    for (qsizetype i = 0; i < segment.text.size(); ++i) {
        if (position >= field.size()) {
            return -1;
        }
        if (segment.any[size_t(i)]) {
            position += QChar::requiresSurrogates(CharacterAt(field, position)) ? 2 : 1;
        } else if (Fold(field[position]) == segment.text[i]) {
            ++position;
        } else {
            return -1;
        }
    }
    return position;
}

std::optional<std::pair<qsizetype, qsizetype>> CTextMatcher::FindSegment(
    const Segment &segment, QStringView field, qsizetype from, bool boundaryBefore, bool boundaryAfter) const
{
    for (qsizetype position = from; position <= field.size(); ++position) {
        const qsizetype end = EndOfSegment(segment, field, position);
        if (end >= 0 && (!boundaryBefore || BoundaryBefore(field, position))
            && (!boundaryAfter || BoundaryAfter(field, end))) {
            return std::pair(position, end);
        }
    }
    return std::nullopt;
}

std::optional<CTextMatcher::Range> CTextMatcher::FindWildcard(QStringView field) const
{
    // Each segment's first place behind the one before leaves the most room for the others and makes the runs
    // between them the shortest, so nothing is ever tried twice; only the last one must keep the end boundary.
    qsizetype start = 0;
    qsizetype end = 0;
    for (size_t i = 0; i < m_segments.size(); ++i) {
        const bool first = i == 0;
        const bool last = i + 1 == m_segments.size();
        const auto place = FindSegment(m_segments[i], field, end, first && m_wholeWord, last && m_wholeWord);
        if (!place) {
            return std::nullopt;
        }
        if (first) {
            start = place->first;
        }
        end = place->second;
    }
    return Range{start, end - start};
}

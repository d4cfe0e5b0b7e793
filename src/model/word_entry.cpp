// SPDX-License-Identifier: MIT
#include "model/word_entry.h"

#include "model/term_syntax.h"
#include "platform/collation.h"

#include <algorithm>
#include <utility>

const QString &CWordEntry::EmptyText()
{
    static const QString empty;
    return empty;
}

CWordEntry::CWordEntry(QString term1, QString term2, QString note, bool flag1, bool flag2)
    : m_flags{flag1, flag2}, m_texts{std::move(term1), std::move(term2), std::move(note)}
{
    ParseTerm(0);
    ParseTerm(1);
    CleanSpaces(m_texts[NoteField]);
}

void CWordEntry::SetTerm(const QString &text, int index)
{
    if (IsLanguage(index)) {
        m_texts[size_t(index)] = text;
        ParseTerm(index);
    }
}

void CWordEntry::SetNote(const QString &text)
{
    m_texts[NoteField] = text;
    CleanSpaces(m_texts[NoteField]);
}

void CWordEntry::SetField(const QString &text, int field)
{
    if (field == NoteField) {
        SetNote(text);
    } else {
        SetTerm(text, field);
    }
}

void CWordEntry::ParseTerm(int index)
{
    QString &term = m_texts[size_t(index)];
    QStringList &alternatives = m_alternatives[size_t(index)];
    alternatives.clear();
    if (IsSimpleTerm(term)) {
        return;
    }
    alternatives = SplitAlternatives(term);
    term = alternatives.join(AlternativeJoint);
    if (alternatives.size() < 2) {
        alternatives.clear();
    }
}

void CWordEntry::SetFlag(int index, bool value)
{
    if (IsLanguage(index)) {
        m_flags[size_t(index)] = value;
    }
}

void CWordEntry::CycleFlags()
{
    const int state = ((m_flags[0] ? 1 : 0) + (m_flags[1] ? 2 : 0) + 1) % 4;
    m_flags = {state % 2 == 1, state >= 2};
}

int CWordEntry::AlternativeCount(int index) const
{
    return IsLanguage(index) && !m_alternatives[size_t(index)].isEmpty()
        ? int(m_alternatives[size_t(index)].size()) - 1
        : 0;
}

QString CWordEntry::GetAlternative(int index, int k, bool stripComments) const
{
    if (!IsLanguage(index)) {
        return {};
    }
    const QStringList &alternatives = m_alternatives[size_t(index)];
    const QString alternative =
        alternatives.isEmpty() && k == 0 ? m_texts[size_t(index)] : alternatives.value(k);
    return stripComments ? StripComments(alternative) : alternative;
}

std::span<const QString> CWordEntry::Alternatives(int index) const
{
    if (!IsLanguage(index)) {
        return {};
    }
    const QStringList &alternatives = m_alternatives[size_t(index)];
    if (alternatives.isEmpty()) {
        const QString &term = m_texts[size_t(index)];
        return {&term, term.isEmpty() ? 0u : 1u};
    }
    return {alternatives.constData(), size_t(alternatives.size())};
}

QString CWordEntry::GetCleanTerm(int index) const
{
    return StripComments(GetText(index));
}

const QString &CWordEntry::StoredAlternative(int index, int k) const
{
    const QStringList &alternatives = m_alternatives[size_t(index)];
    return alternatives.isEmpty() ? m_texts[size_t(index)] : alternatives.at(k);
}

bool CWordEntry::HasAlternative(const QString &text, int index, bool caseInsensitive) const
{
    const auto equal = [&](const QString &alternative) {
        return caseInsensitive ? CSwedishCollator::ForThisThread().Equal(alternative, text)
                               : alternative == text;
    };
    if (!IsLanguage(index)) {
        return equal({});
    }
    const int last = AlternativeCount(index);
    if (last == 0 && equal(GetText(index))) {
        return true;
    }
    for (int k = 0; k <= last; ++k) {
        if (equal(StoredAlternative(index, k))) {
            return true;
        }
    }
    return false;
}

namespace {

/// Whether a term has so many alternatives that they are better looked up than compared one by one.
bool IsLongTerm(const CWordEntry &entry, int index)
{
    return entry.AlternativeCount(index) >= 32;
}

}

bool CWordEntry::SharesAlternative(const CWordEntry &other, int index, bool caseInsensitive) const
{
    if (!IsLanguage(index)) {
        return HasAlternative({}, index, caseInsensitive);
    }
    if (!caseInsensitive && IsLongTerm(*this, index) && IsLongTerm(other, index)) {
        return CAlternativeLookup(*this, index).IsSharedBy(other);
    }
    for (int k = 0; k <= other.AlternativeCount(index); ++k) {
        if (HasAlternative(other.StoredAlternative(index, k), index, caseInsensitive)) {
            return true;
        }
    }
    return false;
}

void CWordEntry::SwapFields(bool swapTexts, bool swapFlags, int a, int b)
{
    if (!IsField(a) || !IsField(b)) {
        return;
    }
    if (swapTexts) {
        std::swap(m_texts[size_t(a)], m_texts[size_t(b)]);
        for (const int field : {a, b}) {
            if (IsLanguage(field)) {
                ParseTerm(field);
            }
        }
    }
    if (swapFlags && IsLanguage(a) && IsLanguage(b)) {
        std::swap(m_flags[size_t(a)], m_flags[size_t(b)]);
    }
}

void CWordEntry::SwapFieldWith(CWordEntry &other, int field)
{
    if (!IsField(field)) {
        return;
    }
    std::swap(m_texts[size_t(field)], other.m_texts[size_t(field)]);
    if (IsLanguage(field)) {
        std::swap(m_alternatives[size_t(field)], other.m_alternatives[size_t(field)]);
        std::swap(m_flags[size_t(field)], other.m_flags[size_t(field)]);
    }
}

CAlternativeLookup::CAlternativeLookup(const CWordEntry &entry, int index) : m_entry(entry), m_index(index)
{
    if (IsLongTerm(entry, index)) {
        const auto alternatives = entry.Alternatives(index);
        m_many = QSet<QStringView>(alternatives.begin(), alternatives.end());
    }
}

bool CAlternativeLookup::IsSharedBy(const CWordEntry &other) const
{
    if (m_many.isEmpty()) {
        return m_entry.SharesAlternative(other, m_index, false);
    }
    const auto alternatives = other.Alternatives(m_index);
    return std::any_of(alternatives.begin(), alternatives.end(),
        [this](const QString &alternative) { return m_many.contains(alternative); });
}

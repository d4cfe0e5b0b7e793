// SPDX-License-Identifier: MIT
#include "fileformats/row_reader.h"

#include <algorithm>

namespace {

/// So many quotes that nothing closes, and quotes are text from there on: each is looked for far ahead.
constexpr int MostOpenQuotes = 100;

}

CRowReader::CRowReader(CTextInput &input, char16_t separator, char16_t quote)
    : m_input(input), m_separator(separator), m_quote(quote)
{
}

bool CRowReader::Has(qsizetype offset)
{
    while (m_position + offset >= m_count) {
        if (m_rowTooLong || m_count - m_position > LongestRow) {
            m_rowTooLong = true;
            return false;
        }
        if (m_position > 0) {
            std::copy(m_units.begin() + m_position, m_units.begin() + m_count, m_units.begin());
            m_count -= m_position;
            m_position = 0;
        }
        const qsizetype read = m_input.Read(m_units, m_count);
        if (read == 0) {
            return false;
        }
        m_count += read;
    }
    return true;
}

qsizetype CRowReader::FindFieldEnd(qsizetype from)
{
    for (qsizetype offset = from; Has(offset);) {
        const char16_t *const begin = m_units.data() + m_position;
        const char16_t *const end = m_units.data() + m_count;
        const char16_t *const found = std::find_if(begin + offset, end,
            [this](char16_t unit) { return unit == m_separator || unit == u'\n' || unit == u'\r'; });
        offset = found - begin;
        if (found != end) {
            return offset;
        }
    }
    return m_count - m_position;
}

qsizetype CRowReader::FindClosingQuote(qsizetype from)
{
    for (qsizetype offset = from; offset - from <= LongestQuoted && Has(offset);) {
        const qsizetype found =
            QStringView(m_units.data() + m_position, m_count - m_position).indexOf(QChar(m_quote), offset);
        if (found < 0) {
            offset = m_count - m_position;
        } else if (Has(found + 1) && Unit(found + 1) == m_quote) {
            offset = found + 2;
        } else {
            return found;
        }
    }
    return -1;
}

void CRowReader::ReadPlain()
{
    const qsizetype end = FindFieldEnd(m_next);
    m_spans.push_back({m_next, end});
    m_next = end;
}

bool CRowReader::ReadQuoted()
{
    if (m_quote == 0) {
        return false;
    }
    qsizetype begin = m_next;
    while (Has(begin) && Unit(begin) == u' ') {
        ++begin;
    }
    if (!Has(begin) || Unit(begin) != m_quote) {
        return false;
    }
    ++begin;
    const qsizetype close = FindClosingQuote(begin);
    if (close < 0) {
        if (++m_openQuotes == MostOpenQuotes) {
            m_quote = 0;
        }
        return false;
    }
    qsizetype rest = close + 1;
    while (Has(rest) && Unit(rest) == u' ' && m_separator != u' ') {
        ++rest;
    }
    const bool isLoose = Has(rest) && !EndsField(Unit(rest));
    m_next = isLoose ? FindFieldEnd(rest) : rest;
    m_quotedFields += int(!isLoose);
    m_looseFields += int(isLoose);
    // In place: what is left is never more than what was there.
    char16_t *const units = m_units.data() + m_position;
    char16_t *end = units + begin;
    for (qsizetype offset = begin; offset < close; ++offset) {
        *end++ = units[offset];
        offset += qsizetype(units[offset] == m_quote); // The second of two.
    }
    if (isLoose) {
        end = std::copy(units + close + 1, units + m_next, end);
    }
    m_spans.push_back({begin, end - units});
    return true;
}

bool CRowReader::Step()
{
    if (!Has(m_next)) {
        return false;
    }
    const char16_t unit = Unit(m_next++);
    if (unit == u'\r' && Has(m_next) && Unit(m_next) == u'\n') {
        ++m_next;
    }
    return unit == m_separator;
}

bool CRowReader::ReadRow()
{
    m_position += m_next;
    m_next = 0;
    m_spans.clear();
    m_fields.clear();
    if (m_rowTooLong || !Has(0)) {
        return false;
    }
    do {
        if (!ReadQuoted()) {
            ReadPlain();
        }
    } while (Step());
    if (m_rowTooLong) {
        return false;
    }
    for (const Span &span : m_spans) {
        m_fields.emplace_back(m_units.data() + m_position + span.begin, span.end - span.begin);
    }
    return true;
}

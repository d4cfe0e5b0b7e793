// SPDX-License-Identifier: MIT
#include "editor/list_summary.h"

#include "document/win32_doc.h"
#include "editor/text_numbers.h"
#include "resources/texts.h"

CListSummary::CListSummary(const CWin32Doc &document, const CTexts &texts)
    : m_document(document), m_texts(texts)
{
}

void CListSummary::Count()
{
    const ListDifference difference = m_counted.DifferenceTo(m_document.List());
    const auto add = [&](const CWordList &list, int count, int sign) {
        for (int entry = difference.first; entry < difference.first + count; ++entry) {
            for (const int language : {0, 1}) {
                m_flagged[size_t(language)] += sign * int(list.Entry(entry).GetFlag(language));
            }
        }
    };
    add(m_counted, difference.removed, -1);
    add(m_document.List(), difference.inserted, 1);
    m_counted = m_document.List();
}

QString CListSummary::Describe(int rows, int entries, int first)
{
    Count();
    const CWordList &list = m_document.List();
    const int count = list.Count();
    QStringList values = {QString::number(count)};
    for (const int language : {0, 1}) {
        const int flagged = m_flagged[size_t(language)];
        const qint64 percent = count == 0 ? 0 : qint64(flagged) * 100 / count;
        values << QString::number(flagged) << QString::number(percent) << list.GetLanguage(language);
    }
    const QString summary = m_texts.Fill(Text::ListSummary, values);
    if (rows == 0) {
        return summary;
    }
    if (rows > 1) {
        return m_texts.Fill(Text::EntriesSelected, {QString::number(entries), summary});
    }
    return entries == 0 ? m_texts.Get(Text::NewEntryRowSelected)
                        : m_texts.Fill(Text::EntrySelected, {QString::number(first + 1), summary});
}

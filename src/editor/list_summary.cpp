// SPDX-License-Identifier: MIT
#include "editor/list_summary.h"

#include "model/word_list.h"
#include "resources/text_numbers.h"
#include "resources/texts.h"

QString listSummary(const CWordList &list, const CTexts &texts, std::span<const int> selected)
{
    const int count = list.Count();
    QStringList values = {QString::number(count)};
    for (const int language : {0, 1}) {
        const int flagged = list.CountFlagged(language);
        const qint64 percent = count == 0 ? 0 : qint64(flagged) * 100 / count;
        values << QString::number(flagged) << QString::number(percent) << list.GetLanguage(language);
    }
    const QString summary = texts.Fill(Text::ListSummary, values);
    if (selected.empty()) {
        return summary;
    }
    if (selected.size() == 1) {
        return texts.Fill(Text::EntrySelected, {QString::number(selected.front() + 1), summary});
    }
    return texts.Fill(Text::EntriesSelected, {QString::number(selected.size()), summary});
}

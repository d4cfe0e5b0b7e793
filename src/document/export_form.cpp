// SPDX-License-Identifier: MIT
#include "document/export_form.h"

#include "document/loss_texts.h"
#include "document/separators.h"
#include "document/text_numbers.h"
#include "model/word_list.h"
#include "platform/plain_text.h"
#include "resources/texts.h"

#include <algorithm>

CExportForm::CExportForm(const CWordList &list, const Format &format, const QString &path, const CTexts &texts)
    : m_list(list), m_format(format), m_texts(texts), m_count(list, format)
{
    m_options.separated = SeparatedOptionsFor(path);
    m_options.separated->encoding = TextEncoding::Utf8;
    connect(&m_count, &CLossCount::Counted, this, &CExportForm::Counted);
    Count();
}

QString CExportForm::Separators() const
{
    return m_texts.Get(Text::Separators);
}

int CExportForm::Separator() const
{
    return std::max(int(UsualSeparators.indexOf(QChar(Layout().separator))), 0);
}

void CExportForm::ChooseSeparator(int index)
{
    if (index >= 0 && index < UsualSeparators.size()) {
        m_options.separated->separator = UsualSeparators.at(index).unicode();
        Count();
    }
}

void CExportForm::ChooseEncoding(int index)
{
    m_options.separated->encoding = TextEncoding(index);
    Count();
}

void CExportForm::ChooseHeading(bool hasHeading)
{
    m_options.separated->hasHeading = hasHeading;
    Count();
}

void CExportForm::ChooseMark(bool writesMark)
{
    m_options.separated->writesMark = writesMark;
    Count();
}

QString CExportForm::TermChoices() const
{
    constexpr qsizetype LongestName = 40; // In code units.
    const auto name = [&](int language) {
        return ShownShort(OneLine(m_list.GetLanguage(language)), LongestName);
    };
    return m_texts.Fill(Text::ExportTermChoices, {name(0), name(1)});
}

void CExportForm::ChooseTerms(int index)
{
    m_options.plainText = PlainTextTerms(index);
    Count();
}

void CExportForm::ChooseAlternatives(int index)
{
    m_options.alternatives = AlternativeMark(index);
    Count();
}

QString CExportForm::Losses() const
{
    if (!m_count.IsCounted()) {
        return m_texts.Get(Text::ExportCounting);
    }
    const FormatLosses &losses = m_count.Losses();
    const QString format = m_texts.Get(m_format.name);
    if (losses.empty()) {
        return m_texts.Fill(Text::ExportWithoutLosses, {format});
    }
    return m_texts.Fill(Text::ExportLosses, {format}) + u'\n' + LossesAsText(losses, m_texts, u"\n");
}

// SPDX-License-Identifier: MIT
#include "quiz/change_entry.h"

#include "document/win32_doc.h"
#include "model/term_syntax.h"
#include "platform/plain_text.h"
#include "platform/user_prompt.h"
#include "quiz/quiz_session.h"
#include "quiz/text_numbers.h"
#include "resources/texts.h"

CChangeEntry::CChangeEntry(CQuizSession &session, const CTexts &texts, IUserPrompt &prompt, QObject *parent)
    : QAbstractListModel(parent), m_session(session), m_texts(texts), m_prompt(prompt),
      m_lineFormat(texts.Get(Text::EntryLine))
{
}

int CChangeEntry::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_session.document().List().Count();
}

QVariant CChangeEntry::data(const QModelIndex &index, int role) const
{
    return role == Qt::DisplayRole && index.isValid() ? line(index.row()) : QVariant();
}

QString CChangeEntry::line(int entry) const
{
    const Fields fields = fieldsOf(entry);
    return FillPlaceholders(m_lineFormat,
        {{QStringLiteral("%1"), fields.term1}, {QStringLiteral("%2"), fields.term2},
            {QStringLiteral("%n"), fields.note}},
        FilledFor::Screen);
}

QString CChangeEntry::label(int language) const
{
    return m_texts.Fill(language == 0 ? Text::ChangeEntryTerm1 : Text::ChangeEntryTerm2,
        {ShownInCaption(m_session.document().List().GetLanguage(language))});
}

CChangeEntry::Fields CChangeEntry::fieldsOf(int entry) const
{
    const CWordEntry &stored = m_session.document().List().Entry(entry);
    return {stored.GetText(0), stored.GetText(1), stored.GetNote()};
}

bool CChangeEntry::change(int entry, const Fields &typed)
{
    const QString term1 = NormalizeTerm(typed.term1);
    const QString term2 = NormalizeTerm(typed.term2);
    if (term1.isEmpty() || term2.isEmpty()) {
        return false;
    }
    m_session.changeEntry(entry, term1, term2, typed.note);
    const QModelIndex line = index(entry);
    Q_EMIT dataChanged(line, line);
    return true;
}

QString CChangeEntry::storedLine(int entry) const
{
    constexpr qsizetype Longest = 60;
    return m_texts.Fill(Text::EntryWasChanged, {ShownShort(line(entry), Longest)});
}

bool CChangeEntry::wouldChange(int entry, const Fields &typed) const
{
    const CWordEntry changed(typed.term1, typed.term2, typed.note);
    const CWordEntry &stored = m_session.document().List().Entry(entry);
    return changed.GetText(0) != stored.GetText(0) || changed.GetText(1) != stored.GetText(1)
        || changed.GetNote() != stored.GetNote();
}

bool CChangeEntry::mayLeave(int entry, const Fields &typed)
{
    if (!wouldChange(entry, typed)) {
        return true;
    }
    switch (m_prompt.Ask(m_texts.Prompt(Text::SaveChangedEntry), PromptIcon::Question,
        PromptButtons::YesNoCancel, PromptAnswer::Yes)) {
    case PromptAnswer::Yes:
        return change(entry, typed);
    case PromptAnswer::No:
        return true;
    case PromptAnswer::Cancel:
        break;
    }
    return false;
}

// SPDX-License-Identifier: MIT
#include "shell/list_properties_form.h"

#include "document/win32_doc.h"
#include "platform/local_formats.h"
#include "platform/plain_text.h"
#include "quiz/answer_check.h"
#include "quiz/text_numbers.h"
#include "resources/texts.h"
#include "shell/commands.h"
#include "shell/text_numbers.h"

CListPropertiesForm::CListPropertiesForm(CWin32Doc &document, const CTexts &texts)
    : m_document(document), m_texts(texts)
{
    const CWordList &list = document.List();
    author = list.GetAuthor();
    comments = list.GetComments();
    for (const int direction : {0, 1}) {
        languages[size_t(direction)] = list.GetLanguage(direction);
        adaptQuestion[size_t(direction)] = list.GetAdaptQuestion(direction);
        questionTemplate[size_t(direction)] = list.GetQuestionTemplate(direction);
    }
}

QString CListPropertiesForm::Path() const
{
    const QString &path = m_document.Path();
    return path.isEmpty() ? m_texts.Get(Text::ListWithoutFile) : path;
}

QString CListPropertiesForm::EntryCount() const
{
    return FormatNumber(m_document.List().Count());
}

QString CListPropertiesForm::FlaggedCaption(int language) const
{
    return m_texts.Fill(Text::ListFlagged, {ShownInCaption(m_document.List().GetLanguage(language))});
}

QString CListPropertiesForm::FlaggedCount(int language) const
{
    return FormatNumber(m_document.List().CountFlagged(language));
}

QString CListPropertiesForm::FactoryQuestion() const
{
    return m_texts.Get(Text::StandardQuestion);
}

QString CListPropertiesForm::AdaptCaption(int direction) const
{
    return FillCaption(m_texts.Get(direction == 0 ? Text::AdaptQuestion : Text::AdaptOtherQuestion),
        languages[size_t(direction)], languages[size_t(1 - direction)]);
}

QString CListPropertiesForm::Example(int direction) const
{
    const CWordList &list = m_document.List();
    if (list.Count() == 0) {
        return {};
    }
    const QString &own = questionTemplate[size_t(direction)];
    const bool useOwn = adaptQuestion[size_t(direction)] && !own.isEmpty();
    const QString question = expandEntryVariables(
        useOwn ? own : FactoryQuestion(), {list.Entry(0), direction, {languages[0], languages[1]}});
    return m_texts.Fill(Text::QuestionExample, {ShownShort(question)});
}

void CListPropertiesForm::Accept()
{
    m_document.SetListProperties({.language1 = languages[0],
        .language2 = languages[1],
        .author = author,
        .comments = comments,
        .adaptQuestion1 = adaptQuestion[0],
        .adaptQuestion2 = adaptQuestion[1],
        .questionTemplate1 = questionTemplate[0],
        .questionTemplate2 = questionTemplate[1]});
}

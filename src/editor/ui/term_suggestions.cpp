// SPDX-License-Identifier: MIT
#include "editor/ui/term_suggestions.h"

#include "document/win32_doc.h"
#include "editor/ui/suggestion_list.h"
#include "editor/ui/win32_view.h"

#include <QLineEdit>

CTermSuggestions::CTermSuggestions(
    CWin32View &view, CWin32Doc &document, const DictionarySettings &settings, const CTexts &texts)
    : QObject(&view), m_suggestions(settings)
{
    auto *const list = new CSuggestionList(texts, view);
    connect(&view, &CWin32View::TermWanted, this,
        [this, list, &document](QLineEdit *line, int language, const QString &otherTerm) {
            list->Await(*line);
            const CWordList &words = document.List();
            m_suggestions.Ask(otherTerm, words.GetLanguage(1 - language), words.GetLanguage(language));
        });
    connect(&m_suggestions, &CSuggestions::Found, list, &CSuggestionList::Offer);
}

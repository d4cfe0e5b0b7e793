// SPDX-License-Identifier: MIT
#pragma once

#include "dictionaries/installed_dictionaries.h"
#include "dictionaries/words_thread.h"
#include "fileformats/format_loss.h"
#include "model/word_list.h"

#include <array>

class CTexts;
class CWin32Doc;
class IEditorView;
struct DictionarySettings;

/// Makes entries of words of an installed dictionary: which words are wanted, what is found, and where they go.
/// They are looked up on a thread, anew after each choice. Knows no window. Choices are indices into lists of
/// texts. Nobody else may change the list in between.
class CDictionaryListForm : public QObject
{
    Q_OBJECT

public:
    /// `document` and `texts` are not owned. Finds the dictionaries, and chooses the one for the languages of
    /// the list.
    CDictionaryListForm(CWin32Doc &document, const DictionarySettings &settings, const CTexts &texts);

    const CTexts &Texts() const { return m_texts; }

    /// Empty when none is installed: then the rest means nothing.
    QStringList Dictionaries() const;
    int Dictionary() const { return m_dictionary; }
    void ChooseDictionary(int index);
    /// What the texts are of the headwords: see HeadwordMatch.
    int Match() const { return int(m_filter.match); }
    void ChooseMatch(int index);
    /// The words to look up, one a line.
    void ChooseText(const QString &text);

    /// The language of a column of the entries: that of the list, or of the dictionary where an empty list
    /// takes its languages.
    QString LanguageOf(int column) const;
    bool TakesLanguages() const;
    /// The column that the headwords go to; it can't be chosen where the languages tell it.
    int Side() const { return m_side; }
    bool CanChooseSide() const;
    void ChooseSide(int column);

    bool IsLookingUp() const { return m_isAsking; }
    /// What was found, or how far the search has come.
    QString Summary() const;
    /// Those that were found last.
    const CWordList &Entries() const { return m_entries; }
    bool CanInsert() const { return !m_isAsking && m_entries.Count() > 0; }
    /// Inserts them at the insertion point, as one step for undo. An empty list takes the languages then.
    void Insert(IEditorView &view) const;

Q_SIGNALS:
    /// What was found is another, or how far the search has come.
    void Changed();

private:
    /// The side that the languages tell, if both of them do.
    std::optional<int> SideOfLanguages() const;
    void ChooseUsualSide();
    void LookUp();
    void LookUpNext();
    void TakeMessages();
    void MakeEntries();
    QString NotFound() const;

    CWin32Doc &m_document;
    const CTexts &m_texts;
    std::vector<InstalledDictionary> m_dictionaries;
    std::array<QString, 2> m_languages; // The codes of those of the list.
    int m_dictionary = 0;
    int m_side = 0;
    DictionaryFilter m_filter;
    int m_number = 0; // Of the last request.
    bool m_isWaiting = false; // For the thread to be done with the one before.
    bool m_isAsking = false;
    bool m_isThreadBusy = false;
    int m_found = 0; // So far.
    bool m_canRead = true;
    DictionaryWords m_words;
    CWordList m_entries;
    FormatLosses m_losses;
    CWordsThread m_thread; // Goes before what it reports to.
};

// SPDX-License-Identifier: MIT
#pragma once

#include "editor/dictionary_search.h"

#include <QDialog>
#include <QTimer>

#include <array>

class CSpokenText;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;

/// What the find window is handed; none of it is owned.
struct FindWindowServices
{
    CWin32Doc &document;
    CFinding &finding;
    const CTexts &texts;
    Clock clock = SteadyClock;
};

/// Edits what is looked for and stays open beside the list while that is edited. Its controls become the
/// settings when a search begins. Lists what there is as a dictionary, if that is wanted.
class CFindWindow : public QDialog
{
    Q_OBJECT

public:
    CFindWindow(const FindWindowServices &services, QWidget *owner);

    /// Shows it beside a window, or brings it to the front.
    void Open(const QWidget &beside);
    /// Call it when the settings are others than those that it saved.
    void ShowSettings();
    /// Has what was found read out, while the keyboard stays here.
    void Say(const QString &found);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// Find the next entry, or all, by the settings.
    void NextWanted();
    void AllWanted();
    /// Entries were chosen among the results.
    void EntriesChosen(const std::vector<int> &entries);
    /// Work is to go on at one of them.
    void MatchWanted(const TextMatch &match);

private:
    QCheckBox *MakeCheck(int text, const char *name);
    QPushButton *MakeButton(int text, const char *name);
    QComboBox *MakeChoice(const char *name);
    QWidget *MakeAdvanced();
    QWidget *MakeResults();
    /// The choices of the advanced search, with the names of the languages.
    void FillChoices();
    void SaveSettings();
    /// Shows what the boxes ask for, in a window that is as high as that.
    void ShowParts();

    void Changed();
    void SearchNow();
    void ListChanged(const ListChange &change);
    void GoOn();
    void ShowCount();
    void ChooseEntries();
    void GoToResult();

    FindWindowServices m_services;
    CDictionarySearch m_search;
    QTimer m_timer;
    QLineEdit *m_text;
    QCheckBox *m_matchCase;
    QCheckBox *m_wholeWord;
    QCheckBox *m_wildcards;
    QCheckBox *m_dictionary;
    QCheckBox *m_advanced;
    QComboBox *m_direction;
    QComboBox *m_column;
    std::array<QComboBox *, 2> m_flags = {};
    std::array<QLabel *, 2> m_flagLabels = {};
    QTableView *m_results = nullptr;
    QLabel *m_count = nullptr;
    CSpokenText *m_spoken = nullptr; // Once something was said.
    bool m_saysCount = false; // Once the search that the user began is done.
    QWidget *m_advancedPart;
    QWidget *m_resultPart;
};

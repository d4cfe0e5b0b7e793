// SPDX-License-Identifier: MIT
#pragma once

#include "settings/tool_settings.h"
#include "tools/file_search_thread.h"
#include "tools/found_files_model.h"

#include <QObject>

class CTexts;
class IUserPrompt;

/// The search for word-list files without its window.
class CFileSearch : public QObject
{
    Q_OBJECT

public:
    /// Nothing is owned.
    CFileSearch(
        FileSearchSettings &settings, const CTexts &texts, IUserPrompt &prompt, QObject *parent = nullptr);
    ~CFileSearch() override;

    /// What the controls show; stored when a search starts.
    FileSearchSettings values;

    /// Takes the settings as they are now for what the controls show.
    void TakeSettings();

    CFoundFilesOrder &Found() { return m_order; }
    bool IsSearching() const { return m_isSearching; }

    /// Forgets what was found and searches. Returns false, which the user is told, when there is no such
    /// folder.
    [[nodiscard]] bool Start();
    /// Stops the search and waits; what was found stays.
    void Stop();

    /// How many files were found, and how many could not be read.
    QString CountLine() const;
    /// What is being looked through; empty when nothing is.
    QString FolderLine() const;

Q_SIGNALS:
    /// Anything of the above is another.
    void Changed();
    /// The search is done, by itself or by Stop().
    void Ended();

private:
    void TakeMessages();

    FileSearchSettings &m_settings;
    const CTexts &m_texts;
    IUserPrompt &m_prompt;
    CFoundFilesModel m_files;
    CFoundFilesOrder m_order;
    bool m_isSearching = false;
    int m_unreadable = 0;
    QString m_folder;
    CFileSearchThread m_thread; // Goes before what it reports to.
};

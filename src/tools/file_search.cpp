// SPDX-License-Identifier: MIT
#include "tools/file_search.h"

#include "platform/file_name.h"
#include "platform/local_formats.h"
#include "platform/plain_text.h"
#include "platform/user_prompt.h"
#include "resources/texts.h"
#include "tools/file_filter_values.h"
#include "tools/text_numbers.h"

#include <QStandardPaths>

CFileSearch::CFileSearch(
    FileSearchSettings &settings, const CTexts &texts, IUserPrompt &prompt, QObject *parent)
    : QObject(parent), values(settings), m_settings(settings), m_texts(texts), m_prompt(prompt), m_files(texts),
      m_order(m_files)
{
    TakeSettings();
    connect(
        &m_thread, &CFileSearchThread::MessagesWaiting, this, &CFileSearch::TakeMessages, Qt::QueuedConnection);
}

CFileSearch::~CFileSearch()
{
    m_thread.Stop(true);
}

void CFileSearch::TakeSettings()
{
    values = m_settings;
    if (values.path.isEmpty()) {
        values.path = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    }
    if (values.filetype.isEmpty()) {
        values.filetype = QStringLiteral("*.gls");
    }
}

bool CFileSearch::Start()
{
    const QString typed = values.path.trimmed();
    if (typed.isEmpty() || !IsFolder(AbsoluteFilePath(typed))) {
        m_prompt.Tell(m_texts.Prompt(Text::FolderMissing), PromptIcon::Warning);
        return false;
    }
    Stop();
    m_settings = values;
    m_files.Clear();
    m_isSearching = true;
    m_unreadable = 0;
    m_folder = AbsoluteFilePath(typed);
    m_thread.Search({.folder = m_folder,
        .subfolders = values.searchSubDirectories,
        .patterns = values.filetype,
        .filter = values.useFilter ? std::optional(FilterOf(values)) : std::nullopt});
    Q_EMIT Changed();
    return true;
}

void CFileSearch::Stop()
{
    if (m_isSearching) {
        m_thread.Stop(true);
        TakeMessages();
    }
}

void CFileSearch::TakeMessages()
{
    const bool wasSearching = m_isSearching;
    std::vector<FoundFile> found;
    for (FileSearchMessage &message : m_thread.TakeMessages()) {
        if (auto *const file = std::get_if<FoundFile>(&message)) {
            found.push_back(std::move(*file));
        } else if (const auto *const folder = std::get_if<FolderMessage>(&message)) {
            m_folder = folder->folder;
        } else if (const auto *const end = std::get_if<SearchEndMessage>(&message)) {
            m_unreadable = end->unreadable;
            m_isSearching = false;
        }
    }
    m_files.Add(std::move(found));
    Q_EMIT Changed();
    if (wasSearching && !m_isSearching) {
        Q_EMIT Ended();
    }
}

QString CFileSearch::CountLine() const
{
    QString line = m_texts.Fill(Text::FilesFound, {FormatNumber(m_files.rowCount())});
    if (!m_isSearching && m_unreadable > 0) {
        line += u' ' + m_texts.Fill(Text::SearchUnreadable, {FormatNumber(m_unreadable)});
    }
    return line;
}

QString CFileSearch::FolderLine() const
{
    return m_isSearching ? m_texts.Fill(Text::SearchingIn, {ShownShort(m_folder)}) : QString();
}

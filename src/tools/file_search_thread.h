// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/word_list_filter.h"
#include "platform/thread.h"
#include "platform/thread_queue.h"

#include <QObject>

#include <optional>
#include <variant>

/// What is looked for, and where.
struct FileSearchRequest
{
    QString folder = {};
    bool subfolders = true;
    QString patterns = {}; ///< See CFilePatterns.
    std::optional<WordListFilter> filter = {};
};

/// A word-list file. Its texts are cut to what can be shown.
struct FoundFile
{
    QString path;
    WordListSummary summary = {};
    qint64 modified = 0; ///< In milliseconds since 1970.
};
struct FolderMessage
{
    QString folder;
};
struct SearchEndMessage
{
    int unreadable = 0; ///< Files and folders.
};
using FileSearchMessage = std::variant<FolderMessage, FoundFile, SearchEndMessage>;

/// Looks for word-list files on a thread of its own.
class CFileSearchThread : public QObject, public CThread
{
    Q_OBJECT

public:
    explicit CFileSearchThread(QObject *parent = nullptr) : QObject(parent) { }
    ~CFileSearchThread() override { Stop(true); }
    CFileSearchThread(const CFileSearchThread &) = delete;
    CFileSearchThread &operator=(const CFileSearchThread &) = delete;

    /// The end is told also when it is stopped.
    void Search(const FileSearchRequest &request);
    std::vector<FileSearchMessage> TakeMessages() { return m_messages.TakeAll(); }

Q_SIGNALS:
    /// Emitted on the thread: there are messages to take.
    void MessagesWaiting();

protected:
    void Run() override;

private:
    void Post(FileSearchMessage message, bool isLast = false);
    /// Posts the file if it is wanted; false when it can't be read.
    bool LookAt(const QString &path, bool plainTextCounts, const std::optional<CWordListFilter> &filter);

    FileSearchRequest m_request;
    CThreadQueue<FileSearchMessage> m_messages;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/file_import.h"
#include "platform/thread.h"
#include "platform/thread_queue.h"

#include <QObject>
#include <QStringList>

#include <optional>
#include <variant>

/// What an import has done so far.
struct ImportTotals
{
    int badFiles = 0;
    int ignoredFiles = 0;
    int importedFiles = 0;
    int importedEntries = 0;
    int ignoredEntries = 0;

    int Files() const { return badFiles + ignoredFiles + importedFiles; }
    bool operator==(const ImportTotals &) const = default;
};

/// The messages of the thread, for each file the first two, in this order. `file` is its place among the files.
struct NewFileMessage
{
    int file = 0;
    ImportTotals totals = {}; ///< Of the files before it.
};
struct FileReadMessage
{
    int file = 0;
    FileImport outcome = {};
};
struct ImportEndMessage
{
    ImportTotals totals = {};
};
using ImportMessage = std::variant<NewFileMessage, FileReadMessage, ImportEndMessage>;

/// Imports files on a thread of its own, into a copy of the list.
class CImportThread : public QObject, public CThread
{
    Q_OBJECT

public:
    explicit CImportThread(QObject *parent = nullptr) : QObject(parent) { }
    ~CImportThread() override { Stop(true); }
    CImportThread(const CImportThread &) = delete;
    CImportThread &operator=(const CImportThread &) = delete;

    void Import(CWordList target, int position, const QStringList &files, const ImportOptions &options);
    std::vector<ImportMessage> TakeMessages() { return m_messages.TakeAll(); }
    /// The list with what was imported, once; waits for the end.
    CWordList TakeList();

Q_SIGNALS:
    /// Emitted on the thread: there are messages to take.
    void MessagesWaiting();

protected:
    void Run() override;

private:
    void Post(ImportMessage message, bool isLast = false);

    std::optional<CFileImport> m_import;
    CWordList m_list;
    QStringList m_files;
    CThreadQueue<ImportMessage> m_messages;
};

// SPDX-License-Identifier: MIT
#include "tools/import_thread.h"

#include <new>
#include <utility>

void CImportThread::Import(
    CWordList target, int position, const QStringList &files, const ImportOptions &options)
{
    Stop(true);
    m_messages.TakeAll();
    m_import.emplace(std::move(target), position, options);
    m_files = files;
    Start();
}

CWordList CImportThread::TakeList()
{
    Stop(true);
    return std::move(m_list);
}

void CImportThread::Post(ImportMessage message, bool isLast)
{
    if (m_messages.Post(std::move(message), isLast)) {
        Q_EMIT MessagesWaiting();
    }
}

void CImportThread::Run()
{
    ImportTotals totals;
    bool hasRoom = true;
    for (int file = 0; file < m_files.size() && IsRunning() && hasRoom; ++file) {
        Post(NewFileMessage{file, totals});
        FileImport outcome;
        try {
            outcome = m_import->ImportFile(m_files.at(file), KeepRunning());
        } catch (const std::bad_alloc &) {
            outcome.read = ReadResult::TooLarge;
            hasRoom = false;
        }
        switch (outcome.result) {
        case ImportResult::Imported:
            ++totals.importedFiles;
            totals.importedEntries += outcome.importedEntries;
            totals.ignoredEntries += outcome.ignoredEntries;
            break;
        case ImportResult::Ignored:
            ++totals.ignoredFiles;
            break;
        case ImportResult::Bad:
            ++totals.badFiles;
            break;
        }
        Post(FileReadMessage{file, outcome});
    }
    m_list = m_import->TakeTarget();
    m_import.reset(); // Here: what it knows of a long list takes time to forget.
    Post(ImportEndMessage{totals}, true);
}

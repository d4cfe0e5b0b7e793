// SPDX-License-Identifier: MIT
#include "tools/file_search_thread.h"

#include "fileformats/formats.h"
#include "platform/file_stamp.h"
#include "platform/plain_text.h"
#include "tools/file_patterns.h"
#include "tools/folder_walk.h"

void CFileSearchThread::Search(const FileSearchRequest &request)
{
    Stop(true);
    m_messages.TakeAll();
    m_request = request;
    Start();
}

void CFileSearchThread::Post(FileSearchMessage message, bool isLast)
{
    if (m_messages.Post(std::move(message), isLast)) {
        Q_EMIT MessagesWaiting();
    }
}

bool CFileSearchThread::LookAt(
    const QString &path, bool plainTextCounts, const std::optional<CWordListFilter> &filter)
{
    WordListSummary summary;
    const FormatReading reading = ReadListSummary(summary, path, {.keepGoing = &KeepRunning()});
    if (!IsRunning()) {
        return true; // Not counted to the end.
    }
    if (IsRefused(reading.result)) {
        return false;
    }
    if ((!plainTextCounts && reading.format != nullptr && reading.format->IsText())
        || (filter && filter->FaultOf(summary) != FileFault::None)) {
        return true;
    }
    for (QString *const text :
        {&summary.languages[0], &summary.languages[1], &summary.author, &summary.comments}) {
        *text = ShownShort(*text);
    }
    constexpr qint64 Million = 1'000'000; // Nanoseconds in a millisecond.
    Post(FoundFile{path, summary, FileStamp::Of(path).modified / Million});
    return true;
}

void CFileSearchThread::Run()
{
    const CFilePatterns patterns(m_request.patterns);
    std::optional<CWordListFilter> filter;
    if (m_request.filter) {
        filter.emplace(*m_request.filter);
    }
    int unreadable = 0;
    WalkFolder(m_request.folder, m_request.subfolders, patterns,
        {.folder = [this](const QString &folder) { Post(FolderMessage{folder}); },
            .file =
                [&](const QString &path, const QString &name) {
                    unreadable += int(!LookAt(path, !patterns.MatchAsGlossaryOnly(name), filter));
                },
            .unreadable = [&unreadable](const QString & /*folder*/) { ++unreadable; }},
        KeepRunning());
    Post(SearchEndMessage{unreadable}, true);
}

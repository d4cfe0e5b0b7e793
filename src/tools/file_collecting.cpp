// SPDX-License-Identifier: MIT
#include "tools/file_collecting.h"

#include "platform/file_name.h"
#include "tools/file_patterns.h"
#include "tools/folder_walk.h"

void CFileCollecting::Collect(const QStringList &paths)
{
    Stop(true);
    m_messages.TakeAll();
    m_paths = paths;
    Start();
}

void CFileCollecting::Post(CollectedFiles message)
{
    const bool isEnd = message.isEnd;
    if (m_messages.Post(std::move(message), isEnd)) {
        Q_EMIT MessagesWaiting();
    }
}

void CFileCollecting::Run()
{
    const CFilePatterns glossaries{QString()};
    const FolderWalkVisits visits = {.folder = [this](const QString &folder) { Post({.folder = folder}); },
        .file = [this](const QString &path, const QString & /*name*/) { Post({.files = {path}}); }};
    for (const QString &path : std::as_const(m_paths)) {
        if (!IsRunning()) {
            break;
        }
        if (IsFolder(path)) {
            WalkFolder(path, true, glossaries, visits, KeepRunning());
        } else {
            Post({.files = {path}});
        }
    }
    Post({.isEnd = true});
}

// SPDX-License-Identifier: MIT
#pragma once

#include "platform/thread.h"
#include "platform/thread_queue.h"

#include <QObject>
#include <QStringList>

/// What is found in files and folders that the user names: a file itself, and all glossary files below a
/// folder.
struct CollectedFiles
{
    QStringList files = {};
    QString folder = {}; ///< Being looked through; empty at the end.
    bool isEnd = false;
};

/// Looks through folders on a thread of its own.
class CFileCollecting : public QObject, public CThread
{
    Q_OBJECT

public:
    explicit CFileCollecting(QObject *parent = nullptr) : QObject(parent) { }
    ~CFileCollecting() override { Stop(true); }
    CFileCollecting(const CFileCollecting &) = delete;
    CFileCollecting &operator=(const CFileCollecting &) = delete;

    /// Call it when nothing is being collected. The end is told also when it is stopped.
    void Collect(const QStringList &paths);
    std::vector<CollectedFiles> TakeMessages() { return m_messages.TakeAll(); }

Q_SIGNALS:
    /// Emitted on the thread: there are messages to take.
    void MessagesWaiting();

protected:
    void Run() override;

private:
    void Post(CollectedFiles message);

    QStringList m_paths;
    CThreadQueue<CollectedFiles> m_messages;
};

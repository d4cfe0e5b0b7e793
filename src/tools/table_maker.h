// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/text_encoding.h"
#include "platform/thread_queue.h"
#include "tools/table_writer.h"

#include <QObject>

#include <memory>

/// How much of a table is shown at most; of a longer one the start.
inline constexpr qsizetype MostShownOfTable = 1000000;
inline constexpr qsizetype ShownStartOfTable = 60000;

/// Where a table goes.
struct TableTarget
{
    /// Empty for a text that is to be shown.
    QString file = {};
    TextEncoding encoding = TextEncoding::Ansi;
    /// The folder of the file is made, for its user alone.
    bool inPrivateFolder = false;
};

struct TableResult
{
    TableTarget target = {};
    bool succeeded = false;
    /// The file has question marks for characters that its encoding lacks.
    bool lossy = false;
    /// What is to be shown, and whether that is the start alone.
    QString shown = {};
    bool isCut = false;
};

/// Makes a table on a thread of its own: a file piece by piece, so that it takes no memory. One at a time.
class CTableMaker : public QObject
{
    Q_OBJECT

public:
    explicit CTableMaker(QObject *parent = nullptr);
    /// Waits for the thread's end.
    ~CTableMaker() override;

    /// Gives up one that is being made.
    void Start(std::unique_ptr<ITableWriter> writer, const TableTarget &target);
    /// Gives up what is being made: Ended() is not told, and a file that was there stays as it was.
    void Stop();
    bool IsWorking() const { return m_isWorking; }

Q_SIGNALS:
    void Ended(const TableResult &result);
    /// Emitted on the thread, for this object alone: there is a result to take.
    void WorkerEnded(QPrivateSignal);

private:
    class CWorker;
    struct RunResult
    {
        int run = 0;
        TableResult result;
    };

    void TakeResults();

    CThreadQueue<RunResult> m_results;
    std::unique_ptr<CWorker> m_worker; // Goes before what it reports to.
    int m_run = 0; // Tells what a former one reports from what the last one does.
    bool m_isWorking = false;
};

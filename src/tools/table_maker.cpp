// SPDX-License-Identifier: MIT
#include "tools/table_maker.h"

#include "fileformats/text_file_writer.h"
#include "platform/plain_text.h"
#include "platform/thread.h"

#include <QDir>
#include <QFileInfo>

namespace {

bool MakePrivateFolder(const QString &path)
{
    return QDir().mkpath(path)
        && QFile::setPermissions(
            path, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

}

class CTableMaker::CWorker : public CThread
{
public:
    explicit CWorker(CTableMaker &maker) : m_maker(maker) { }
    ~CWorker() override { Stop(true); }
    CWorker(const CWorker &) = delete;
    CWorker &operator=(const CWorker &) = delete;

    void Make(int run, std::unique_ptr<ITableWriter> writer, const TableTarget &target)
    {
        Stop(true);
        m_run = run;
        m_writer = std::move(writer);
        m_target = target;
        Start();
    }

protected:
    void Run() override
    {
        TableResult result{.target = m_target};
        if (m_target.file.isEmpty()) {
            WriteShown(result);
        } else {
            WriteFile(result);
        }
        m_writer.reset();
        if (m_maker.m_results.Post({m_run, std::move(result)}, true)) {
            Q_EMIT m_maker.WorkerEnded({});
        }
    }

private:
    void WriteShown(TableResult &result) const
    {
        const bool whole = WriteTable(
            *m_writer,
            [&result](const QString &piece) {
                result.shown += piece;
                return result.shown.size() <= MostShownOfTable;
            },
            KeepRunning());
        result.isCut = result.shown.size() > MostShownOfTable;
        if (result.isCut) {
            result.shown.truncate(StartLength(result.shown, ShownStartOfTable));
        }
        result.succeeded = whole || result.isCut;
    }
    void WriteFile(TableResult &result) const
    {
        if (m_target.inPrivateFolder && !MakePrivateFolder(QFileInfo(m_target.file).path())) {
            return;
        }
        CTextFileWriter file;
        if (!file.Open(m_target.file, m_target.encoding)) {
            return;
        }
        const auto write = [&file](const QString &piece) {
            file.Write(piece);
            return true;
        };
        result.succeeded = WriteTable(*m_writer, write, KeepRunning()) && file.Close();
        result.lossy = file.Lossy();
    }

    CTableMaker &m_maker;
    int m_run = 0;
    std::unique_ptr<ITableWriter> m_writer;
    TableTarget m_target;
};

CTableMaker::CTableMaker(QObject *parent) : QObject(parent), m_worker(std::make_unique<CWorker>(*this))
{
    connect(this, &CTableMaker::WorkerEnded, this, &CTableMaker::TakeResults, Qt::QueuedConnection);
}

void CTableMaker::TakeResults()
{
    for (const RunResult &ended : m_results.TakeAll()) {
        if (m_isWorking && ended.run == m_run) {
            m_isWorking = false;
            Q_EMIT Ended(ended.result);
        }
    }
}

CTableMaker::~CTableMaker()
{
    m_worker.reset(); // It reports here to its end.
}

void CTableMaker::Start(std::unique_ptr<ITableWriter> writer, const TableTarget &target)
{
    m_isWorking = true;
    m_worker->Make(++m_run, std::move(writer), target);
}

void CTableMaker::Stop()
{
    m_isWorking = false;
    m_worker->Stop(false);
}

// SPDX-License-Identifier: MIT
#include "document/recovery.h"

#include "fileformats/word_list_file.h"
#include "platform/thread.h"

#include <QBuffer>
#include <QDir>

namespace {

constexpr int RetryFactor = 10; // Longer than the delay, since a full disk stays full for a while.

}

/// Writes one copy; works on a list of its own.
class CRecovery::CWriter : public CThread
{
public:
    explicit CWriter(CRecovery &recovery) : m_recovery(recovery) { }
    ~CWriter() override { Stop(true); }
    CWriter(const CWriter &) = delete;
    CWriter &operator=(const CWriter &) = delete;

    /// `copy` lacks what is taken from the list.
    void Write(const QString &id, KeptCopy copy, CWordList list)
    {
        Stop(true);
        m_isWanted = true;
        m_id = id;
        m_copy = std::move(copy);
        m_list = std::move(list);
        Start();
    }
    /// Gives up what is not yet in place.
    void Cancel() { m_isWanted = false; }
    /// How the last one ended.
    bool Written() const { return m_written; }

protected:
    void Run() override
    {
        m_written = false;
        QBuffer buffer(&m_copy.content);
        buffer.open(QIODevice::WriteOnly);
        m_copy.count = m_list.Count() - m_list.CountWithoutTerms(); // What a file gives back.
        if (WriteWordList(m_list, buffer) && m_isWanted) {
            m_written = m_recovery.m_copies.Write(m_id, m_copy);
        }
        m_list = CWordList();
        m_copy = {};
        Q_EMIT m_recovery.WriterEnded(m_written, {});
    }

private:
    CRecovery &m_recovery;
    QString m_id;
    KeptCopy m_copy;
    CWordList m_list;
    std::atomic<bool> m_isWanted = false; // Not the thread's own mark, which waiting for it takes away.
    std::atomic<bool> m_written = false;
};

CRecovery::CRecovery(CWin32Doc &document, const QString &folder, int delay, QObject *parent)
    : QObject(parent), m_document(document), m_listToKeep([&document] { return document.List(); }),
      m_folder(folder), m_copies(folder), m_delay(delay), m_writer(std::make_unique<CWriter>(*this))
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &CRecovery::WriteCopy);
    connect(this, &CRecovery::WriterEnded, this, &CRecovery::CopyWritten, Qt::QueuedConnection);
    connect(&document, &CWin32Doc::Changed, this, [this](const ListChange &change) {
        if (change.replaced) {
            Discard();
        }
        KeepSoon();
    });
    connect(&document, &CWin32Doc::Saved, this, [this] {
        if (!m_document.IsModified()) {
            Discard();
        }
        KeepSoon(); // What the file doesn't hold.
    });
}

CRecovery::~CRecovery()
{
    m_writer.reset(); // It reports here to its end.
    RemoveLeaving();
}

QString CRecovery::UserFolder()
{
    const QString base = qEnvironmentVariable("XDG_STATE_HOME");
    const QString state =
        QDir::isAbsolutePath(base) ? base : QDir::homePath() + QStringLiteral("/.local/state");
    return state + QStringLiteral("/Ornbury Workshops/Ordelin");
}

void CRecovery::KeepSoon()
{
    // Not started anew by each change: who types without a pause has a copy too.
    if (!m_timer.isActive()) {
        m_timer.start(m_delay);
    }
}

bool CRecovery::MakeId()
{
    if (m_id.isEmpty() && m_copies.MakeFolder()) {
        const QString id = CKeptCopies::NewId();
        m_lock = m_copies.Lock(id);
        m_id = m_lock ? id : QString();
    }
    return !m_id.isEmpty();
}

void CRecovery::WriteCopy()
{
    CWordList list = m_listToKeep();
    if (list.IsSaved() || list.Count() == 0) {
        Discard();
    } else if (m_writing) {
        m_timer.start(m_delay);
    } else if (!MakeId()) {
        CopyWritten(false);
    } else {
        m_writing = true;
        m_writer->Write(m_id, {.path = m_document.Path(), .stamp = m_document.Stamp()}, std::move(list));
    }
}

void CRecovery::CopyWritten(bool written)
{
    m_writing = false;
    if (!m_leavingId.isEmpty()) {
        Wait();
        RemoveLeaving();
        return;
    }
    const bool failedBefore = std::exchange(m_failed, !written);
    if (!written) {
        m_timer.start(m_delay * RetryFactor);
        if (!failedBefore) {
            Q_EMIT CopyFailed();
        }
    }
}

void CRecovery::Wait()
{
    m_writer->Stop(true);
}

void CRecovery::Discard()
{
    m_timer.stop();
    if (m_id.isEmpty()) {
        return;
    }
    Remove(m_id);
    if (m_writing && m_leavingId.isEmpty()) {
        m_writer->Cancel();
        m_leavingId = m_id;
        m_leavingLock = std::move(m_lock);
    }
    m_lock.reset();
    m_id.clear();
}

void CRecovery::RemoveLeaving()
{
    if (!m_leavingId.isEmpty()) {
        Remove(m_leavingId);
        m_leavingLock.reset();
        m_leavingId.clear();
    }
}

void CRecovery::Finish()
{
    Discard();
    Wait();
    RemoveLeaving();
}

bool CRecovery::Keep()
{
    m_timer.stop();
    Wait();
    RemoveLeaving();
    m_writing = false;
    WriteCopy();
    const bool started = std::exchange(m_writing, false);
    Wait();
    return started ? m_writer->Written() : !m_document.IsModified();
}

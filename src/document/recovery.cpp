// SPDX-License-Identifier: MIT
#include "document/recovery.h"

#include "fileformats/word_list_file.h"
#include "platform/safe_file.h"
#include "platform/thread.h"
#include "platform/user_prompt.h"
#include "resources/text_numbers.h"
#include "resources/texts.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QUuid>

namespace {

constexpr const char *ListSuffix = ".gls";
constexpr const char *PathSuffix = ".path";
constexpr const char *LockSuffix = ".lock";

}

/// Writes one copy; works on a list of its own.
class CRecovery::CWriter : public CThread
{
public:
    explicit CWriter(CRecovery &recovery) : m_recovery(recovery) { }
    ~CWriter() override { Stop(true); }
    CWriter(const CWriter &) = delete;
    CWriter &operator=(const CWriter &) = delete;

    void Write(CWordList list, const QString &listPath, const QByteArray &origin, const QString &originPath)
    {
        Stop(true);
        m_list = std::move(list);
        m_listPath = listPath;
        m_origin = origin;
        m_originPath = originPath;
        Start();
    }

protected:
    void Run() override
    {
        CSafeFile origin;
        // A copy that can't be written is tried again at the next change; the user is told when saving fails.
        if (origin.Open(m_originPath) && origin.Device().write(m_origin) == m_origin.size()
            && origin.Commit()) {
            (void)WriteWordListFile(m_list, m_listPath, {.forceUnicode = true});
        }
        m_list = CWordList();
        QMetaObject::invokeMethod(&m_recovery, &CRecovery::CopyWritten, Qt::QueuedConnection);
    }

private:
    CRecovery &m_recovery;
    CWordList m_list;
    QString m_listPath;
    QByteArray m_origin;
    QString m_originPath;
};

CRecovery::CRecovery(CWin32Doc &document, const QString &folder, int delay, QObject *parent)
    : QObject(parent), m_document(document), m_listToKeep([&document] { return document.List(); }),
      m_folder(folder), m_writer(std::make_unique<CWriter>(*this))
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(delay);
    connect(&m_timer, &QTimer::timeout, this, &CRecovery::WriteCopy);
    connect(&document, &CWin32Doc::Changed, this, &CRecovery::KeepSoon);
    connect(&document, &CWin32Doc::Saved, this, &CRecovery::Discard);
    connect(&document, &CWin32Doc::Saved, this, &CRecovery::KeepSoon); // What no file holds yet.
}

CRecovery::~CRecovery()
{
    m_writer.reset(); // It reports here to its end.
}

QString CRecovery::UserFolder()
{
    const QString base = qEnvironmentVariable("XDG_STATE_HOME");
    const QString state =
        QDir::isAbsolutePath(base) ? base : QDir::homePath() + QStringLiteral("/.local/state");
    return state + QStringLiteral("/Ornbury Workshops/Ordelin");
}

QString CRecovery::FilePath(const QString &id, const char *suffix) const
{
    return QDir(m_folder).filePath(id + QLatin1StringView(suffix));
}

void CRecovery::Remove(const QString &id) const
{
    for (const char *suffix : {ListSuffix, PathSuffix}) {
        QFile::remove(FilePath(id, suffix));
    }
}

std::unique_ptr<QLockFile> CRecovery::Lock(const QString &id) const
{
    auto lock = std::make_unique<QLockFile>(FilePath(id, LockSuffix));
    // Only the end of its program makes a lock stale, never its age.
    lock->setStaleLockTime(0);
    return lock->tryLock(0) ? std::move(lock) : nullptr;
}

void CRecovery::KeepSoon()
{
    // Not started anew by each change: who types without a pause has a copy too.
    if (!m_timer.isActive()) {
        m_timer.start();
    }
}

void CRecovery::WriteCopy()
{
    CWordList list = m_listToKeep();
    if (list.IsSaved() || list.Count() == 0) {
        Discard();
        return;
    }
    if (m_writer->IsRunning()) {
        m_timer.start();
        return;
    }
    if (m_id.isEmpty()) {
        QDir().mkpath(m_folder);
        const QString id = QUuid::createUuid().toString(QUuid::WithoutBraces);
        m_lock = Lock(id);
        if (!m_lock) {
            return;
        }
        m_id = id;
    }
    const FileStamp &stamp = m_document.Stamp();
    const QString origin = QStringLiteral("%1 %2\n%3")
                               .arg(stamp.modified.toMSecsSinceEpoch())
                               .arg(stamp.size)
                               .arg(m_document.Path());
    m_writer->Write(std::move(list), FilePath(m_id, ListSuffix), origin.toUtf8(), FilePath(m_id, PathSuffix));
}

void CRecovery::CopyWritten()
{
    if (m_discardWhenWritten) {
        Finish();
    }
}

void CRecovery::Wait()
{
    m_writer->Stop(true);
}

void CRecovery::Discard()
{
    m_timer.stop();
    if (m_writer->IsRunning()) {
        m_discardWhenWritten = true;
    } else {
        Finish();
    }
}

void CRecovery::Finish()
{
    m_discardWhenWritten = false;
    Wait();
    if (!m_id.isEmpty()) {
        Remove(m_id);
        m_lock.reset();
        m_id.clear();
    }
}

void CRecovery::Keep()
{
    m_timer.stop();
    Wait();
    m_discardWhenWritten = false;
    WriteCopy();
    Wait();
}

std::vector<LostList> CRecovery::FindLost() const
{
    std::vector<LostList> lost;
    const QFileInfoList files =
        QDir(m_folder).entryInfoList({QStringLiteral("*.gls")}, QDir::Files | QDir::Readable, QDir::Time);
    for (const QFileInfo &file : files) {
        const QString id = file.completeBaseName();
        if (id == m_id || !Lock(id)) {
            continue;
        }
        LostList list = {id, {}, {}, file.lastModified()};
        QFile origin(FilePath(id, PathSuffix));
        if (origin.open(QIODevice::ReadOnly)) {
            const QString text = QString::fromUtf8(origin.readAll());
            const QString stamp = text.section(u'\n', 0, 0);
            list.path = text.section(u'\n', 1);
            list.stamp = {QDateTime::fromMSecsSinceEpoch(stamp.section(u' ', 0, 0).toLongLong()),
                stamp.section(u' ', 1).toLongLong()};
        }
        lost.push_back(list);
    }
    return lost;
}

void CRecovery::RemoveRemains() const
{
    // Of programs that ended before their first copy was complete.
    for (const QString &name : QDir(m_folder).entryList(QDir::Files)) {
        const QString id = name.section(u'.', 0, 0);
        if (id != m_id && !QFile::exists(FilePath(id, ListSuffix)) && Lock(id)) {
            QFile::remove(QDir(m_folder).filePath(name));
        }
    }
}

bool CRecovery::Offer(const CTexts &texts, IUserPrompt &prompt)
{
    RemoveRemains();
    for (const LostList &lost : FindLost()) {
        // Held while the user thinks, so that no other program asks about the same list.
        std::unique_ptr<QLockFile> lock = Lock(lost.id);
        if (!lock) {
            continue;
        }
        const QString name = lost.path.isEmpty() ? texts.Get(Text::Unnamed) : QFileInfo(lost.path).fileName();
        const QString time = QLocale::system().toString(lost.written, QLocale::ShortFormat);
        const PromptAnswer answer = prompt.Ask(texts.Prompt(Text::RecoverChanges, {name, time}),
            PromptIcon::Question, PromptButtons::YesNoCancel, PromptAnswer::Yes);
        if (answer == PromptAnswer::No) {
            Remove(lost.id);
        } else if (answer == PromptAnswer::Yes
            && m_document.OpenRecovered(FilePath(lost.id, ListSuffix), lost.path, lost.stamp)) {
            // The copy becomes this program's own, so it stays until the list is saved.
            m_lock = std::move(lock);
            m_id = lost.id;
            return true;
        }
    }
    return false;
}

// SPDX-License-Identifier: MIT
#include "document/recovery.h"

#include "document/win32_doc.h"
#include "fileformats/word_list_file.h"
#include "platform/safe_file.h"
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
    CWriter() = default;
    ~CWriter() override { Stop(true); }
    CWriter(const CWriter &) = delete;
    CWriter &operator=(const CWriter &) = delete;

    void Write(CWordList list, const QString &listPath, const QString &origin, const QString &originPath)
    {
        Stop(true);
        m_list = std::move(list);
        m_listPath = listPath;
        m_origin = origin.toUtf8();
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
    }

private:
    CWordList m_list;
    QString m_listPath;
    QByteArray m_origin;
    QString m_originPath;
};

CRecovery::CRecovery(CWin32Doc &document, const QString &folder, int delay, QObject *parent)
    : QObject(parent), m_document(document), m_folder(folder), m_writer(std::make_unique<CWriter>())
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(delay);
    connect(&m_timer, &QTimer::timeout, this, &CRecovery::WriteCopy);
    connect(&document, &CWin32Doc::Changed, this, &CRecovery::DocumentChanged);
    connect(&document, &CWin32Doc::ListReplaced, this, &CRecovery::DocumentChanged);
    connect(&document, &CWin32Doc::Saved, this, &CRecovery::Discard);
}

CRecovery::~CRecovery() = default;

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

bool CRecovery::Take(const QString &id)
{
    auto lock = std::make_unique<QLockFile>(FilePath(id, LockSuffix));
    // Only the end of its program makes a lock stale, never its age.
    lock->setStaleLockTime(0);
    if (!lock->tryLock(0)) {
        return false;
    }
    m_lock = std::move(lock);
    m_id = id;
    return true;
}

void CRecovery::DocumentChanged()
{
    // Not started anew by each change: who types without a pause has a copy too.
    if (!m_timer.isActive()) {
        m_timer.start();
    }
}

void CRecovery::WriteCopy()
{
    if (!m_document.IsModified()) {
        Discard();
        return;
    }
    if (m_writer->IsRunning()) {
        m_timer.start();
        return;
    }
    if (m_id.isEmpty()) {
        QDir().mkpath(m_folder);
        if (!Take(QUuid::createUuid().toString(QUuid::WithoutBraces))) {
            return;
        }
    }
    m_writer->Write(
        m_document.List(), FilePath(m_id, ListSuffix), m_document.Path(), FilePath(m_id, PathSuffix));
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
    Wait();
    Remove(m_id);
    m_lock.reset();
    m_id.clear();
}

std::vector<LostList> CRecovery::FindLost() const
{
    std::vector<LostList> lost;
    const QFileInfoList files =
        QDir(m_folder).entryInfoList({QStringLiteral("*.gls")}, QDir::Files | QDir::Readable, QDir::Time);
    for (const QFileInfo &file : files) {
        const QString id = file.completeBaseName();
        QLockFile lock(FilePath(id, LockSuffix));
        lock.setStaleLockTime(0);
        if (id == m_id || !lock.tryLock(0)) {
            continue;
        }
        QFile path(FilePath(id, PathSuffix));
        const QString origin = path.open(QIODevice::ReadOnly) ? QString::fromUtf8(path.readAll()) : QString();
        lost.push_back({id, origin, file.lastModified()});
    }
    return lost;
}

bool CRecovery::Offer(const CTexts &texts, IUserPrompt &prompt)
{
    const std::vector<LostList> lost = FindLost();
    if (lost.empty()) {
        return false;
    }
    const LostList &newest = lost.front();
    const QString name = newest.path.isEmpty() ? texts.Get(Text::Unnamed) : QFileInfo(newest.path).fileName();
    const QString time = QLocale::system().toString(newest.written, QLocale::ShortFormat);
    switch (prompt.Ask(texts.Prompt(Text::RecoverChanges, {name, time}), PromptIcon::Question,
        PromptButtons::YesNoCancel, PromptAnswer::Yes)) {
    case PromptAnswer::Yes:
        // The copy becomes this program's own, so it stays until the list is saved.
        return m_document.OpenRecovered(FilePath(newest.id, ListSuffix), newest.path) && Take(newest.id);
    case PromptAnswer::No:
        Remove(newest.id);
        return false;
    case PromptAnswer::Cancel:
        return false;
    }
    return false;
}

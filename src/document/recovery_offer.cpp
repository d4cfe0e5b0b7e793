// SPDX-License-Identifier: MIT
#include "document/recovery.h"
#include "document/text_numbers.h"
#include "fileformats/word_list_file.h"
#include "platform/file_name.h"
#include "platform/regular_file.h"
#include "platform/user_prompt.h"
#include "resources/texts.h"

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include <limits>

namespace {

// How copies were kept before: the list, and a file with the stamp and the path of the list's own file.
constexpr QLatin1StringView FormerListSuffix(".gls");
constexpr QLatin1StringView FormerPathSuffix(".path");

/// Whether the file holds what it held before it was overwritten, or what it was overwritten with.
bool FileIsWhole(const KeptCopy &copy)
{
    const auto content = ReadRegularFile(copy.path, std::numeric_limits<int>::max());
    return content && (*content == copy.content || CKeptCopies::Fingerprint(*content) == copy.newContent);
}

bool IsOwnList(ReadResult result)
{
    return result == ReadResult::Read || result == ReadResult::ReadLossy;
}

}

/// A copy whose program ended without saving the list.
struct CRecovery::LostList
{
    QString id;
    QString path = {}; // The name that is shown; empty for none.
    FileStamp stamp = {};
    CWordList list = {};
    int question = Text::RecoverChanges;
    qint64 missing = 0; // How many entries the list should have beside those that it has.
    bool belongsToFile = true; // The list may be saved under the path.
    QDateTime written = {};
};

QStringList CRecovery::LostIds() const
{
    QStringList ids = m_copies.Ids();
    for (const QFileInfo &file :
        QDir(m_folder).entryInfoList({QStringLiteral("*.gls")}, QDir::Files, QDir::Time)) {
        ids.append(file.completeBaseName());
    }
    ids.removeAll(m_id);
    return ids;
}

std::optional<CRecovery::LostList> CRecovery::Load(const QString &id) const
{
    LostList lost = {.id = id};
    if (const std::optional<KeptCopy> copy = m_copies.Read(id)) {
        lost.path = copy->path;
        lost.stamp = copy->stamp;
        lost.written = QFileInfo(m_copies.Path(id)).lastModified();
        QBuffer buffer;
        buffer.setData(copy->content);
        buffer.open(QIODevice::ReadOnly);
        const ReadResult result = ReadWordList(lost.list, buffer);
        if (result == ReadResult::CannotOpen) {
            return std::nullopt;
        }
        if (copy->kind == KeptCopy::Kind::Overwritten) {
            lost.question = Text::RecoverOverwritten;
            lost.stamp = FileStamp::Of(copy->path);
            lost.belongsToFile = IsOwnList(result);
        } else if (!IsOwnList(result) || lost.list.Count() < copy->count) {
            lost.question = Text::RecoverPart;
            lost.missing = copy->count - lost.list.Count();
            lost.belongsToFile = false;
        }
        return lost;
    }
    const QString former = QDir(m_folder).filePath(id);
    if (!IsOwnList(ReadWordListFile(lost.list, former + FormerListSuffix))) {
        return std::nullopt;
    }
    // The two files may be of different lists: the name is shown, but nothing is saved under it.
    const QByteArray origin = ReadRegularFile(former + FormerPathSuffix, 65536).value_or(QByteArray());
    lost.path = QString::fromUtf8(origin).section(u'\n', 1);
    lost.belongsToFile = false;
    lost.written = QFileInfo(former + FormerListSuffix).lastModified();
    return lost;
}

void CRecovery::Remove(const QString &id) const
{
    m_copies.Remove(id);
    for (const QLatin1StringView suffix : {FormerListSuffix, FormerPathSuffix}) {
        QFile::remove(QDir(m_folder).filePath(id + suffix));
    }
}

void CRecovery::RemoveRemains() const
{
    // Of programs that ended before their first copy was complete.
    const QStringList ids = LostIds();
    for (const QFileInfo &file :
        QDir(m_folder).entryInfoList({QStringLiteral("*.path"), QStringLiteral("*.lock")}, QDir::Files)) {
        const QString id = file.completeBaseName();
        if (id != m_id && !ids.contains(id) && m_copies.Lock(id)) {
            QFile::remove(file.filePath());
        }
    }
}

bool CRecovery::Offer(const CTexts &texts, IUserPrompt &prompt)
{
    RemoveRemains();
    for (const QString &id : LostIds()) {
        // Held while the user thinks, so that no other program asks about the same list.
        std::unique_ptr<QLockFile> lock = m_copies.Lock(id);
        std::optional<LostList> lost = lock ? Load(id) : std::nullopt;
        if (!lost) {
            continue;
        }
        if (lost->question == Text::RecoverOverwritten && FileIsWhole(m_copies.Read(id).value_or(KeptCopy()))) {
            Remove(id);
            continue;
        }
        const QString name = lost->path.isEmpty() ? texts.Get(Text::Unnamed) : QFileInfo(lost->path).fileName();
        QStringList values = {name, QLocale::system().toString(lost->written, QLocale::ShortFormat)};
        if (lost->question == Text::RecoverPart) {
            values +=
                {QString::number(lost->list.Count()), QString::number(lost->list.Count() + lost->missing)};
        }
        const PromptAnswer answer = prompt.Ask(texts.Prompt(lost->question, values), PromptIcon::Question,
            PromptButtons::YesNoCancel, PromptAnswer::Yes);
        if (answer == PromptAnswer::No) {
            Remove(id);
        } else if (answer == PromptAnswer::Yes) {
            m_document.OpenRecovered(std::move(lost->list), lost->belongsToFile ? lost->path : QString(),
                lost->belongsToFile ? lost->stamp : FileStamp());
            // The copy becomes this program's own, so it stays until the list is saved.
            m_lock = std::move(lock);
            m_id = id;
            return true;
        }
    }
    return false;
}

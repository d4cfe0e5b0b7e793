// SPDX-License-Identifier: MIT
#include "platform/kept_copies.h"

#include "platform/file_name.h"
#include "platform/regular_file.h"
#include "platform/safe_file.h"

#include <QByteArrayList>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QUuid>

#include <limits>

namespace {

constexpr QByteArrayView FirstLine("Ordelin copy 1");
constexpr QByteArrayView HeadEnd("\n\n");
constexpr qsizetype LongestHead = 32768; // Holds the longest path, three bytes for each of its own.
constexpr qint64 LargestCopy = std::numeric_limits<int>::max();

QByteArray Head(const KeptCopy &copy)
{
    const FileStamp &stamp = copy.stamp;
    QByteArrayList numbers;
    for (const qint64 number : {stamp.size, qint64(stamp.inode), stamp.modified, stamp.changed}) {
        numbers.append(QByteArray::number(number));
    }
    return FirstLine.toByteArray() + "\nkind=" + QByteArray::number(int(copy.kind)) + "\npath="
        + EncodeFileName(copy.path).toPercentEncoding("/ ") + "\nstamp=" + numbers.join(' ') + "\ncount="
        + QByteArray::number(copy.count) + "\nnew=" + copy.newContent.toHex() + HeadEnd.toByteArray();
}

/// The values of the lines "name=value".
QHash<QByteArray, QByteArray> Values(const QByteArray &head)
{
    QHash<QByteArray, QByteArray> values;
    for (const QByteArray &line : head.split('\n')) {
        const qsizetype equals = line.indexOf('=');
        if (equals > 0) {
            values.insert(line.first(equals), line.sliced(equals + 1));
        }
    }
    return values;
}

/// The numbers of a line, or none when they are not all numbers.
std::optional<QList<qint64>> Numbers(const QByteArray &text)
{
    QList<qint64> numbers;
    for (const QByteArray &part : text.split(' ')) {
        bool isNumber = false;
        numbers.append(part.toLongLong(&isNumber));
        if (!isNumber) {
            return std::nullopt;
        }
    }
    return numbers;
}

}

QString CKeptCopies::NewId()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

QByteArray CKeptCopies::Fingerprint(const QByteArray &content)
{
    return QCryptographicHash::hash(content, QCryptographicHash::Sha256);
}

QString CKeptCopies::Path(const QString &id) const
{
    return m_folder + u'/' + id + QStringLiteral(".copy");
}

bool CKeptCopies::MakeFolder() const
{
    if (QDir(m_folder).exists()) {
        return true;
    }
    return QDir().mkpath(m_folder)
        && QFile::setPermissions(
            m_folder, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

std::unique_ptr<QLockFile> CKeptCopies::Lock(const QString &id) const
{
    auto lock = std::make_unique<QLockFile>(m_folder + u'/' + id + QStringLiteral(".lock"));
    // Only the end of its program makes a lock stale, never its age.
    lock->setStaleLockTime(0);
    return lock->tryLock(0) ? std::move(lock) : nullptr;
}

bool CKeptCopies::Write(const QString &id, const KeptCopy &copy) const
{
    const QByteArray head = Head(copy);
    CSafeFile file;
    return file.Open(Path(id)) && file.Device().write(head) == head.size()
        && file.Device().write(copy.content) == copy.content.size() && file.Commit();
}

std::optional<KeptCopy> CKeptCopies::Read(const QString &id) const
{
    const std::optional<QByteArray> bytes = ReadRegularFile(Path(id), LargestCopy);
    if (!bytes || !bytes->startsWith(FirstLine)) {
        return std::nullopt;
    }
    const qsizetype headSize = bytes->first(std::min(bytes->size(), LongestHead)).indexOf(HeadEnd);
    if (headSize < 0) {
        return std::nullopt;
    }
    const auto values = Values(bytes->first(headSize));
    const auto kind = Numbers(values.value("kind"));
    const auto stamp = Numbers(values.value("stamp"));
    const auto count = Numbers(values.value("count"));
    if (!values.contains("path") || !kind || kind->first() < 0 || kind->first() > 1 || !stamp
        || stamp->size() != 4 || !count) {
        return std::nullopt;
    }
    return KeptCopy{.kind = KeptCopy::Kind(kind->first()),
        .path = DecodeFileName(QByteArray::fromPercentEncoding(values.value("path"))),
        .stamp = {.size = stamp->at(0),
            .inode = quint64(stamp->at(1)),
            .modified = stamp->at(2),
            .changed = stamp->at(3)},
        .count = count->first(),
        .newContent = QByteArray::fromHex(values.value("new")),
        .content = bytes->sliced(headSize + HeadEnd.size())};
}

void CKeptCopies::Remove(const QString &id) const
{
    QFile::remove(Path(id));
}

QStringList CKeptCopies::Ids() const
{
    QStringList ids;
    for (const QString &name : QDir(m_folder).entryList({QStringLiteral("*.copy")}, QDir::Files, QDir::Time)) {
        ids.append(name.chopped(5));
    }
    return ids;
}

void CKeptCopies::RemoveOverwritten(const QString &path) const
{
    for (const QString &id : Ids()) {
        const std::unique_ptr<QLockFile> lock = Lock(id);
        const std::optional<KeptCopy> copy = lock ? Read(id) : std::nullopt;
        if (copy && copy->kind == KeptCopy::Kind::Overwritten && copy->path == path) {
            Remove(id);
        }
    }
}

// SPDX-License-Identifier: MIT
#include "platform/safe_file.h"

#include "platform/file_attributes.h"
#include "platform/file_name.h"
#include "platform/kept_copies.h"

#include <QBuffer>
#include <QRandomGenerator>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <limits>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr QByteArrayView Prefix(".ordelin-");
constexpr QByteArrayView Suffix(".tmp");
constexpr qsizetype DigitCount = 16;
constexpr time_t StrayAge = 24L * 60 * 60; // In seconds.

/// Short, so that it fits wherever the name of the file fits.
QByteArray NewTemporaryName()
{
    const QByteArray digits = QByteArray::number(QRandomGenerator::global()->generate64(), 16);
    return Prefix.toByteArray() + digits.rightJustified(DigitCount, '0') + Suffix.toByteArray();
}

bool IsTemporaryName(QByteArrayView name)
{
    if (name.size() != Prefix.size() + DigitCount + Suffix.size() || !name.startsWith(Prefix)
        || !name.endsWith(Suffix)) {
        return false;
    }
    const QByteArrayView digits = name.sliced(Prefix.size(), DigitCount);
    return std::all_of(digits.begin(), digits.end(),
        [](char digit) { return (digit >= '0' && digit <= '9') || (digit >= 'a' && digit <= 'f'); });
}

QByteArray FolderOf(const QByteArray &path)
{
    const qsizetype slash = path.lastIndexOf('/');
    return slash < 0 ? QByteArray(".") : path.first(std::max<qsizetype>(slash, 1));
}

/// The file at the end of the links that `path` may be. It need not exist. Empty when there is no end.
QByteArray BehindLinks(QByteArray path)
{
    constexpr int MostLinks = 40; // As many as the system follows.
    for (int links = 0; links <= MostLinks; ++links) {
        QByteArray target(PATH_MAX, '\0');
        const ssize_t length = ::readlink(path.constData(), target.data(), size_t(target.size()));
        if (length < 0) {
            return path;
        }
        target.resize(length);
        path = target.startsWith('/') ? target : FolderOf(path) + '/' + target;
    }
    return {};
}

/// Replaces the bytes of an open file from its start on. The file is cut to size at the very end, so until then
/// the room that the old content takes can't be lost to others.
bool WriteOver(const CFileDescriptor &file, const QByteArray &content)
{
    return ::lseek(file.Number(), 0, SEEK_SET) == 0 && file.Write(content)
        && ::ftruncate(file.Number(), content.size()) == 0 && ::fsync(file.Number()) == 0;
}

}

/// Notes each write that failed.
class CSafeFile::CTemporaryFileDevice : public QIODevice
{
public:
    explicit CTemporaryFileDevice(CSafeFile &file) : m_file(file) { }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char * /*data*/, qint64 /*size*/) override { return -1; }
    qint64 writeData(const char *data, qint64 size) override
    {
        if (m_file.m_temporary.Write(QByteArrayView(data, size))) {
            return size;
        }
        m_file.m_failed = true;
        return -1;
    }

private:
    CSafeFile &m_file;
};

bool CSafeFile::Open(const QString &path, const QString &backupFolder)
{
    Cancel();
    m_path = path;
    m_backupFolder = backupFolder;
    m_failed = false;
    const QByteArray target = BehindLinks(EncodeFileName(path));
    m_folderName = FolderOf(target);
    m_name = target.sliced(target.lastIndexOf('/') + 1);
    if (m_name.isEmpty() || target.contains('\0') || !m_folder.Open(m_folderName, O_PATH | O_DIRECTORY)) {
        return false;
    }
    const Way way = FindWay();
    if (way == Way::Replace) {
        m_device = std::make_unique<CTemporaryFileDevice>(*this);
    } else if (way == Way::Overwrite) {
        m_content.clear();
        m_device = std::make_unique<QBuffer>(&m_content);
    } else {
        return false;
    }
    return m_device->open(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

CSafeFile::Way CSafeFile::FindWay()
{
    struct stat status = {};
    const int folder = m_folder.Number();
    const bool exists = ::fstatat(folder, m_name.constData(), &status, AT_SYMLINK_NOFOLLOW) == 0;
    // A device or a pipe would be replaced by a file of its name.
    if (exists ? !S_ISREG(status.st_mode) || ::faccessat(folder, m_name.constData(), W_OK, AT_EACCESS) != 0
               : errno != ENOENT) {
        return Way::None;
    }
    const Way otherwise = exists && !m_backupFolder.isEmpty() ? Way::Overwrite : Way::None;
    if (otherwise == Way::Overwrite && status.st_nlink > 1) {
        return otherwise;
    }
    do {
        m_temporaryName = NewTemporaryName();
    } while (!m_temporary.OpenIn(m_folder, m_temporaryName, O_WRONLY | O_CREAT | O_EXCL, exists ? 0600 : 0666)
        && errno == EEXIST);
    if (!m_temporary.IsOpen()) {
        m_temporaryName.clear();
        const bool folderIsClosed = errno == EACCES || errno == EPERM || errno == EROFS;
        return folderIsClosed ? otherwise : Way::None;
    }
    if (exists && !KeepAttributes(m_folderName + '/' + m_name, status, m_temporary.Number())
        && otherwise == Way::Overwrite) {
        RemoveTemporary();
        return otherwise;
    }
    return Way::Replace;
}

bool CSafeFile::Commit()
{
    if (m_device == nullptr) {
        return false;
    }
    const bool done = m_temporary.IsOpen() ? Replace() : Overwrite();
    if (done) {
        RemoveStrays();
        if (!m_backupFolder.isEmpty()) {
            CKeptCopies(m_backupFolder).RemoveOverwritten(m_path);
        }
    }
    Cancel();
    return done;
}

void CSafeFile::Cancel()
{
    m_device.reset();
    RemoveTemporary();
    m_folder.Close();
}

void CSafeFile::RemoveTemporary()
{
    m_temporary.Close();
    if (!m_temporaryName.isEmpty()) {
        ::unlinkat(m_folder.Number(), m_temporaryName.constData(), 0);
        m_temporaryName.clear();
    }
}

bool CSafeFile::Replace()
{
    if (m_failed || ::fsync(m_temporary.Number()) != 0 || !m_temporary.Close()
        || ::renameat(m_folder.Number(), m_temporaryName.constData(), m_folder.Number(), m_name.constData())
            != 0) {
        return false;
    }
    m_temporaryName.clear();
    // Old and new file are both whole, whichever of them a failure at this point leaves on the disk.
    CFileDescriptor folder;
    if (folder.OpenIn(m_folder, ".", O_RDONLY | O_DIRECTORY)) {
        (void)::fsync(folder.Number());
    }
    return true;
}

bool CSafeFile::Overwrite()
{
    CFileDescriptor file;
    struct stat status = {};
    if (!file.OpenIn(m_folder, m_name, O_RDWR | O_NONBLOCK | O_NOFOLLOW) || ::fstat(file.Number(), &status) != 0
        || !S_ISREG(status.st_mode)) {
        return false;
    }
    const std::optional<QByteArray> before = file.Read(std::numeric_limits<int>::max());
    const CKeptCopies copies(m_backupFolder);
    const QString id = CKeptCopies::NewId();
    if (!before || !copies.MakeFolder()) {
        return false;
    }
    const std::unique_ptr<QLockFile> lock = copies.Lock(id);
    if (!lock
        || !copies.Write(id,
            {.kind = KeptCopy::Kind::Overwritten,
                .path = m_path,
                .newContent = CKeptCopies::Fingerprint(m_content),
                .content = *before})) {
        return false;
    }
    const bool written = WriteOver(file, m_content);
    // The old content found room in this file a moment ago, and finds it again.
    if (written || WriteOver(file, *before)) {
        copies.Remove(id);
    }
    return written;
}

void CSafeFile::RemoveStrays() const
{
    CFileDescriptor folder;
    if (!folder.OpenIn(m_folder, ".", O_RDONLY | O_DIRECTORY)) {
        return;
    }
    DIR *const entries = ::fdopendir(folder.Number());
    if (entries == nullptr) {
        return;
    }
    folder.Release(); // Belongs to the entries now.
    const time_t oldest = std::time(nullptr) - StrayAge;
    while (const dirent *const entry = ::readdir(entries)) {
        struct stat status = {};
        if (IsTemporaryName(QByteArrayView(entry->d_name))
            && ::fstatat(m_folder.Number(), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) == 0
            && S_ISREG(status.st_mode) && status.st_uid == ::geteuid() && status.st_mtime < oldest) {
            ::unlinkat(m_folder.Number(), entry->d_name, 0);
        }
    }
    ::closedir(entries);
}

// SPDX-License-Identifier: MIT
#include "platform/file_name.h"
#include "platform/regular_file.h"
#include "platform/safe_file.h"
#include "support/files.h"
#include "support/full_disk.h"

#include <QUrl>

#include <array>
#include <ctime>
#include <fcntl.h>
#include <set>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

bool Save(const QString &path, const QByteArray &content, const QString &backupFolder = {})
{
    CSafeFile file;
    if (!file.Open(path, backupFolder)) {
        return false;
    }
    file.Device().write(content); // Commit() knows whether it failed.
    return file.Commit();
}

/// Saves in a process of its own, as a user who may not write anywhere.
bool SaveAsNobody(
    const QString &path, const QByteArray &content, const QString &backupFolder, rlim_t room = RLIM_INFINITY)
{
    const pid_t child = fork();
    if (child == 0) {
        constexpr uid_t Nobody = 65534;
        if (geteuid() == 0 && (setgid(Nobody) != 0 || setuid(Nobody) != 0)) {
            _exit(100);
        }
        _exit(WithFullDisk(room, [&] { return Save(path, content, backupFolder); }) ? 1 : 0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (!WIFEXITED(status) || WEXITSTATUS(status) > 1) {
        QTest::qFail("The process that saves has failed", __FILE__, __LINE__);
    }
    return WEXITSTATUS(status) == 1;
}

QStringList FilesOf(const QString &folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden);
}

const QByteArray Old(5000, 'o');
const QByteArray New(20000, 'n');

}

class SafeFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(u"list.gls"_s);
        QVERIFY(Save(m_path, Old));
        // Whoever the tests run as, others may reach the folder.
        QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7777));
        QFile::setPermissions(m_path, QFile::Permissions(0x6666));
    }

    void fullDisk()
    {
        for (const int room : {0, 4096, 19999}) {
            QVERIFY(!WithFullDisk(rlim_t(room), [&] { return Save(m_path, New); }));
            QCOMPARE(Content(m_path), Old);
        }
        QCOMPARE(FilesOf(m_folder->path()).size(), 1);
    }

    void closedFolder()
    {
        const QTemporaryDir backups;
        QFile::setPermissions(backups.path(), QFile::Permissions(0x7777));
        QFile::setPermissions(m_folder->path(), QFile::Permissions(0x5555));
        QVERIFY(!SaveAsNobody(m_path, New, backups.path(), 10000)); // Overwritten in part, and put back.
        QCOMPARE(Content(m_path), Old);
        // Also where it would fit a buffer.
        QVERIFY(!SaveAsNobody(m_path, New.first(12000), backups.path(), 8000));
        QCOMPARE(Content(m_path), Old);
        for (const QByteArray &content : {New, QByteArray("short")}) {
            QVERIFY(SaveAsNobody(m_path, content, backups.path()));
            QCOMPARE(Content(m_path), content);
        }
        QVERIFY(FilesOf(backups.path()).isEmpty());
        QVERIFY(!SaveAsNobody(m_path, New, {})); // Not without a place for the backup.
        QVERIFY(!SaveAsNobody(Path("new.gls"), New, {}));
        QVERIFY(!QFile::exists(Path("new.gls")));
        QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7777));
        QFile::setPermissions(m_path, QFile::Permissions(0x4444)); // Read-only, where a new file may be made.
        QVERIFY(!SaveAsNobody(m_path, New, backups.path()));
        QCOMPARE(Content(m_path), QByteArray("short"));
    }

    void linksAndDevices()
    {
        const QString link = m_folder->filePath(u"link.gls"_s);
        QVERIFY(QFile::link(m_path, link));
        QVERIFY(Save(link, New));
        QCOMPARE(QFile::symLinkTarget(link), m_path);
        QCOMPARE(Content(m_path), New);
        QVERIFY(!Save(m_folder->path(), New));
        QVERIFY(QFile::link(Path("loop.gls"), Path("loop.gls")));
        QVERIFY(!Save(Path("loop.gls"), New));
        QVERIFY(QFileInfo(Path("loop.gls")).isSymLink());
        // What is no regular file would become one.
        QCOMPARE(mkfifo(Path("pipe").toUtf8().constData(), 0666), 0);
        QVERIFY(!Save(Path("pipe"), New));
        struct stat status = {};
        QVERIFY(::stat(Path("pipe").toUtf8().constData(), &status) == 0 && S_ISFIFO(status.st_mode));
        QVERIFY(QFile::link(Path("missing.gls"), Path("dangling.gls")));
        QVERIFY(Save(Path("dangling.gls"), New));
        QCOMPARE(Content(Path("missing.gls")), New);
    }

    void accessStays()
    {
        // Version 2 of the system's access lists: owner rw, user 1234 rw, group none, mask rw, others none.
        const QByteArray access = QByteArray::fromHex("0200000001000600ffffffff02000600d204000004000000ffffffff"
                                                      "10000600ffffffff20000000ffffffff");
        const QByteArray path = m_path.toUtf8();
        const char *const accessName = "system.posix_acl_access";
        if (::setxattr(path.constData(), "user.origin", "web", 3, 0) != 0
            || ::setxattr(path.constData(), accessName, access.constData(), size_t(access.size()), 0) != 0) {
            QSKIP("The file system for temporary files has no access lists.");
        }
        if (geteuid() == 0) {
            QCOMPARE(::chown(path.constData(), 65534, 65534), 0);
        }
        struct stat before = {};
        QCOMPARE(::stat(path.constData(), &before), 0);
        QVERIFY(Save(m_path, New, m_folder->path()));
        struct stat after = {};
        QCOMPARE(::stat(path.constData(), &after), 0);
        QVERIFY(after.st_ino != before.st_ino);
        QCOMPARE(after.st_mode, before.st_mode);
        QVERIFY(after.st_uid == before.st_uid && after.st_gid == before.st_gid);
        QByteArray value(100, '\0');
        QCOMPARE(::getxattr(path.constData(), "user.origin", value.data(), 100), 3);
        QCOMPARE(::getxattr(path.constData(), accessName, value.data(), 100), access.size());
        QCOMPARE(value.first(access.size()), access);
        // A list that the folder gives to new files is not one of the old file.
        QCOMPARE(::removexattr(path.constData(), accessName), 0);
        QCOMPARE(::setxattr(m_folder->path().toUtf8().constData(), "system.posix_acl_default",
                     access.constData(), size_t(access.size()), 0),
            0);
        QVERIFY(Save(m_path, Old, m_folder->path()));
        QCOMPARE(::getxattr(path.constData(), accessName, value.data(), 100), -1);
    }

    void overwrittenInPlace()
    {
        const QString other = Path("other name.gls");
        QCOMPARE(::link(m_path.toUtf8().constData(), other.toUtf8().constData()), 0);
        const QTemporaryDir backups;
        QVERIFY(Save(m_path, New, backups.filePath(u"made when needed"_s)));
        QCOMPARE(Content(other), New);
        QVERIFY(QFile::remove(other));
        if (geteuid() == 0) {
            // Another user's file, which may be changed but not given away.
            QFile::setPermissions(backups.path(), QFile::Permissions(0x7777));
            QVERIFY(SaveAsNobody(m_path, Old, backups.path()));
            struct stat status = {};
            QVERIFY(::stat(m_path.toUtf8().constData(), &status) == 0 && status.st_uid == 0);
            QCOMPARE(Content(m_path), Old);
        }
        QVERIFY(FilesOf(backups.path()).isEmpty());
    }

    void names()
    {
        for (const QByteArray &name : {QByteArray(255, 'x'), QByteArray("caf\xE9 \xC3\xA5\xED\xA0\x80.gls"),
                 QByteArray("\xEF\xBB\xBF\xFF"), QByteArray("\xF0\x9F\x98\x80\x9F")}) {
            const QByteArray path = m_folder->path().toUtf8() + '/' + name;
            const QString shown = DecodeFileName(path);
            QCOMPARE(EncodeFileName(shown), path);
            for (const QByteArray &content : {Old, New}) {
                QVERIFY(Save(shown, content));
                QVERIFY(FileExists(shown));
                QCOMPARE(ReadRegularFile(shown, 1000000).value_or(QByteArray()), content);
            }
            QCOMPARE(::access(path.constData(), R_OK), 0);
            const QByteArray url = "file://" + path.toPercentEncoding("/");
            QCOMPARE(LocalFileOf(QUrl::fromEncoded(url)), shown);
        }
        QVERIFY(!Save(m_path + QChar(QChar::Null) + u'x', New)); // It would be another file.
        QCOMPARE(Content(m_path), Old);
    }

    void strayFilesGo()
    {
        const auto make = [this](const QString &name, int hours) {
            const QByteArray path = WriteFile(m_folder->filePath(name), {}).toUtf8();
            const timespec time = {::time(nullptr) - hours * 3600L, 0};
            const std::array times = {time, time};
            QCOMPARE(::utimensat(AT_FDCWD, path.constData(), times.data(), 0), 0);
        };
        const QStringList stay = {u".ordelin-0123456789abcdeX.tmp"_s, u".ordelin-0123456789abcdef0.tmp"_s,
            u"ordelin-0123456789abcdef.tmp"_s};
        for (const QString &name : stay + QStringList{u".ordelin-0123456789abcdef.tmp"_s}) {
            make(name, 25);
        }
        const QString recent = u".ordelin-1111111111111111.tmp"_s; // Perhaps of a program that is saving now.
        make(recent, 23);
        QVERIFY(Save(m_path, New));
        const QStringList left = FilesOf(m_folder->path());
        QCOMPARE(std::set<QString>(left.begin(), left.end()),
            (std::set<QString>{stay[0], stay[1], stay[2], recent, u"list.gls"_s}));
    }

private:
    QString Path(const char *name) const { return m_folder->filePath(QString::fromUtf8(name)); }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

QTEST_APPLESS_MAIN(SafeFileTest)
#include "safe_file_test.moc"

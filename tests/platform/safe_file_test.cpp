// SPDX-License-Identifier: MIT
#include "platform/file_name.h"
#include "platform/regular_file.h"
#include "platform/safe_file.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <array>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <functional>
#include <sys/resource.h>
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

QByteArray Content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

/// Runs `work` in a process of its own and returns its result, or -1 when the process was killed.
int InProcess(const std::function<int()> &work)
{
    const pid_t child = fork();
    if (child == 0) {
        _exit(work());
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// No file can grow beyond `bytes`: writing fails as on a full disk.
void LimitFiles(rlim_t bytes)
{
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit = {bytes, bytes};
    setrlimit(RLIMIT_FSIZE, &limit);
}

/// Gives up the rights of the superuser, who may write anywhere.
void BecomeNobody()
{
    constexpr uid_t Nobody = 65534;
    if (geteuid() == 0 && (setgid(Nobody) != 0 || setuid(Nobody) != 0)) {
        _exit(100);
    }
}

const QByteArray Old(5000, 'o');
const QByteArray New(20000, 'n');

}

class SafeFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void fullDisk();
    void closedFolder();
    void linksAndDevices();
    void accessStays();
    void overwrittenInPlace();
    void names();
    void strayFilesGo();

private:
    QString Path(const char *name) const { return m_folder->filePath(QString::fromUtf8(name)); }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

void SafeFileTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath(QStringLiteral("list.gls"));
    QVERIFY(Save(m_path, Old));
    // Whoever the tests run as, others may reach the folder.
    QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7777));
    QFile::setPermissions(m_path, QFile::Permissions(0x6666));
}

void SafeFileTest::fullDisk()
{
    for (const int room : {0, 4096, 19999}) {
        QCOMPARE(InProcess([&] {
            LimitFiles(rlim_t(room));
            return Save(m_path, New) ? 1 : 0;
        }),
            0);
        QCOMPARE(Content(m_path), Old);
    }
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

void SafeFileTest::closedFolder()
{
    const QTemporaryDir backups;
    QFile::setPermissions(backups.path(), QFile::Permissions(0x7777));
    QFile::setPermissions(m_folder->path(), QFile::Permissions(0x5555));
    const auto save = [&](const QByteArray &content, int room) {
        return InProcess([&] {
            BecomeNobody();
            if (room >= 0) {
                LimitFiles(rlim_t(room));
            }
            return Save(m_path, content, backups.path()) ? 1 : 0;
        });
    };
    QCOMPARE(save(New, 10000), 0); // Overwritten in part, and put back.
    QCOMPARE(Content(m_path), Old);
    QCOMPARE(save(New.first(12000), 8000), 0); // Also where it would fit a buffer.
    QCOMPARE(Content(m_path), Old);
    QCOMPARE(save(New, -1), 1);
    QCOMPARE(Content(m_path), New);
    QCOMPARE(save("short", -1), 1);
    QCOMPARE(Content(m_path), QByteArray("short"));
    QVERIFY(QDir(backups.path()).entryList(QDir::Files | QDir::Hidden).isEmpty());
    QCOMPARE(InProcess([&] {
        BecomeNobody();
        return Save(m_path, New) ? 1 : 0; // Not without a place for the backup.
    }),
        0);
    QCOMPARE(Content(m_path), QByteArray("short"));
    const QString fresh = m_folder->filePath(QStringLiteral("new.gls"));
    QCOMPARE(InProcess([&] {
        BecomeNobody();
        return Save(fresh, New) ? 1 : 0;
    }),
        0);
    QVERIFY(!QFile::exists(fresh));
    QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7777));
    QFile::setPermissions(m_path, QFile::Permissions(0x4444)); // Read-only, where a new file may be made.
    QCOMPARE(save(New, -1), 0);
    QCOMPARE(Content(m_path), QByteArray("short"));
}

void SafeFileTest::linksAndDevices()
{
    const QString link = m_folder->filePath(QStringLiteral("link.gls"));
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

void SafeFileTest::accessStays()
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
    QCOMPARE(::setxattr(m_folder->path().toUtf8().constData(), "system.posix_acl_default", access.constData(),
                 size_t(access.size()), 0),
        0);
    QVERIFY(Save(m_path, Old, m_folder->path()));
    QCOMPARE(::getxattr(path.constData(), accessName, value.data(), 100), -1);
}

void SafeFileTest::overwrittenInPlace()
{
    const QString other = Path("other name.gls");
    QCOMPARE(::link(m_path.toUtf8().constData(), other.toUtf8().constData()), 0);
    const QTemporaryDir backups;
    QVERIFY(Save(m_path, New, backups.filePath(QStringLiteral("made when needed"))));
    QCOMPARE(Content(other), New);
    QVERIFY(QFile::remove(other));
    if (geteuid() == 0) {
        // Another user's file, which may be changed but not given away.
        QFile::setPermissions(backups.path(), QFile::Permissions(0x7777));
        QCOMPARE(InProcess([&] {
            BecomeNobody();
            return Save(m_path, Old, backups.path()) ? 1 : 0;
        }),
            1);
        struct stat status = {};
        QVERIFY(::stat(m_path.toUtf8().constData(), &status) == 0 && status.st_uid == 0);
        QCOMPARE(Content(m_path), Old);
    }
    QVERIFY(QDir(backups.path()).entryList(QDir::Files | QDir::Hidden).isEmpty());
}

void SafeFileTest::names()
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

void SafeFileTest::strayFilesGo()
{
    const auto make = [this](const char *name, int hours) {
        const QByteArray path = Path(name).toUtf8();
        QFile file(Path(name));
        const timespec time = {::time(nullptr) - hours * 3600L, 0};
        const std::array times = {time, time};
        return file.open(QIODevice::WriteOnly) && ::utimensat(AT_FDCWD, path.constData(), times.data(), 0) == 0;
    };
    const QStringList stay = {QStringLiteral(".ordelin-0123456789abcdeX.tmp"),
        QStringLiteral(".ordelin-0123456789abcdef0.tmp"), QStringLiteral(".ordelin-1111111111111111.tmp"),
        QStringLiteral("ordelin-0123456789abcdef.tmp")};
    QVERIFY(make(".ordelin-0123456789abcdef.tmp", 25) && make(".ordelin-0123456789abcdeX.tmp", 25));
    QVERIFY(make(".ordelin-0123456789abcdef0.tmp", 25) && make("ordelin-0123456789abcdef.tmp", 25));
    QVERIFY(make(".ordelin-1111111111111111.tmp", 23)); // Perhaps of a program that is saving now.
    QVERIFY(Save(m_path, New));
    QCOMPARE(QDir(m_folder->path())
                 .entryList(
                     {QStringLiteral("*ordelin-*")}, QDir::Files | QDir::Hidden, QDir::Name | QDir::LocaleAware)
                 .size(),
        stay.size());
    for (const QString &name : stay) {
        QVERIFY2(QFile::exists(m_folder->filePath(name)), qPrintable(name));
    }
}

QTEST_APPLESS_MAIN(SafeFileTest)
#include "safe_file_test.moc"

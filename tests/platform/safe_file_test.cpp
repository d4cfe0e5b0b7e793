// SPDX-License-Identifier: MIT
#include "platform/safe_file.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <functional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

bool Save(const QString &path, const QByteArray &content)
{
    CSafeFile file;
    if (!file.Open(path) || file.Device().write(content) != content.size()) {
        return false;
    }
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
    void readOnlyFile();
    void killedWhileSaving();
    void linksAndDevices();

private:
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
    for (const int room : {0, 1, 4096, 19999}) {
        const int result = InProcess([&] {
            LimitFiles(rlim_t(room));
            return Save(m_path, New) ? 1 : 0;
        });
        QCOMPARE(result, 0);
        QCOMPARE(Content(m_path), Old);
    }
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).size(), 1);
    QVERIFY(Save(m_path, New));
    QCOMPARE(Content(m_path), New);
}

void SafeFileTest::closedFolder()
{
    QFile::setPermissions(m_folder->path(), QFile::Permissions(0x5555));
    const auto save = [&](const QByteArray &content, int room) {
        return InProcess([&] {
            BecomeNobody();
            if (room >= 0) {
                LimitFiles(rlim_t(room));
            }
            return Save(m_path, content) ? 1 : 0;
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
    QVERIFY(QDir::temp().entryList({QStringLiteral("*-list.gls")}, QDir::Files).isEmpty());
    const QString fresh = m_folder->filePath(QStringLiteral("new.gls"));
    QCOMPARE(InProcess([&] {
        BecomeNobody();
        return Save(fresh, New) ? 1 : 0;
    }),
        0);
    QVERIFY(!QFile::exists(fresh));
    QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7777));
}

void SafeFileTest::readOnlyFile()
{
    QFile::setPermissions(m_path, QFile::Permissions(0x4444));
    QCOMPARE(InProcess([&] {
        BecomeNobody();
        return Save(m_path, New) ? 1 : 0;
    }),
        0);
    QCOMPARE(Content(m_path), Old);
}

void SafeFileTest::killedWhileSaving()
{
    const QByteArray large(4000000, 'n');
    for (int round = 0; round < 40; ++round) {
        const pid_t child = fork();
        if (child == 0) {
            for (;;) {
                Save(m_path, large);
            }
        }
        usleep(useconds_t(200 + round * 350));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        const QByteArray content = Content(m_path);
        QVERIFY(content == Old || content == large);
    }
}

void SafeFileTest::linksAndDevices()
{
    const QString link = m_folder->filePath(QStringLiteral("link.gls"));
    QVERIFY(QFile::link(m_path, link));
    QVERIFY(Save(link, New));
    QCOMPARE(QFile::symLinkTarget(link), m_path);
    QCOMPARE(Content(m_path), New);
    QVERIFY(!Save(m_folder->path(), New));
    QVERIFY(!Save(QStringLiteral("/dev/null"), New)); // It would become a file of that name.
}

QTEST_APPLESS_MAIN(SafeFileTest)
#include "safe_file_test.moc"

// SPDX-License-Identifier: MIT
#include "platform/opener.h"

#include <QTemporaryDir>
#include <QTest>

class OpenerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsOfFailureAlone();
};

void OpenerTest::tellsOfFailureAlone()
{
    const QTemporaryDir folder;
    const QString mark = folder.filePath(QStringLiteral("mark"));
    const QString shell = QStringLiteral("/bin/sh");
    QStringList failed;
    const auto start = [&](const QString &program, const QString &script, QObject &context) {
        StartOpener(
            program, {QStringLiteral("-c"), script}, context, [&failed, script] { failed.append(script); });
    };
    QObject context;
    start(QStringLiteral("no-such-opener"), QStringLiteral("missing"), context);
    QVERIFY(failed.isEmpty()); // Not before the caller is ready.
    QTRY_COMPARE(failed, QStringList{QStringLiteral("missing")});
    start(shell, QStringLiteral("exit 3"), context);
    QTRY_COMPARE(failed.size(), 2);
    start(shell, QStringLiteral("kill $$"), context);
    QTRY_COMPARE(failed.size(), 3);
    {
        QObject gone;
        start(shell, QStringLiteral("exit 4"), gone);
    }
    start(shell, QStringLiteral("touch '%1'").arg(mark), context);
    QTRY_VERIFY(QFile::exists(mark));
    start(shell, QStringLiteral("exit 5"), context); // The others have ended by then.
    QTRY_COMPARE(failed.size(), 4);
    QCOMPARE(failed.last(), QStringLiteral("exit 5"));
}

QTEST_GUILESS_MAIN(OpenerTest)
#include "opener_test.moc"

// SPDX-License-Identifier: MIT
#include "platform/opener.h"
#include "support/test.h"

#include <QTemporaryDir>

class OpenerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsOfFailureAlone()
    {
        const QTemporaryDir folder;
        const QString mark = folder.filePath(u"mark"_s);
        const QString shell = u"/bin/sh"_s;
        QStringList failed;
        const auto start = [&](const QString &program, const QString &script, QObject &context) {
            StartOpener(program, {u"-c"_s, script}, context, [&failed, script] { failed.append(script); });
        };
        QObject context;
        start(u"no-such-opener"_s, u"missing"_s, context);
        QVERIFY(failed.isEmpty()); // Not before the caller is ready.
        QTRY_COMPARE(failed, QStringList{u"missing"_s});
        start(shell, u"exit 3"_s, context);
        QTRY_COMPARE(failed.size(), 2);
        start(shell, u"kill $$"_s, context);
        QTRY_COMPARE(failed.size(), 3);
        {
            QObject gone;
            start(shell, u"exit 4"_s, gone);
        }
        start(shell, u"touch '%1'"_s.arg(mark), context);
        QTRY_VERIFY(QFile::exists(mark));
        start(shell, u"exit 5"_s, context); // The others have ended by then.
        QTRY_COMPARE(failed.size(), 4);
        QCOMPARE(failed.last(), u"exit 5"_s);
    }
};

QTEST_GUILESS_MAIN(OpenerTest)
#include "opener_test.moc"

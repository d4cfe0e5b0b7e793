// SPDX-License-Identifier: MIT
#include "shell/help.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

namespace {

void WriteFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

}

class HelpTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pageAndItsSections();
    void damagedPages();
    void filesOutside();
    void shippedHelps_data();
    void shippedHelps();
};

void HelpTest::pageAndItsSections()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("a.html"));
    WriteFile(file,
        "<html><head><title>T</title><link href='x.css'></head><body><nav><ul><li>Contents</ul></nav>"
        "<section id=\"first\"><h2>Ett &amp; <b>annat</b></h2><h3 id=\"part\">Å &lt;</h3></section>"
        "<h2>No name</h2><p>Text</p></body></html>");
    const std::optional<HelpPage> page = ReadHelp(file);
    QVERIFY(page);
    const QList<HelpSection> expected = {{QStringLiteral("first"), QStringLiteral("Ett & annat"), 2},
        {QStringLiteral("part"), QStringLiteral("Å <"), 3},
        {QStringLiteral("heading2"), QStringLiteral("No name"), 2}};
    QCOMPARE(page->sections, expected);
    for (const HelpSection &section : expected) {
        QVERIFY(page->html.contains(QStringLiteral("<a name=\"%1\"></a>").arg(section.anchor)));
    }
    QVERIFY(page->html.contains(QStringLiteral("<p>Text</p>")));
    QVERIFY(!page->html.contains(QStringLiteral("Contents")) && !page->html.contains(QStringLiteral("x.css")));
}

void HelpTest::damagedPages()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("a.html"));
    QVERIFY(!ReadHelp(file));
    QVERIFY(!ReadHelp(folder.path()));
    WriteFile(file, QByteArray("<h2>x").repeated(100'000) + "<nav><nav");
    const std::optional<HelpPage> page = ReadHelp(file);
    QVERIFY(page && page->sections.isEmpty());
    WriteFile(file, QByteArray(3 << 20, 'x'));
    QVERIFY(!ReadHelp(file));
}

void HelpTest::filesOutside()
{
    const QTemporaryDir folder;
    const QDir root(folder.path());
    QVERIFY(root.mkpath(QStringLiteral("help/pictures")));
    WriteFile(root.filePath(QStringLiteral("secret.png")), "x");
    WriteFile(root.filePath(QStringLiteral("help/pictures/a b.png")), "x");
    const QString page = root.filePath(QStringLiteral("help/a.html"));
    WriteFile(page, "x");
    QVERIFY(
        QFile::link(root.filePath(QStringLiteral("secret.png")), root.filePath(QStringLiteral("help/b.png"))));
    QCOMPARE(FileOfHelp(page, QUrl(QStringLiteral("pictures/a%20b.png"))),
        QFileInfo(root.filePath(QStringLiteral("help/pictures/a b.png"))).canonicalFilePath());
    const QString secret = root.filePath(QStringLiteral("secret.png"));
    for (const QString &address :
        {QStringLiteral("../secret.png"), QStringLiteral("b.png"), secret, QStringLiteral("file://") + secret,
            QStringLiteral("http://localhost/x.png"), QStringLiteral("missing.png")}) {
        QCOMPARE(FileOfHelp(page, QUrl(address)), QString());
    }
}

void HelpTest::shippedHelps_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("Swedish") << "se.html";
    QTest::newRow("English") << "en.html";
}

void HelpTest::shippedHelps()
{
    QFETCH(QString, name);
    const QString file = QStringLiteral(ORDELIN_SOURCE_DIR "/help/") + name;
    const std::optional<HelpPage> page = ReadHelp(file);
    QVERIFY(page);
    QStringList anchors;
    for (const HelpSection &section : page->sections) {
        anchors.append(section.anchor);
    }
    // Those that the program opens.
    QVERIFY(anchors.contains(QStringLiteral("quick")) && anchors.contains(QStringLiteral("quizzes")));
    QCOMPARE(anchors.removeDuplicates(), 0);
    static const QRegularExpression link(QStringLiteral("(href|src)=\"(#?)([^\"]*)\""));
    for (QRegularExpressionMatchIterator links = link.globalMatch(page->html); links.hasNext();) {
        const QRegularExpressionMatch match = links.next();
        const QString target = match.captured(3);
        QVERIFY2(
            match.captured(2).isEmpty() ? !FileOfHelp(file, QUrl(target)).isEmpty() : anchors.contains(target),
            qPrintable(target));
    }
}

QTEST_GUILESS_MAIN(HelpTest)
#include "help_test.moc"

// SPDX-License-Identifier: MIT
#include "shell/help.h"
#include "support/files.h"

#include <QRegularExpression>
#include <QUrl>

class HelpTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pageAndItsSections()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(u"a.html"_s);
        WriteFile(file,
            "<html><head><title>T</title><link href='x.css'></head><body><nav><ul><li>Contents</ul></nav>"
            "<section id=\"first\"><h2>Ett &amp; <b>annat</b></h2><h3 id=\"part\">Å &lt;</h3></section>"
            "<h2>No name</h2><p>Text</p></body></html>");
        const std::optional<HelpPage> page = ReadHelp(file);
        QVERIFY(page);
        const QList<HelpSection> expected = {
            {u"first"_s, u"Ett & annat"_s, 2}, {u"part"_s, u"Å <"_s, 3}, {u"heading2"_s, u"No name"_s, 2}};
        QCOMPARE(page->sections, expected);
        for (const HelpSection &section : expected) {
            QVERIFY(page->html.contains(u"<a name=\"%1\"></a>"_s.arg(section.anchor)));
        }
        QVERIFY(page->html.contains(u"<p>Text</p>"_s));
        QVERIFY(!page->html.contains(u"Contents"_s) && !page->html.contains(u"x.css"_s));
    }

    void damagedPages()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(u"a.html"_s);
        QVERIFY(!ReadHelp(file) && !ReadHelp(folder.path()));
        WriteFile(file, QByteArray("<h2>x").repeated(100'000) + "<nav><nav");
        const std::optional<HelpPage> page = ReadHelp(file);
        QVERIFY(page && page->sections.isEmpty());
        WriteFile(file, QByteArray(3 << 20, 'x'));
        QVERIFY(!ReadHelp(file));
    }

    void filesOutside()
    {
        const QTemporaryDir folder;
        const QDir root(folder.path());
        const QString secret = WriteFile(root.filePath(u"secret.png"_s), "x");
        const QString picture = WriteFile(root.filePath(u"help/pictures/a b.png"_s), "x");
        const QString page = WriteFile(root.filePath(u"help/a.html"_s), "x");
        QVERIFY(QFile::link(secret, root.filePath(u"help/b.png"_s)));
        QCOMPARE(FileOfHelp(page, QUrl(u"pictures/a%20b.png"_s)), QFileInfo(picture).canonicalFilePath());
        for (const QString &address : {u"../secret.png"_s, u"b.png"_s, secret, u"file://"_s + secret,
                 u"http://localhost/x.png"_s, u"missing.png"_s}) {
            QCOMPARE(FileOfHelp(page, QUrl(address)), QString());
        }
    }

    void shippedHelps()
    {
        for (const char *name : {"se.html", "en.html"}) {
            const QString file = QStringLiteral(ORDELIN_SOURCE_DIR "/help/") + QLatin1StringView(name);
            const std::optional<HelpPage> page = ReadHelp(file);
            QVERIFY(page);
            QStringList anchors;
            for (const HelpSection &section : page->sections) {
                anchors.append(section.anchor);
            }
            // Those that the program opens.
            for (const char *opened :
                {"quick", "quizzes", "tables", "import", "preview", "export", "list-dictionary"}) {
                QVERIFY2(anchors.contains(QLatin1StringView(opened)), opened);
            }
            QCOMPARE(anchors.removeDuplicates(), 0);
            static const QRegularExpression link(u"(href|src)=\"(#?)([^\"]*)\""_s);
            for (QRegularExpressionMatchIterator links = link.globalMatch(page->html); links.hasNext();) {
                const QRegularExpressionMatch match = links.next();
                const QString target = match.captured(3);
                QVERIFY2(match.captured(2).isEmpty() ? !FileOfHelp(file, QUrl(target)).isEmpty()
                                                     : anchors.contains(target),
                    qPrintable(target));
            }
        }
    }
};

QTEST_GUILESS_MAIN(HelpTest)
#include "help_test.moc"

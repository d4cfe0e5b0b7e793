// SPDX-License-Identifier: MIT
#include "resources/texts.h"
#include "shell/file_association.h"
#include "shell/text_numbers.h"
#include "support/scripted_prompt.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

#include <memory>

namespace {

QByteArray Content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

}

class FileAssociationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void onlyYesGoesOn();
    void programWithUnusualPath();
    void namedByLanguageModule();
    void unwritableFiles();

private:
    bool Associate(PromptAnswer answer, const QString &programPath = QStringLiteral("/usr/bin/ordelin"));
    QStringList Files() const;
    QString Path(const QString &name) const { return m_folder->filePath(name); }

    CTexts m_texts;
    CScriptedPrompt m_prompt;
    std::unique_ptr<QTemporaryDir> m_folder;
    QStringList m_tools;
};

void FileAssociationTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_prompt.numbers.clear();
    m_tools.clear();
}

bool FileAssociationTest::Associate(PromptAnswer answer, const QString &programPath)
{
    m_prompt.answers = {answer};
    return AssociateGlossaryFiles(programPath, m_folder->path(), m_texts, m_prompt,
        [this](const QString &program, const QStringList &arguments) {
            m_tools.append(program + u' ' + arguments.join(u' '));
            return false; // No desktop has all of them.
        });
}

QStringList FileAssociationTest::Files() const
{
    QStringList files;
    QDirIterator all(m_folder->path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (all.hasNext()) {
        files.append(QDir(m_folder->path()).relativeFilePath(all.next()));
    }
    files.sort();
    return files;
}

void FileAssociationTest::onlyYesGoesOn()
{
    for (const PromptAnswer answer : {PromptAnswer::No, PromptAnswer::Cancel}) {
        QVERIFY(!Associate(answer));
    }
    QCOMPARE(Files(), QStringList());
    QCOMPARE(m_tools, QStringList());
    QCOMPARE(m_prompt.numbers, QList<int>({Text::ReallyAssociate, Text::ReallyAssociate}));
}

void FileAssociationTest::programWithUnusualPath()
{
    QVERIFY(Associate(PromptAnswer::Yes, QStringLiteral(R"(/opt/my "own" $HOME/100% å\b`c/ordelin)")));

    QCOMPARE(Files(),
        QStringList({QStringLiteral("applications/workshops.ornbury.ordelin.desktop"),
            QStringLiteral("icons/hicolor/16x16/apps/workshops.ornbury.ordelin.svg"),
            QStringLiteral("icons/hicolor/scalable/apps/workshops.ornbury.ordelin.svg"),
            QStringLiteral("icons/hicolor/scalable/mimetypes/application-x-ordelin.svg"),
            QStringLiteral("mime/packages/ordelin.xml")}));
    const QList<QByteArray> entry =
        Content(Path(QStringLiteral("applications/workshops.ornbury.ordelin.desktop"))).split('\n');
    QVERIFY(entry.contains(R"(Exec=env "/opt/my \\"own\\" \\$HOME/100%% å\\\\b\\`c/ordelin" %f)"));
    QVERIFY(entry.contains("MimeType=application/x-ordelin;"));
    QVERIFY(Content(Path(QStringLiteral("icons/hicolor/scalable/apps/workshops.ornbury.ordelin.svg")))
                .startsWith("<svg "));

    const QString folder = m_folder->path();
    QCOMPARE(m_tools,
        QStringList({QStringLiteral("update-mime-database ") + folder + QStringLiteral("/mime"),
            QStringLiteral("update-desktop-database ") + folder + QStringLiteral("/applications"),
            QStringLiteral("xdg-mime default workshops.ornbury.ordelin.desktop application/x-ordelin")}));
    QCOMPARE(m_prompt.numbers, QList<int>({Text::ReallyAssociate, Text::Associated}));
}

void FileAssociationTest::namedByLanguageModule()
{
    QVERIFY(m_texts.LoadModule("Ordelin-språkmodul\n63201=Words & <more>\n"));
    QVERIFY(Associate(PromptAnswer::Yes));
    QXmlStreamReader xml(Content(Path(QStringLiteral("mime/packages/ordelin.xml"))));
    QString type;
    QStringList names;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("mime-type")) {
            type = xml.attributes().value(QLatin1String("type")).toString();
        } else if (xml.name() == QLatin1String("comment") && type == QLatin1String("application/x-ordelin")) {
            names.append(xml.readElementText());
        }
    }
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QCOMPARE(names, QStringList({QStringLiteral("Words & <more>")}));
}

void FileAssociationTest::unwritableFiles()
{
    // A file stands where a folder should be: the first one stops, a later one goes unnoticed.
    QFile inTheWay(Path(QStringLiteral("mime")));
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    QVERIFY(Associate(PromptAnswer::Yes));
    QCOMPARE(m_tools.size(), 3);
    QCOMPARE(m_prompt.numbers, QList<int>({Text::ReallyAssociate, Text::Associated}));

    init();
    inTheWay.close();
    inTheWay.setFileName(Path(QStringLiteral("applications")));
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    QVERIFY(!Associate(PromptAnswer::Yes));
    QCOMPARE(Files(), QStringList({QStringLiteral("applications")}));
    QCOMPARE(m_tools, QStringList());
    QCOMPARE(m_prompt.numbers, QList<int>({Text::ReallyAssociate, Text::CannotAssociate}));
}

QTEST_APPLESS_MAIN(FileAssociationTest)
#include "file_association_test.moc"

// SPDX-License-Identifier: MIT
#include "resources/texts.h"
#include "shell/file_association.h"
#include "support/files.h"
#include "support/scripted_prompt.h"

#include <QDirIterator>

#include <memory>

class FileAssociationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_prompt.numbers.clear();
        m_tools.clear();
    }

    void programWithUnusualPath()
    {
        QVERIFY(!Associate(PromptAnswer::No) && !Associate(PromptAnswer::Cancel));
        QVERIFY(Files().isEmpty() && m_tools.isEmpty());
        QVERIFY(m_texts.LoadModule("Ordelin-språkmodul\n63201=Words & <more>\n"));
        QVERIFY(Associate(PromptAnswer::Yes, QStringLiteral(R"(/opt/my "own" $HOME/100% å\b`c/ordelin)")));

        QCOMPARE(Files(),
            QStringList({u"applications/workshops.ornbury.ordelin.desktop"_s,
                u"icons/hicolor/16x16/apps/workshops.ornbury.ordelin.svg"_s,
                u"icons/hicolor/scalable/apps/workshops.ornbury.ordelin.svg"_s,
                u"icons/hicolor/scalable/mimetypes/application-x-ordelin.svg"_s,
                u"mime/packages/ordelin.xml"_s}));
        const QList<QByteArray> entry =
            Content(Path(u"applications/workshops.ornbury.ordelin.desktop"_s)).split('\n');
        QVERIFY(entry.contains(R"(Exec=env "/opt/my \\"own\\" \\$HOME/100%% å\\\\b\\`c/ordelin" %f)"));
        QVERIFY(entry.contains("MimeType=application/x-ordelin;"));
        QVERIFY(Content(Path(u"mime/packages/ordelin.xml"_s))
                    .contains("<comment>Words &amp; &lt;more&gt;</comment>"));
        QVERIFY(
            Content(Path(u"icons/hicolor/scalable/apps/workshops.ornbury.ordelin.svg"_s)).startsWith("<svg "));

        const QString folder = m_folder->path();
        QCOMPARE(m_tools,
            QStringList({u"update-mime-database "_s + folder + u"/mime"_s,
                u"update-desktop-database "_s + folder + u"/applications"_s,
                u"xdg-mime default workshops.ornbury.ordelin.desktop application/x-ordelin"_s}));
        QCOMPARE(m_prompt.numbers.mid(2), QList<int>({Text::ReallyAssociate, Text::Associated}));
    }

    void unwritableFiles()
    {
        // A file stands where a folder should be: the first one stops, a later one goes unnoticed.
        WriteFile(Path(u"mime"_s), {});
        QVERIFY(Associate(PromptAnswer::Yes));
        QCOMPARE(m_tools.size(), 3);
        QCOMPARE(m_prompt.numbers, QList<int>({Text::ReallyAssociate, Text::Associated}));

        init();
        WriteFile(Path(u"applications"_s), {});
        QVERIFY(!Associate(PromptAnswer::Yes));
        QCOMPARE(Files(), QStringList({u"applications"_s}));
        QCOMPARE(m_tools, QStringList());
        QCOMPARE(m_prompt.numbers, QList<int>({Text::ReallyAssociate, Text::CannotAssociate}));
    }

private:
    bool Associate(PromptAnswer answer, const QString &programPath = u"/usr/bin/ordelin"_s)
    {
        m_prompt.answers = {answer};
        return AssociateGlossaryFiles(programPath, m_folder->path(), m_texts, m_prompt,
            [this](const QString &program, const QStringList &arguments) {
                m_tools.append(program + u' ' + arguments.join(u' '));
                return false; // No desktop has all of them.
            });
    }

    QStringList Files() const
    {
        QStringList files;
        QDirIterator all(m_folder->path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (all.hasNext()) {
            files.append(QDir(m_folder->path()).relativeFilePath(all.next()));
        }
        files.sort();
        return files;
    }
    QString Path(const QString &name) const { return m_folder->filePath(name); }

    CTexts m_texts;
    CScriptedPrompt m_prompt;
    std::unique_ptr<QTemporaryDir> m_folder;
    QStringList m_tools;
};

QTEST_APPLESS_MAIN(FileAssociationTest)
#include "file_association_test.moc"

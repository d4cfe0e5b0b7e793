// SPDX-License-Identifier: MIT
#include "shell/file_association.h"

#include "platform/safe_file.h"
#include "platform/user_prompt.h"
#include "resources/texts.h"
#include "shell/text_numbers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

/// The desktop entry, named as the program's description and its icon are.
QString DesktopFile()
{
    return QStringLiteral("workshops.ornbury.ordelin.desktop");
}

/// What the packages install as well.
QByteArray Packaged(const QString &name)
{
    QFile file(QStringLiteral(":/association/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A path as the program of a desktop entry's Exec line.
QString ExecProgram(const QString &path)
{
    QString argument;
    for (const QChar unit : path) {
        if (QStringView(u"\"`$\\").contains(unit)) {
            argument += u'\\';
        }
        argument += unit;
        if (unit == u'%') {
            argument += unit; // Alone it would begin a field such as %f.
        }
    }
    // The line as a whole is a string of the file, and those have escapes of their own.
    argument.replace(u'\\', QStringLiteral("\\\\"));
    argument.replace(u'\n', QStringLiteral("\\n"));
    argument.replace(u'\r', QStringLiteral("\\r"));
    argument.replace(u'\t', QStringLiteral("\\t"));
    // Some desktops look for the file of the first argument before they turn "%%" back.
    const QString first = path.contains(u'%') ? QStringLiteral("env ") : QString();
    return first + u'"' + argument + u'"';
}

/// The desktop finds a program by its name only where the system looks for programs, so the path is written
/// out.
QByteArray DesktopEntry(const QString &programPath)
{
    QString entry = QString::fromUtf8(Packaged(DesktopFile()));
    entry.replace(
        QStringLiteral("\nExec=ordelin "), QStringLiteral("\nExec=") + ExecProgram(programPath) + u' ');
    return entry.toUtf8();
}

/// The type is called as the program calls it, in whichever language that runs.
QByteArray FileType(const QString &name)
{
    static const QRegularExpression names(
        QStringLiteral("<comment>[^<]*</comment>(\\s*<comment xml:lang=[^<]*</comment>)*"));
    QString types = QString::fromUtf8(Packaged(QStringLiteral("ordelin-mime.xml")));
    const QRegularExpressionMatch first = names.match(types);
    types.replace(first.capturedStart(), first.capturedLength(),
        QStringLiteral("<comment>") + name.toHtmlEscaped() + QStringLiteral("</comment>"));
    return types.toUtf8();
}

bool Write(const QString &path, const QByteArray &content)
{
    CSafeFile file;
    return QDir().mkpath(QFileInfo(path).path()) && file.Open(path)
        && file.Device().write(content) == content.size() && file.Commit();
}

}

bool AssociateGlossaryFiles(const QString &programPath, const QString &dataFolder, const CTexts &texts,
    IUserPrompt &prompt, const DesktopTool &run)
{
    if (!prompt.Confirm(texts.Prompt(Text::ReallyAssociate), PromptIcon::Information,
            PromptButtons::YesNoCancel, PromptAnswer::Yes)) {
        return false;
    }
    Q_INIT_RESOURCE(association); // A static library's resources are linked only when asked for.
    const auto write = [&dataFolder](const QString &path, const QByteArray &content) {
        return Write(dataFolder + u'/' + path, content);
    };
    if (!write(QStringLiteral("applications/") + DesktopFile(), DesktopEntry(programPath))) {
        prompt.Tell(texts.Prompt(Text::CannotAssociate), PromptIcon::Warning);
        return false;
    }
    // Kept: the user is told of no failure from here on. Without type or icon the program can still be chosen
    // by hand, and desktops differ in which of the tools they have.
    write(QStringLiteral("mime/packages/ordelin.xml"), FileType(texts.Get(Text::GlossaryFileType)));
    write(QStringLiteral("icons/hicolor/16x16/apps/workshops.ornbury.ordelin.svg"),
        Packaged(QStringLiteral("workshops.ornbury.ordelin-16.svg")));
    write(QStringLiteral("icons/hicolor/scalable/apps/workshops.ornbury.ordelin.svg"),
        Packaged(QStringLiteral("workshops.ornbury.ordelin.svg")));
    write(QStringLiteral("icons/hicolor/scalable/mimetypes/application-x-ordelin.svg"),
        Packaged(QStringLiteral("application-x-ordelin.svg")));
    run(QStringLiteral("update-mime-database"), {dataFolder + QStringLiteral("/mime")});
    run(QStringLiteral("update-desktop-database"), {dataFolder + QStringLiteral("/applications")});
    run(QStringLiteral("xdg-mime"),
        {QStringLiteral("default"), DesktopFile(), QStringLiteral("application/x-ordelin")});
    prompt.Tell(texts.Prompt(Text::Associated), PromptIcon::Information);
    return true;
}

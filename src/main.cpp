// SPDX-License-Identifier: MIT
#include "resources/text_numbers.h"
#include "resources/texts.h"
#include "settings/app_settings.h"
#include "settings/ini_store.h"
#include "shell/command_line.h"
#include "shell/start_up.h"
#include "shell/ui/ordelin_app.h"

#include <QFile>

#include <cstdio>

namespace {

bool Write(std::FILE *stream, const QByteArray &text)
{
    return std::fwrite(text.constData(), 1, size_t(text.size()), stream) == size_t(text.size())
        && std::fflush(stream) == 0;
}

/// Answers a command line that opens no window, or is wrong; that needs no display. Returns the exit code.
int Answer(const CommandLine &commandLine)
{
    CTexts texts;
    // In the user's language; nothing is stored.
    const CIniStore store(CIniStore::UserPath(), CAppSettings::RootPath());
    const QString misc = CAppSettings::RootPath() + QStringLiteral("\\misc");
    MiscSettings settings;
    settings.languageFile = store.Read(misc, QStringLiteral("languageFile")).value_or(QString());
    settings.plugInUse = store.Read(misc, QStringLiteral("plugInUse")) == QStringLiteral("1");
    static_cast<void>(loadLanguage(settings, texts));

    const QString usage = texts.Get(Text::Usage);
    if (commandLine.error != 0) {
        const QString message = texts.Fill(commandLine.error, {commandLine.wrongArgument});
        Write(stderr, (message + usage).toLocal8Bit());
        return 2;
    }
    QByteArray text;
    switch (commandLine.action) {
    case CommandLine::Action::ShowVersion:
        text = "Ordelin " ORDELIN_VERSION "\n";
        break;
    case CommandLine::Action::ExportStrings:
        text = CTexts::OwnModule();
        break;
    default:
        text = (usage + texts.Get(Text::CommandLineHelp)).toLocal8Bit();
    }
    return Write(stdout, text) ? 0 : 1;
}

}

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.append(QFile::decodeName(argv[i]));
    }
    const CommandLine commandLine = parseCommandLine(arguments);
    if (commandLine.error != 0 || commandLine.action != CommandLine::Action::Run) {
        return Answer(commandLine);
    }
    COrdelinApp app(argc, argv);
    return app.Run(commandLine.file);
}

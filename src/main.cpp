// SPDX-License-Identifier: MIT
#include "platform/data_folders.h"
#include "platform/file_name.h"
#include "resources/texts.h"
#include "settings/app_settings.h"
#include "settings/ini_store.h"
#include "shell/command_line.h"
#include "shell/start_up.h"
#include "shell/ui/ordelin_app.h"

#include <cstdio>

namespace {

/// Answers without a window, which needs no display. Returns the exit code.
int Answer(int &argc, char **argv, const CommandLine &commandLine)
{
    const QCoreApplication app(argc, argv);
    CTexts texts;
    const CIniStore store(CIniStore::UserPath(), CAppSettings::RootPath());
    LoadLanguage(LoadLanguageSettings(store, CAppSettings::RootPath(), texts,
                     DataFolders(QCoreApplication::applicationDirPath()), QLocale::system()),
        texts);
    const CommandLineAnswer answer = AnswerCommandLine(commandLine, texts, QStringLiteral(ORDELIN_VERSION));
    std::FILE *const stream = answer.isError ? stderr : stdout;
    const bool written = std::fwrite(answer.text.constData(), 1, size_t(answer.text.size()), stream)
            == size_t(answer.text.size())
        && std::fflush(stream) == 0;
    return written ? answer.exitCode : 1;
}

}

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.append(DecodeFileName(argv[i]));
    }
    const CommandLine commandLine = ParseCommandLine(arguments);
    if (commandLine.error != 0 || commandLine.action != CommandLine::Action::Run) {
        return Answer(argc, argv, commandLine);
    }
    COrdelinApp app(argc, argv);
    return app.Run(commandLine.file, commandLine.newList);
}

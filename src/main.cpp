// SPDX-License-Identifier: MIT
#include "commandline/text_numbers.h"
#include "commandline/verb.h"
#include "platform/data_folders.h"
#include "platform/file_name.h"
#include "resources/texts.h"
#include "settings/app_settings.h"
#include "settings/ini_store.h"
#include "shell/command_line.h"
#include "shell/start_up.h"
#include "window_part.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QLibrary>
#include <QLocale>

#include <cstdio>

namespace {

/// What runs without a window need of the user's settings.
struct Surroundings
{
    CTexts texts = {};
    CIniStore store = CIniStore(CIniStore::UserPath(), CAppSettings::RootPath());

    Surroundings(int &argc, char **argv)
    {
        const QCoreApplication app(argc, argv); // Knows where the program is.
        const QStringList folders = DataFolders(QCoreApplication::applicationDirPath());
        const MiscSettings settings =
            LoadLanguageSettings(store, CAppSettings::RootPath(), texts, folders, QLocale::system());
        LoadLanguage(settings, texts);
    }
};

/// Null when the module is missing, which is told.
const WindowPart *LoadWindowPart()
{
    const QString program = QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))).path();
    // Beside the program in the tree of a build.
    QString error;
    for (const char *const folder : {"", ORDELIN_MODULE_FOLDER "/"}) {
        QLibrary module(program + u'/' + QLatin1StringView(folder) + QStringLiteral("ordelin_window.so"));
        const QFunctionPointer function = module.resolve(WindowPartFunction);
        if (function != nullptr) {
            return reinterpret_cast<decltype(&OrdelinWindowPart)>(function)();
        }
        error = module.errorString();
    }
    std::fprintf(stderr, "ordelin: %s\n", error.toLocal8Bit().constData());
    return nullptr;
}

/// Answers without a window, which needs no display. Returns the exit code.
int Answer(const Surroundings &surroundings, const CommandLine &commandLine)
{
    const CTexts &texts = surroundings.texts;
    CommandLineAnswer answer = AnswerCommandLine(commandLine, texts, QStringLiteral(ORDELIN_VERSION));
    if (commandLine.error == 0 && commandLine.action == CommandLine::Action::ShowHelp) {
        answer.text += (texts.Get(Text::VerbsTitle) + VerbList(texts)).toLocal8Bit();
    }
    std::FILE *const stream = answer.isError ? stderr : stdout;
    const bool written = std::fwrite(answer.text.constData(), 1, size_t(answer.text.size()), stream)
            == size_t(answer.text.size())
        && std::fflush(stream) == 0;
    return written ? answer.exitCode : 1;
}

/// Runs a verb, which opens no window. Returns the exit code.
int Run(const Verb &verb, const QStringList &arguments, const Surroundings &surroundings)
{
    CConsole console;
    return int(RunVerb(verb, arguments,
        {.texts = surroundings.texts,
            .console = console,
            .settings = surroundings.store,
            .today = QDate::currentDate(),
            .seed = quint32(QDateTime::currentMSecsSinceEpoch()),
            .writePdf = [&texts = surroundings.texts](const TablePdfOrder &order) {
                const WindowPart *const windows = LoadWindowPart();
                return windows != nullptr && windows->writePdf(order, texts);
            }}));
}

}

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.append(DecodeFileName(argv[i]));
    }
    if (const Verb *const verb = FindVerb(arguments.value(0)); verb != nullptr) {
        return Run(*verb, arguments.sliced(1), Surroundings(argc, argv));
    }
    const CommandLine commandLine = ParseCommandLine(arguments);
    if (commandLine.error != 0 || commandLine.action != CommandLine::Action::Run) {
        return Answer(Surroundings(argc, argv), commandLine);
    }
    const WindowPart *const windows = LoadWindowPart();
    return windows == nullptr ? 1 : windows->run(argc, argv, commandLine.file, commandLine.newList);
}

// SPDX-License-Identifier: MIT
#include "commandline/quiz_verb.h"

#include "commandline/console_prompt.h"
#include "commandline/list_files.h"
#include "commandline/options.h"
#include "commandline/read_only_store.h"
#include "commandline/terminal_quiz.h"
#include "document/win32_doc.h"
#include "platform/file_chooser.h"
#include "platform/random.h"
#include "quiz/duplicate_question.h"
#include "quiz/quiz_result.h"
#include "resources/texts.h"
#include "settings/app_settings.h"

namespace {

constexpr Option Options[] = {
    {.name = "ask", .kind = Option::Kind::Choice, .help = Text::OptionAsk, .choices = "1|2"},
    {.name = "order",
        .kind = Option::Kind::Choice,
        .help = Text::OptionOrder,
        .choices = "list|backwards|random"},
    {.name = "rounds", .kind = Option::Kind::Number, .help = Text::OptionRounds, .lowest = 1, .highest = 100},
    {.name = "words", .kind = Option::Kind::Number, .help = Text::OptionWords, .lowest = 1, .highest = 1000},
    {.name = "flagged",
        .kind = Option::Kind::Choice,
        .help = Text::OptionAskFlagged,
        .choices = "never|always|sometimes"},
    {.name = "wrong", .kind = Option::Kind::Choice, .help = Text::OptionWrong, .choices = "leave|later|again"},
    {.name = "check",
        .kind = Option::Kind::Choice,
        .help = Text::OptionCharacters,
        .choices = "all|letters|letters-and-blanks"},
    {.name = "ignore-case", .kind = Option::Kind::Flag, .help = Text::OptionIgnoreCase},
    {.name = "save-flags", .kind = Option::Kind::Flag, .help = Text::OptionSaveFlags}, SeedOption};

/// Nobody is asked for files here.
class CNoFileChooser : public IFileChooser
{
public:
    QString ChooseFileToOpen(const FileChoice & /*choice*/) override { return {}; }
    QStringList ChooseFilesToOpen(const FileChoice & /*choice*/) override { return {}; }
    QString ChooseFolder(const FileChoice & /*choice*/) override { return {}; }
    ChosenFile ChooseFileToSave(const FileChoice & /*choice*/) override { return {}; }
};

/// The user's own settings, but for what the command line says.
QuizSettings QuizSettingsOf(const QuizSettings &own, const CArguments &arguments)
{
    QuizSettings settings = own;
    const auto take = [&arguments]<class Enumeration>(const char *option, Enumeration &setting) {
        setting = Enumeration(arguments.Choice(option).value_or(int(setting)));
    };
    take("ask", settings.showLanguage);
    take("order", settings.order);
    take("flagged", settings.includeFlaggedWords);
    take("wrong", settings.requiz);
    take("check", settings.characterCheck);
    settings.quizNumber = arguments.Number("rounds").value_or(settings.quizNumber);
    settings.ignoreCase = settings.ignoreCase || arguments.Has("ignore-case");
    if (const auto words = arguments.Number("words")) {
        settings.wordsToQuiz = WordsToQuiz::FixedNumber;
        settings.numberOfWords = *words;
    }
    return settings;
}

/// The words that were not always answered right, and a summary.
void PrintResult(CQuizResult &result, CConsole &console, const CTexts &texts)
{
    const CQuizSession &session = result.session();
    const CQuizResultModel &model = result.model();
    console.Print(u'\n' + texts.Get(Text::TerminalResult) + u'\n');
    for (int position = 0; position < session.wordCount(); ++position) {
        if (session.wasWrong(position)) {
            QStringList cells;
            for (int column = 0; column < model.columnCount(); ++column) {
                cells.append(
                    ShownInLine(model.index(position, column).data(CQuizResultModel::StoredRole).toString()));
            }
            console.Print(
                texts.Fill(Text::TerminalResultRow, cells, FilledFor::Storage) + QStringLiteral("\n"));
        }
    }
    console.Print(result.summary() + u'\n');
    if (const QString line = result.unanswerableLine(); !line.isEmpty()) {
        console.Print(line + u'\n');
    }
}

/// Writes the flags, and answers that were accepted, to the list's file.
VerbResult SaveFlags(CQuizResult &result, CWin32Doc &document, const VerbServices &services)
{
    services.console.Print(result.flagLine() + u'\n');
    result.applyFlags();
    if (!document.IsModified()) {
        return VerbResult::Done;
    }
    if (document.IsChangedOutside()) {
        Tell(services, Text::ChangedMeanwhile, {document.Path()});
        return VerbResult::Failed;
    }
    return document.OnSaveDocument(document.Path()) ? VerbResult::Done : VerbResult::Failed;
}

}

std::span<const Option> QuizOptions()
{
    return Options;
}

VerbResult RunQuiz(const CArguments &arguments, const VerbServices &services)
{
    CReadOnlyStore store(services.settings);
    CAppSettings own(store, services.texts);
    own.Exchange(true);
    const QuizSettings settings = QuizSettingsOf(own.quiz, arguments);
    CConsolePrompt prompt(services.console, services.texts);
    CWin32Doc document({services.texts, own.editor, prompt, [&services] { return services.today; },
        [](const QString &, const QStringList &, const std::function<void()> &) {}, BackupFolder()});
    if (!document.OpenDocument(arguments.Files().constFirst())) {
        return VerbResult::Failed;
    }
    const bool savesFlags = arguments.Has("save-flags");
    if (savesFlags && document.Path().isEmpty()) {
        Tell(services, Text::NoFileForFlags, arguments.Files());
        return VerbResult::Failed;
    }
    if (services.console.IsInputATerminal()
        && !mayStartQuiz(document.List(), own.editor, services.texts, prompt)) {
        return VerbResult::Found;
    }
    CRandom random(quint32(arguments.Number("seed").value_or(int(services.seed))));
    const auto session = std::make_shared<CQuizSession>(
        document, settings, random, std::span<const int>(), quizKindRow(QuizKind::Standard).answers);
    if (session->roundSize() == 0) {
        Tell(services, Text::NoWordsToAsk);
        return VerbResult::Found;
    }
    CStandardQuizForm form(
        {session, settings, {own.quizChallenge, own.fallingWord}, services.texts, random, SteadyClock});
    CTerminalQuiz(form, services.console, services.texts).Run();

    CNoFileChooser chooser;
    CQuizResult result(*session, {services.texts, prompt, chooser, own.result}, ResultMode::AfterQuiz);
    if (session->totalRight() + session->totalWrong() > 0) {
        PrintResult(result, services.console, services.texts);
    }
    return savesFlags ? SaveFlags(result, document, services) : VerbResult::Done;
}

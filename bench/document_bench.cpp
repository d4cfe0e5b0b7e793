// SPDX-License-Identifier: MIT
#include "document/win32_doc.h"
#include "fileformats/word_list_file.h"
#include "generator.h"
#include "measure.h"
#include "platform/user_prompt.h"
#include "resources/texts.h"
#include "settings/editor_settings.h"

#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <cstdio>
#include <cstdlib>

// Undo steps, opening and saving through the document. Aimed at with a million entries: a snapshot below 20 ms
// and 20 MB, undo and redo below 1 ms.

namespace {

/// Nothing is asked here, so a question is a failure.
class CNoPrompt : public IUserPrompt
{
public:
    void Tell(const PromptText & /*text*/, PromptIcon /*icon*/) override { std::exit(1); }
    PromptAnswer Ask(const PromptText & /*text*/, PromptIcon /*icon*/, PromptButtons /*buttons*/,
        PromptAnswer /*defaultAnswer*/) override
    {
        std::exit(1);
    }
};

void Print(const char *name, const Measurement &measured)
{
    std::printf("  %-42s %10.3f ms %9.2f MB\n", name, measured.seconds * 1e3, double(measured.peakBytes) / 1e6);
}

void Run(int count)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("list.gls"));
    CWordList generated = GenerateList(count, 1);
    if (!WriteWordListFile(generated, path)) {
        std::exit(1);
    }
    generated = {};
    const CTexts texts;
    EditorSettings settings;
    constexpr int Steps = 100;
    settings.undoSize = Steps;
    CNoPrompt prompt;
    CWin32Doc document({texts, settings, prompt, [] { return QDate(2004, 5, 6); }, {}});

    std::printf("%d entries\n", count);
    const int repeats = count >= 1000000 ? 2 : 10;
    const auto nothing = [] {};
    Print("open", Measure(repeats, nothing, [&] { document.OpenDocument(path); }));
    Print("save", Measure(repeats, nothing, [&] { document.OnSaveDocument(path); }));
    Print("nothing changed", Measure(10, nothing, [&] { document.Change([](CWordList &) {}); }));
    const auto toggle = [&](int entry) {
        document.Change([entry](CWordList &list) { list.SetFlags(0, std::array{entry}, FlagMode::Toggle); });
    };
    Print("a change of one entry", Measure(10, nothing, [&] { toggle(count / 2); }));
    Print("all entries inserted before the first", Measure(1, nothing, [&] {
        document.Change([copy = document.List()](CWordList &list) { list.InsertAll(copy, 0); });
    }));
    document.Undo();
    Print("undo", Measure(10, nothing, [&] { document.Undo(); }));
    Print("redo", Measure(10, nothing, [&] { document.Redo(); }));
    const qint64 before = MemoryInUse();
    for (int step = 0; step < Steps; ++step) {
        toggle(int(qint64(step) * count / Steps));
    }
    std::printf("  %-42s %13s %9.3f MB\n", "memory of a state with a change of its own", "",
        double(MemoryInUse() - before) / 1e6 / Steps);
    Print("a change with a full history", Measure(10, nothing, [&] { toggle(count / 2); }));
    std::printf("\n");
}

}

int main(int argc, char *argv[])
{
    if (argc == 1) {
        for (const int count : {1000, 10000, 100000, 1000000}) {
            Run(count);
        }
    }
    for (int i = 1; i < argc; ++i) {
        Run(std::max(std::atoi(argv[i]), 1));
    }
    return 0;
}

// SPDX-License-Identifier: MIT
#include "window_bench.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

void CYesPrompt::Tell(const PromptText & /*text*/, PromptIcon /*icon*/) { }

PromptAnswer CYesPrompt::Ask(
    const PromptText & /*text*/, PromptIcon /*icon*/, PromptButtons /*buttons*/, PromptAnswer /*defaultAnswer*/)
{
    return PromptAnswer::Yes;
}

void Settle()
{
    QCoreApplication::processEvents();
}

void Print(const char *name, const Measurement &measured)
{
    std::printf("  %-46s %10.3f ms\n", name, measured.seconds * 1e3);
}

int MeasureSizes(
    int argc, char *argv[], const std::vector<int> &usualSizes, const std::function<void(int)> &run)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    for (int i = 1; i < argc; ++i) {
        run(std::atoi(argv[i]));
    }
    if (argc == 1) {
        for (const int size : usualSizes) {
            run(size);
        }
    }
    return 0;
}

// SPDX-License-Identifier: MIT
#include "commandline/arrange_verbs.h"
#include "commandline/check_verb.h"
#include "commandline/convert_verb.h"
#include "commandline/info_verb.h"
#include "commandline/merge_verb.h"
#include "commandline/quiz_verb.h"
#include "commandline/table_verb.h"
#include "commandline/text_numbers.h"
#include "commandline/verb.h"
#include "commandline/words_verb.h"

#include <array>

std::span<const Verb> Verbs()
{
    static const std::array verbs = {
        Verb{.name = "info", .help = Text::HelpInfo, .options = InfoOptions(), .run = RunInfo},
        Verb{.name = "convert",
            .help = Text::HelpConvert,
            .options = ConvertOptions(),
            .run = RunConvert,
            .fewestFiles = 2,
            .mostFiles = 2},
        Verb{.name = "merge",
            .help = Text::HelpMerge,
            .options = MergeOptions(),
            .run = RunMerge,
            .fewestFiles = 2},
        Verb{.name = "check", .help = Text::HelpCheck, .options = CheckOptions(), .run = RunCheck},
        Verb{.name = "sort",
            .help = Text::HelpSort,
            .options = SortVerbOptions(),
            .run = RunSort,
            .fewestFiles = 2,
            .mostFiles = 2},
        Verb{.name = "shuffle",
            .help = Text::HelpShuffle,
            .options = ShuffleOptions(),
            .run = RunShuffle,
            .fewestFiles = 2,
            .mostFiles = 2},
        Verb{.name = "select",
            .help = Text::HelpSelect,
            .options = SelectOptions(),
            .run = RunSelect,
            .fewestFiles = 2,
            .mostFiles = 2},
        Verb{.name = "table",
            .help = Text::HelpTable,
            .options = TableOptions(),
            .run = RunTable,
            .mostFiles = 2},
        Verb{.name = "quiz", .help = Text::HelpQuiz, .options = QuizOptions(), .run = RunQuiz, .mostFiles = 1},
        Verb{.name = "words",
            .help = Text::HelpWords,
            .options = WordsOptions(),
            .run = RunWords,
            .fewestFiles = 2},
    };
    return verbs;
}

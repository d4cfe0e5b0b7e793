// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/answer_check.h"

#include <QStringList>

/// The file of a sound that may be named without a folder: it is then looked for in `sounds` below the data
/// folders, and in these themselves. Empty when there is none.
QString findSound(const QString &name, const QStringList &dataFolders);

/// The file to play after an answer; empty for silence.
QString answerSound(AnswerVerdict verdict, const QuizSettings &settings, const QStringList &dataFolders);

// SPDX-License-Identifier: MIT
#include "quiz/answer_sound.h"

#include "platform/data_folders.h"
#include "settings/quiz_settings.h"

#include <QFileInfo>

QString findSound(const QString &name, const QStringList &dataFolders)
{
    if (QFileInfo(name).isAbsolute()) {
        return QFileInfo(name).isFile() ? name : QString();
    }
    const QString shipped = FindDataFile(dataFolders, QStringLiteral("sounds/") + name);
    return shipped.isEmpty() ? FindDataFile(dataFolders, name) : shipped;
}

QString answerSound(AnswerVerdict verdict, const QuizSettings &settings, const QStringList &dataFolders)
{
    const bool wrong = verdict == AnswerVerdict::Wrong;
    const bool play = wrong ? settings.playWrong : settings.playRight;
    return play ? findSound(wrong ? settings.wrongSoundFile : settings.rightSoundFile, dataFolders) : QString();
}

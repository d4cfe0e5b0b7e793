// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A word list that comes with the program.
struct SampleList
{
    QString path;
    /// What its comments begin with, up to a colon or full stop. As it stands in the file.
    QString title;
    QString languages = {};
};

/// The glossary files in the folder "samples" of each data folder, in the order of their titles. Of files of
/// one name the first is taken; what can't be read, or is too large for a sample, is left out.
QList<SampleList> FindSamples(const QStringList &dataFolders);

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// How lists are made, shown and saved. Empty texts stand for the ones of the string table.
struct EditorSettings
{
    QString standardComments;
    QString standardFilename;
    QString language1;
    QString language2;
    QString author;
    bool showWordNumber = true;
    bool showNotes = true;
    bool alwaysSaveInUnicode = false;
};

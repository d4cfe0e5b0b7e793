// SPDX-License-Identifier: MIT
#pragma once

#include "settings/sections.h"

/// How lists are made, shown, edited and saved.
struct EditorSettings
{
    QString standardComments;
    QString standardFilename;
    QString language1;
    QString language2;
    QString author;
    bool duplicateVarning; // Kept: misspelt, since it is the name of the stored value.
    bool duplicateCheckBeforeQuiz;
    bool lang1first;
    bool sortNewWords;
    bool newwordflag;
    bool synonymWarning;
    int duplilcateCheckBeforeQuizMax; // Kept: misspelt like the one above.
    bool showWordNumber;
    bool showNotes;
    bool showEditFields;
    bool quickedit;
    bool alwaysSaveInUnicode;
    int undoSize;

    EditorSettings() { SetFactoryValues(*this); }

    template<class Visitor>
    void Visit(Visitor &visit)
    {
        visit.NumberedText("standardComments", standardComments, 61018);
        visit.NumberedText("standardFilename", standardFilename, 61017);
        visit.NumberedText("language1", language1, 61000);
        visit.NumberedText("language2", language2, 61001);
        visit.Text("author", author, "");
        visit.Flag("duplicateVarning", duplicateVarning, true);
        visit.Flag("duplicateCheckBeforeQuiz", duplicateCheckBeforeQuiz, true);
        visit.Flag("lang1first", lang1first, true);
        visit.Flag("sortNewWords", sortNewWords, false);
        visit.Flag("newwordflag", newwordflag, false);
        visit.Flag("synonymWarning", synonymWarning, true);
        // Kept: the upper bound below the lower one refuses every stored value, so a start always gives 1000.
        visit.Integer("duplilcateCheckBeforeQuizMax", duplilcateCheckBeforeQuizMax, 0, -1, 1000);
        visit.Flag("showWordNumber", showWordNumber, true);
        visit.Flag("showNotes", showNotes, true);
        visit.Flag("showEditFields", showEditFields, false);
        visit.Flag("quickedit", quickedit, true);
        visit.Flag("alwaysSaveInUnicode", alwaysSaveInUnicode, false);
        visit.Integer("undoSize", undoSize, 0, 1000, 10);
    }
};

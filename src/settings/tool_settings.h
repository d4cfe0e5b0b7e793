// SPDX-License-Identifier: MIT
#pragma once

#include "settings/sections.h"

#include <limits>

/// The filters of the import.
struct ImportSettings
{
    bool useFilter;
    bool ignoreDuplicates;
    bool useMiniValue;
    bool useMaxValue;
    int miniValue;
    int maxValue;
    int languageMatch;
    QString lang1;
    QString lang2;
    QString author;
    QString comments;

    ImportSettings() { SetFactoryValues(*this); }

    template<class Visitor>
    void Visit(Visitor &visit)
    {
        constexpr int Most = std::numeric_limits<int>::max();
        visit.Flag("useFilter", useFilter, false);
        visit.Flag("ignoreDuplicates", ignoreDuplicates, true);
        visit.Flag("useMiniValue", useMiniValue, false);
        visit.Flag("useMaxValue", useMaxValue, false);
        visit.Integer("miniValue", miniValue, 1, Most, 1);
        visit.Integer("maxValue", maxValue, 1, Most, 50);
        visit.Integer("languageMatch", languageMatch, 0, 2, 2);
        visit.Text("lang1", lang1, "");
        visit.Text("lang2", lang2, "");
        visit.Text("author", author, "");
        visit.Text("comments", comments, "");
    }
};

/// The table wizard; colours are 0x00BBGGRR.
struct CreateTableSettings
{
    int useSelected;
    QString columns;
    bool doReplaceAsterisc; // Kept: misspelt, since it is the name of the stored value.
    QString replaceAsterisc; // Kept: misspelt like the one above.
    bool htmlFormat;
    bool fullTableWidth;
    int makeBold;
    int border;
    bool setTableBackground;
    bool specialDoChange;
    int specialChange;
    quint32 colorSpecial;
    quint32 colorTableBackground;
    quint32 colorText;
    quint32 colorBackground;
    bool showTitle;
    QString title;
    bool deleteComments;
    int italicComments;

    CreateTableSettings() { SetFactoryValues(*this); }

    template<class Visitor>
    void Visit(Visitor &visit)
    {
        visit.Integer("useSelected", useSelected, 0, 1, 0);
        visit.Text("columns", columns, "0\n1\n2");
        visit.Flag("doReplaceAsterisc", doReplaceAsterisc, true);
        visit.NumberedText("replaceAsterisc", replaceAsterisc, 62601);
        visit.Flag("htmlFormat", htmlFormat, true);
        visit.Flag("fullTableWidth", fullTableWidth, false);
        // Kept: the list offers a sixth choice, which lasts for the run only.
        visit.Integer("makeBold", makeBold, 0, 5, 0);
        visit.Integer("border", border, 0, 30, 0);
        visit.Flag("setTableBackground", setTableBackground, false);
        visit.Flag("specialDoChange", specialDoChange, false);
        visit.Integer("specialChange", specialChange, 0, 4, 0);
        visit.Color("colorSpecial", colorSpecial, 0x0099CCFF);
        visit.Color("colorTableBackground", colorTableBackground, 0x00FFCC99);
        visit.Color("colorText", colorText, 0x00000000);
        visit.Color("colorBackground", colorBackground, 0x00FFFFFF);
        visit.Flag("showTitle", showTitle, false);
        visit.Text("title", title, "");
        visit.Flag("deleteComments", deleteComments, false);
        visit.Integer("italicComments", italicComments, 0, 2, 2);
    }
};

/// The search of folders for glossary files.
struct FileSearchSettings
{
    bool useMiniValue;
    bool useMaxValue;
    bool searchSubDirectories;
    bool useFilter;
    int miniValue;
    int maxValue;
    QString lang1;
    QString lang2;
    QString author;
    QString comments;
    QString path;
    QString filetype;

    FileSearchSettings() { SetFactoryValues(*this); }

    template<class Visitor>
    void Visit(Visitor &visit)
    {
        constexpr int Most = std::numeric_limits<int>::max();
        visit.Flag("useMiniValue", useMiniValue, false);
        visit.Flag("useMaxValue", useMaxValue, false);
        visit.Flag("searchSubDirectories", searchSubDirectories, true);
        visit.Flag("useFilter", useFilter, false);
        visit.Integer("miniValue", miniValue, 1, Most, 1);
        visit.Integer("maxValue", maxValue, 1, Most, 50);
        visit.Text("lang1", lang1, "");
        visit.Text("lang2", lang2, "");
        visit.Text("author", author, "");
        visit.Text("comments", comments, "");
        visit.Text("path", path, "");
        visit.Text("filetype", filetype, "");
    }
};

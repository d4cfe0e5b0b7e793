// SPDX-License-Identifier: MIT
#pragma once

#include "settings/sections.h"

/// Start-up, language and font.
struct MiscSettings
{
    bool autoOpen;
    /// Written when the program closes: whether the list had a file then.
    bool openOnClosing;
    QString languageFile;
    bool plugInUse = true;
    bool useOtherFont;
    bool useOtherFontQuizOnly;
    int fontSize; ///< In points.
    QString fontName;

    MiscSettings() { SetFactoryValues(*this); }

    template<class Visitor>
    void Visit(Visitor &visit)
    {
        constexpr int None = CRegistrySettings::NO_BOUND;
        visit.Flag("autoOpen", autoOpen, true);
        visit.Flag("openOnClosing", openOnClosing, false);
        visit.KeptText("languageFile", languageFile);
        visit.KeptFlag("plugInUse", plugInUse);
        visit.Flag("useOtherFont", useOtherFont, false);
        visit.Flag("useOtherFontQuizOnly", useOtherFontQuizOnly, false);
        visit.Integer("fontSize", fontSize, 1, None, 11);
        visit.Text("fontName", fontName, "Tahoma");
    }
};

/// The special-character window; its rectangle is in screen coordinates, -1 for never placed.
struct EasyKeySettings
{
    QStringList keys;
    int top;
    int bottom;
    int left;
    int right;
    int selected;
    int subset;
    int dock;

    EasyKeySettings() { SetFactoryValues(*this); }

    template<class Visitor>
    void Visit(Visitor &visit)
    {
        constexpr int None = CRegistrySettings::NO_BOUND;
        visit.List("keys", keys);
        visit.Integer("top", top, None, None, -1);
        visit.Integer("bottom", bottom, None, None, -1);
        visit.Integer("left", left, None, None, -1);
        visit.Integer("right", right, None, None, -1);
        visit.Integer("selected", selected, None, None, -1);
        visit.Integer("subset", subset, 0, 5, 0);
        visit.Integer("dock", dock, 0, 2, 2);
    }
};

/// The options of sorting.
struct ArrangeSettings
{
    bool descending;
    bool groupFlagged;
    bool byLength;

    ArrangeSettings() { SetFactoryValues(*this); }

    template<class Visitor>
    void Visit(Visitor &visit)
    {
        visit.Flag("descending", descending, true);
        visit.Flag("groupFlagged", groupFlagged, true);
        visit.Flag("byLength", byLength, false);
    }
};

/// The find window.
struct FindSettings
{
    int language;
    int flag1;
    int flag2;
    bool advancedSearch;
    bool searchDown;
    bool matchCase;
    bool wildcard;
    bool wholeWord;
    bool dictionary;

    FindSettings() { SetFactoryValues(*this); }

    template<class Visitor>
    void Visit(Visitor &visit)
    {
        visit.Integer("language", language, -1, 2, -1);
        visit.Integer("flag1", flag1, 0, 2, 0);
        visit.Integer("flag2", flag2, 0, 2, 0);
        visit.Flag("advancedSearch", advancedSearch, false);
        visit.Flag("searchDown", searchDown, true);
        visit.Flag("matchCase", matchCase, false);
        visit.Flag("wildcard", wildcard, false);
        visit.Flag("wholeWord", wholeWord, false);
        visit.Flag("dictionary", dictionary, false);
    }
};

// SPDX-License-Identifier: MIT
#include "fileformats/column_names.h"

#include <QString>

#include <algorithm>
#include <array>
#include <span>

namespace {

using Names = std::span<const QStringView>;

// Also the codes of languages, alone or with a country behind them.
constexpr auto Languages = std::to_array<QStringView>({u"svenska", u"swedish", u"schwedisch", u"sv", u"swe",
    u"engelska", u"english", u"englisch", u"en", u"eng", u"tyska", u"german", u"deutsch", u"de", u"ger", u"deu",
    u"franska", u"french", u"français", u"französisch", u"fr", u"fra", u"spanska", u"spanish", u"español",
    u"spanisch", u"es", u"spa", u"italienska", u"italian", u"italiano", u"italienisch", u"it", u"ita",
    u"portugisiska", u"portuguese", u"português", u"pt", u"latin", u"latein", u"la", u"ryska", u"russian",
    u"русский", u"russisch", u"ru", u"finska", u"finnish", u"suomi", u"fi", u"norska", u"norwegian", u"norsk",
    u"nb", u"no", u"danska", u"danish", u"dansk", u"da", u"isländska", u"icelandic", u"is", u"nederländska",
    u"dutch", u"nederlands", u"nl", u"polska", u"polish", u"polski", u"pl", u"grekiska", u"greek", u"ελληνικά",
    u"el", u"japanska", u"japanese", u"日本語", u"ja", u"kinesiska", u"chinese", u"中文", u"zh", u"koreanska",
    u"korean", u"한국어", u"ko", u"arabiska", u"arabic", u"العربية", u"ar", u"turkiska", u"turkish", u"türkçe",
    u"tr", u"ukrainska", u"ukrainian", u"українська", u"uk", u"tjeckiska", u"czech", u"čeština", u"cs",
    u"ungerska", u"hungarian", u"magyar", u"hu", u"hebreiska", u"hebrew", u"he", u"persiska", u"persian", u"fa",
    u"esperanto", u"eo", u"samiska", u"sami", u"se", u"estniska", u"estonian", u"et", u"thailändska", u"thai"});
constexpr auto Terms = std::to_array<QStringView>({u"term", u"term 1", u"term 2", u"term1", u"term2", u"glosa",
    u"ord", u"word", u"words", u"wort", u"vocabulary", u"vokabel", u"front", u"back", u"framsida", u"baksida",
    u"question", u"answer", u"fråga", u"svar", u"definition", u"meaning", u"betydelse", u"translation",
    u"översättning", u"übersetzung", u"språk 1", u"språk 2", u"language 1", u"language 2", u"expression",
    u"uttryck", u"source", u"target", u"foreign", u"native"});
constexpr auto Notes =
    std::to_array<QStringView>({u"note", u"notes", u"anteckning", u"anteckningar", u"comment", u"comments",
        u"kommentar", u"kommentarer", u"example", u"exempel", u"remark", u"anmerkung", u"hint", u"beispiel"});
constexpr auto Flags1 =
    std::to_array<QStringView>({u"flag", u"flagga", u"flag 1", u"flagga 1", u"flag1", u"learnt"});
constexpr auto Flags2 = std::to_array<QStringView>({u"flag 2", u"flagga 2", u"flag2"});
constexpr auto Others = std::to_array<QStringView>({u"id", u"nr", u"no.", u"number", u"nummer", u"#", u"tag",
    u"tags", u"taggar", u"category", u"kategori", u"lesson", u"lektion", u"chapter", u"kapitel", u"date",
    u"datum", u"level", u"nivå", u"audio", u"image", u"bild", u"ljud", u"score", u"deck", u"type"});

bool Holds(Names names, QStringView name)
{
    return std::ranges::any_of(
        names, [name](QStringView known) { return name.compare(known, Qt::CaseInsensitive) == 0; });
}

/// "en-GB" or "pt_BR"
bool IsCodeWithCountry(QStringView name)
{
    return name.size() == 5 && (name[2] == u'-' || name[2] == u'_') && name[3].isUpper() && name[4].isUpper()
        && Holds(Languages, name.first(2));
}

}

bool IsLanguageName(QStringView name)
{
    constexpr qsizetype LongestCode = 3; // Such are words too: "he", "is", "no".
    return name.trimmed().size() > LongestCode && Holds(Languages, name.trimmed());
}

std::optional<TextColumn> ColumnOfName(QStringView name)
{
    const QStringView text = name.trimmed();
    if (Holds(Languages, text) || IsCodeWithCountry(text) || Holds(Terms, text)) {
        return TextColumn::Term1;
    }
    if (Holds(Notes, text)) {
        return TextColumn::Note;
    }
    if (Holds(Flags1, text)) {
        return TextColumn::Flag1;
    }
    if (Holds(Flags2, text)) {
        return TextColumn::Flag2;
    }
    return Holds(Others, text) ? std::optional(TextColumn::LeftOut) : std::nullopt;
}

QString NameOfColumn(TextColumn column)
{
    switch (column) {
    case TextColumn::Term1:
        return QStringLiteral("term 1");
    case TextColumn::Term2:
        return QStringLiteral("term 2");
    case TextColumn::Note:
        return QStringLiteral("note");
    case TextColumn::Flag1:
        return QStringLiteral("flag 1");
    case TextColumn::Flag2:
        return QStringLiteral("flag 2");
    case TextColumn::LeftOut:
        break;
    }
    return {};
}

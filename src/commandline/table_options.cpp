// SPDX-License-Identifier: MIT
#include "commandline/table_options.h"

#include "commandline/options.h"
#include "commandline/table_pdf_order.h"
#include "commandline/table_verb.h"
#include "resources/texts.h"
#include "tools/table_cells.h"

#include <algorithm>

namespace {

constexpr Option Options[] = {
    {.name = "format", .kind = Option::Kind::Choice, .help = Text::OptionFormat, .choices = "html|text|pdf"},
    {.name = "columns", .kind = Option::Kind::Text, .help = Text::OptionColumns},
    {.name = "title", .kind = Option::Kind::Text, .help = Text::OptionTitle},
    {.name = "full-width", .kind = Option::Kind::Flag, .help = Text::OptionFullWidth},
    {.name = "border", .kind = Option::Kind::Number, .help = Text::OptionBorder, .lowest = 0, .highest = 30},
    {.name = "bold",
        .kind = Option::Kind::Choice,
        .help = Text::OptionBold,
        .choices = "flagged|not-flagged|all|number|term1|term2|none"},
    {.name = "special",
        .kind = Option::Kind::Choice,
        .help = Text::OptionSpecial,
        .choices = "flagged|not-flagged|number|term1|term2"},
    {.name = "special-color", .kind = Option::Kind::Color, .help = Text::OptionSpecialColor},
    {.name = "table-color", .kind = Option::Kind::Color, .help = Text::OptionTableColor},
    {.name = "page-color", .kind = Option::Kind::Color, .help = Text::OptionPageColor},
    {.name = "text-color", .kind = Option::Kind::Color, .help = Text::OptionTextColor},
    {.name = "comments",
        .kind = Option::Kind::Choice,
        .help = Text::OptionTableComments,
        .choices = "keep|italic|italic-in-parentheses|delete"},
    {.name = "alternatives", .kind = Option::Kind::Text, .help = Text::OptionTableAlternatives},
    {.name = "paper", .kind = Option::Kind::Choice, .help = Text::OptionPaper, .choices = PaperChoices},
    {.name = "landscape", .kind = Option::Kind::Flag, .help = Text::OptionLandscape}, FromOption, ForceOption};

constexpr int CommentsDeleted = 3; ///< Of the choices of "comments".

/// In the order of the codes of columns.
constexpr const char *Columns[] = {
    "number", "term1", "term2", "note", "empty-term1", "empty-term2", "empty-note"};

/// The stored form of columns with commas between their names; nothing when one is none.
std::optional<QString> ColumnsOf(const QString &names)
{
    QList<TableColumn> columns;
    for (const QString &name : names.split(u',')) {
        const auto *const found = std::ranges::find_if(
            Columns, [&name](const char *column) { return name == QLatin1StringView(column); });
        if (found == std::end(Columns)) {
            return std::nullopt;
        }
        columns.append(TableColumn(found - std::begin(Columns)));
    }
    return StoredColumns(columns);
}

/// Puts the factory texts, which are numbered, in their places.
class CFactoryTexts : public CFactoryValues
{
public:
    explicit CFactoryTexts(const CTexts &texts) : m_texts(texts) { }
    void NumberedText(const char * /*name*/, QString &value, int textNumber) override
    {
        value = m_texts.Get(textNumber);
    }

private:
    const CTexts &m_texts;
};

}

std::span<const Option> TableOptions()
{
    return Options;
}

std::optional<CreateTableSettings> TableSettingsOf(const CArguments &arguments, const VerbServices &services)
{
    CreateTableSettings settings;
    CFactoryTexts texts(services.texts);
    settings.Visit(texts);
    if (const auto names = arguments.Text("columns")) {
        const auto columns = ColumnsOf(*names);
        if (!columns) {
            Tell(services, Text::WrongValue, {*names, QStringLiteral("--columns")});
            return std::nullopt;
        }
        settings.columns = *columns;
    }
    settings.showTitle = arguments.Has("title");
    settings.title = arguments.Text("title").value_or(QString());
    settings.fullTableWidth = arguments.Has("full-width");
    settings.border = arguments.Number("border").value_or(settings.border);
    settings.makeBold = arguments.Choice("bold").value_or(settings.makeBold);
    settings.specialDoChange = arguments.Has("special");
    settings.specialChange = arguments.Choice("special").value_or(settings.specialChange);
    settings.colorSpecial = arguments.Color("special-color").value_or(settings.colorSpecial);
    settings.setTableBackground = arguments.Has("table-color");
    settings.colorTableBackground = arguments.Color("table-color").value_or(settings.colorTableBackground);
    settings.colorBackground = arguments.Color("page-color").value_or(settings.colorBackground);
    settings.colorText = arguments.Color("text-color").value_or(settings.colorText);
    settings.deleteComments = arguments.Choice("comments") == CommentsDeleted;
    if (const auto comments = arguments.Choice("comments"); comments && *comments != CommentsDeleted) {
        settings.italicComments = *comments;
    }
    if (const auto alternatives = arguments.Text("alternatives")) {
        settings.doReplaceAsterisc = true;
        settings.replaceAsterisc = *alternatives;
    }
    return settings;
}

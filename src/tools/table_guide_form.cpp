// SPDX-License-Identifier: MIT
#include "tools/table_guide_form.h"

#include "document/file_filters.h"
#include "document/win32_doc.h"
#include "platform/file_chooser.h"
#include "platform/file_name.h"
#include "platform/plain_text.h"
#include "platform/user_prompt.h"
#include "resources/texts.h"
#include "tools/text_numbers.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace {

/// A folder of so many characters or more leaves no room for the name of the page.
constexpr qsizetype LongestFolder = 1560;

}

CTableGuideForm::CTableGuideForm(const TableGuideServices &services, std::vector<int> selection)
    : m_services(services), m_selection(std::move(selection)), m_columns(services.options.columns)
{
}

QString CTableGuideForm::ColumnName(TableColumn column) const
{
    return Choices(Text::TableColumns).split(u'\n').value(qsizetype(column));
}

QString CTableGuideForm::Choices(int text) const
{
    const CWordList &list = m_services.document.List();
    const auto name = [&list](int language) { return ShownShort(OneLine(list.GetLanguage(language)), 60); };
    return FillPlaceholders(Texts().Get(text),
        {{QStringLiteral("%1"), name(0)}, {QStringLiteral("%2"), name(1)}}, FilledFor::Screen);
}

CTableCells CTableGuideForm::Cells() const
{
    return CTableCells(
        m_services.document.List(), m_selection, m_services.options, Texts(), m_services.today());
}

QString CTableGuideForm::Name() const
{
    const CreateTableSettings &options = m_services.options;
    return ShownShort(
        OneLine(options.showTitle && !options.title.isEmpty() ? options.title : m_services.document.Name()));
}

QString CTableGuideForm::PageFile() const
{
    if (m_services.pageFolder.isEmpty() || m_services.pageFolder.size() >= LongestFolder) {
        return {};
    }
    return QDir(m_services.pageFolder).filePath(QStringLiteral("ordelinTableTemp.html"));
}

std::unique_ptr<ITableWriter> CTableGuideForm::Writer(bool asPage) const
{
    CreateTableSettings options = m_services.options;
    options.htmlFormat = asPage;
    CTableCells cells(m_services.document.List(), m_selection, options, Texts(), m_services.today());
    return asPage ? MakeHtmlTableWriter(std::move(cells), Texts()) : MakeTextTableWriter(std::move(cells));
}

bool CTableGuideForm::Make(CTableMaker &maker) const
{
    const bool asPage = m_services.options.htmlFormat;
    const QString file = asPage ? PageFile() : QString();
    if (asPage && file.isEmpty()) {
        TellFailure(m_services.pageFolder);
        return false;
    }
    maker.Start(Writer(asPage), {.file = file, .inPrivateFolder = asPage});
    return true;
}

void CTableGuideForm::OpenPage(std::function<void()> failed) const
{
    m_services.openFile(PageFile(), std::move(failed));
}

std::optional<TableToSave> CTableGuideForm::AskWhereToSave() const
{
    // Page, text and text in Unicode; first the one that was made.
    constexpr qsizetype Page = 0;
    constexpr qsizetype UnicodeText = 2;
    QList<qsizetype> kinds = {0, 1, 2};
    if (!m_services.options.htmlFormat) {
        kinds = {1, 2, 0};
    }
    const QStringList names = FileFilters(Texts().Get(Text::TableFilters));
    FileChoice choice;
    choice.title = Texts().Get(Text::TableSaveTitle);
    choice.defaultSuffix =
        Texts().Get(m_services.options.htmlFormat ? Text::TablePageSuffix : Text::TableTextSuffix);
    choice.start = ProposedFile(choice.defaultSuffix);
    for (const qsizetype kind : std::as_const(kinds)) {
        choice.filters.append(names.value(kind));
    }
    const ChosenFile chosen = m_services.chooser.ChooseFileToSave(choice);
    if (chosen.path.isEmpty() || IsListsOwnFile(chosen.path)) {
        return std::nullopt;
    }
    const qsizetype kind = kinds.value(chosen.filter);
    return TableToSave{
        {.file = chosen.path,
            .encoding = kind == UnicodeText ? TextEncoding::Utf16LittleEndian : TextEncoding::Ansi},
        kind == Page};
}

void CTableGuideForm::Save(CTableMaker &maker, const TableToSave &table) const
{
    maker.Start(Writer(table.isPage), table.target);
}

QString CTableGuideForm::AskForPdf() const
{
    const QString suffix = QStringLiteral("pdf");
    const QString path = m_services.chooser
                             .ChooseFileToSave({.title = Texts().Get(Text::TablePdfTitle),
                                 .filters = FileFilters(Texts().Get(Text::TablePdfFilter)),
                                 .start = ProposedFile(suffix),
                                 .defaultSuffix = suffix})
                             .path;
    return path.isEmpty() || IsListsOwnFile(path) ? QString() : path;
}

void CTableGuideForm::TellFailure(const QString &file) const
{
    m_services.prompt.Tell(Texts().Prompt(Text::CannotSave, {ShownShort(file)}), PromptIcon::Warning);
}

void CTableGuideForm::TellLoss(const QString &file) const
{
    m_services.prompt.Tell(Texts().Prompt(Text::SavedWithoutCharacters, {file}), PromptIcon::Warning);
}

QString CTableGuideForm::ProposedFile(const QString &suffix) const
{
    const CWin32Doc &document = m_services.document;
    const QFileInfo file(document.Path());
    const bool named = !document.Path().isEmpty();
    const QString folder =
        named ? file.absolutePath() : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString base = named ? file.completeBaseName() : document.SuggestFileName();
    return QDir(folder).filePath(base + u'.' + suffix);
}

bool CTableGuideForm::IsListsOwnFile(const QString &file) const
{
    if (!IsSameFile(m_services.document.Path(), file)) {
        return false;
    }
    m_services.prompt.Tell(Texts().Prompt(Text::HoldsWholeList, {file}), PromptIcon::Warning);
    return true;
}

// SPDX-License-Identifier: MIT
#include "document/file_commands.h"

#include "document/export_form.h"
#include "document/file_filters.h"
#include "document/format_dialogs.h"
#include "document/pending_work.h"
#include "document/recent_files.h"
#include "document/text_numbers.h"
#include "document/win32_doc.h"
#include "fileformats/formats.h"
#include "platform/file_chooser.h"
#include "platform/file_name.h"
#include "platform/plain_text.h"
#include "platform/user_prompt.h"
#include "resources/texts.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>

namespace {

/// How much of a web address a message shows, in code units.
constexpr qsizetype MaxAddressShown = 300;

bool IsWebAddress(const QString &path)
{
    const QUrl url(path);
    return !url.scheme().isEmpty() && !url.isLocalFile() && path.contains(QStringLiteral("://"))
        && !FileExists(path);
}

/// That of the filter, unless the name says another.
const Format &ChosenFormat(const std::vector<const Format *> &formats, const ChosenFile &chosen)
{
    const Format &byFilter =
        *formats[size_t(std::clamp<qsizetype>(chosen.filter, 0, qsizetype(formats.size()) - 1))];
    const Format *const named = FindFormatForWriting(chosen.path);
    const QString suffix = QFileInfo(chosen.path).suffix().toLower();
    const bool fits =
        std::ranges::any_of(byFilter.suffixes, [&suffix](QLatin1StringView own) { return own == suffix; });
    return named == nullptr || fits ? byFilter : *named;
}

}

CFileCommands::CFileCommands(CWin32Doc &document, const CTexts &texts, IUserPrompt &prompt,
    IFileChooser &chooser, IFormatDialogs &formatDialogs, CRecentFiles &recent)
    : m_document(document), m_texts(texts), m_prompt(prompt), m_chooser(chooser),
      m_formatDialogs(formatDialogs), m_recent(recent)
{
}

void CFileCommands::StorePending()
{
    if (m_pending != nullptr) {
        m_pending->StoreWhole();
    }
}

bool CFileCommands::MayDiscard()
{
    StorePending();
    const bool hasRest = m_pending != nullptr && m_pending->HasRest();
    if (!m_document.IsModified() && !hasRest) {
        return true;
    }
    switch (m_prompt.Ask(m_texts.Prompt(Text::SaveChanges, {m_document.Name()}), PromptIcon::Warning,
        PromptButtons::YesNoCancel, PromptAnswer::Yes)) {
    case PromptAnswer::Yes:
        if (hasRest) {
            m_pending->StoreRest();
        }
        return Save();
    case PromptAnswer::No:
        return true;
    case PromptAnswer::Cancel:
        return false;
    }
    return false;
}

bool CFileCommands::New()
{
    if (!MayDiscard()) {
        return false;
    }
    m_document.OnNewDocument();
    return true;
}

bool CFileCommands::Open()
{
    if (!MayDiscard()) {
        return false;
    }
    const QString path = m_chooser.ChooseFileToOpen(
        {.title = m_texts.Get(Text::OpenTitle), .filters = OpenFilters(m_texts), .start = StartFolder()});
    if (path.isEmpty()) {
        return false;
    }
    return OpenNow(path);
}

bool CFileCommands::OpenFile(const QString &path)
{
    if (IsWebAddress(path)) {
        m_prompt.Tell(m_texts.Prompt(Text::OnlyFiles, {ShownShort(path, MaxAddressShown)}), PromptIcon::Error);
        return false;
    }
    return MayDiscard() && OpenNow(path);
}

bool CFileCommands::OpenRecent(const QString &path)
{
    if (!FileExists(path)) {
        m_recent.Remove(path);
        m_prompt.Tell(m_texts.Prompt(Text::CannotOpen, {path}), PromptIcon::Error);
        return false;
    }
    return OpenFile(path);
}

bool CFileCommands::OpenCopy(const QString &path)
{
    return MayDiscard() && m_document.OpenCopy(path);
}

bool CFileCommands::Reload()
{
    return OpenNow(m_document.Path());
}

bool CFileCommands::HasUnsaved() const
{
    return m_document.IsModified()
        || (m_pending != nullptr && !m_document.List().DifferenceTo(m_pending->ListWithAll()).IsNone());
}

bool CFileCommands::OpenNow(const QString &path)
{
    m_lastFolder = QFileInfo(AbsoluteFilePath(path)).path();
    CImportPreview preview;
    FormatReadOptions options;
    const Format *const format = RecogniseFile(path);
    // One that the preview refuses the document refuses too, and tells why.
    if (format != nullptr && format->id == FormatId::SeparatedText
        && preview.OpenFile(path) == ReadResult::Read) {
        if (!ChooseImport(preview)) {
            return false;
        }
        options = preview.ReadOptions();
    }
    if (!m_document.OpenDocument(path, options, preview.Losses())) {
        m_recent.Remove(AbsoluteFilePath(path));
        return false;
    }
    m_recent.Add(path);
    return true;
}

bool CFileCommands::ChooseImport(CImportPreview &preview)
{
    if (const auto before = m_importChoices.Of(m_lastFolder)) {
        preview.Adopt(*before);
    }
    if (!m_formatDialogs.ChooseImport(preview)) {
        return false;
    }
    m_importChoices.Remember(m_lastFolder, preview.Choices());
    return true;
}

bool CFileCommands::Save()
{
    return DoSave(m_document.Path(), true);
}

bool CFileCommands::SaveAs()
{
    return DoSave({}, true);
}

void CFileCommands::Send()
{
    StorePending();
    m_document.OnFileSendMail();
}

bool CFileCommands::DoSave(const QString &path, bool replace)
{
    StorePending();
    const auto [target, format] =
        path.isEmpty() ? ChooseTarget(replace) : Target{path, &FormatOf(FormatId::Glossary)};
    if (target.isEmpty()) {
        return false;
    }
    if (!format->holdsEverything) {
        return Export({target, format}) && !replace;
    }
    if (!replace) {
        return m_document.SaveCopy(target);
    }
    if (AbsoluteFilePath(target) == m_document.Path() && m_document.IsChangedOutside()) {
        switch (m_prompt.Ask(m_texts.Prompt(Text::OverwriteForeignChange, {m_document.Path()}),
            PromptIcon::Warning, PromptButtons::YesNoCancel, PromptAnswer::No)) {
        case PromptAnswer::Yes:
            break;
        case PromptAnswer::No:
            return SaveAs();
        case PromptAnswer::Cancel:
            return false;
        }
    }
    if (!m_document.OnSaveDocument(target)) {
        return false;
    }
    m_recent.Add(target);
    return true;
}

CFileCommands::Target CFileCommands::ChooseTarget(bool replace)
{
    const std::vector<const Format *> formats = FormatsToSave();
    const QString name =
        m_document.Path().isEmpty() ? m_document.SuggestFileName() + QStringLiteral(".gls") : m_document.Name();
    const ChosenFile chosen =
        m_chooser.ChooseFileToSave({.title = m_texts.Get(replace ? Text::SaveAsTitle : Text::SaveCopyTitle),
            .filters = FormatFilters(formats, m_texts),
            .start = QDir(StartFolder()).filePath(name),
            .defaultSuffix = QStringLiteral("gls")});
    if (chosen.path.isEmpty()) {
        return {};
    }
    m_lastFolder = QFileInfo(AbsoluteFilePath(chosen.path)).path();
    // The list's own file never becomes one that holds less.
    if (!m_document.Path().isEmpty() && IsSameFile(chosen.path, m_document.Path())) {
        return {chosen.path, &FormatOf(FormatId::Glossary)};
    }
    return {chosen.path, &ChosenFormat(formats, chosen)};
}

bool CFileCommands::Export(const Target &target)
{
    CExportForm form(m_document.List(), *target.format, target.path, m_texts);
    return m_formatDialogs.ChooseExport(form)
        && m_document.SaveCopyAs(target.path, *target.format, form.Options());
}

QString CFileCommands::StartFolder() const
{
    if (!m_document.Path().isEmpty()) {
        return QFileInfo(m_document.Path()).path();
    }
    return m_lastFolder.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                                  : m_lastFolder;
}

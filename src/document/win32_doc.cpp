// SPDX-License-Identifier: MIT
#include "document/win32_doc.h"

#include "document/list_placeholders.h"
#include "document/loss_texts.h"
#include "document/read_message.h"
#include "document/text_numbers.h"
#include "fileformats/formats.h"
#include "platform/file_name.h"
#include "platform/local_formats.h"
#include "platform/plain_text.h"
#include "platform/user_prompt.h"
#include "resources/texts.h"
#include "settings/editor_settings.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <array>

namespace {

/// A property as the user gives it: on one line, and nothing in it that can't be seen.
QString CleanProperty(const QString &text)
{
    QString clean = OneLine(text);
    std::replace_if(
        clean.begin(), clean.end(), [](QChar unit) { return unit < u' ' || unit == u'\x7F'; }, QChar(u' '));
    return clean;
}

/// Where the insertion point comes to stand: it keeps its place between the entries around it, and what is
/// inserted at it stands before it.
int FollowedInsertionPoint(
    int point, const CWordList &before, const CWordList &after, const ListDifference &difference)
{
    const int first = difference.first;
    switch (difference.entries) {
    case ListDifference::Entries::Inserted: {
        if (point >= first + difference.removed) {
            return point + difference.inserted - difference.removed;
        }
        int moved = point;
        while (point >= first && &after.Entry(moved) != &before.Entry(point)) {
            ++moved;
        }
        return moved;
    }
    case ListDifference::Entries::Removed: {
        int left = first;
        for (int entry = first; entry < std::min(point, first + difference.removed); ++entry) {
            left += int(left < first + difference.inserted && &before.Entry(entry) == &after.Entry(left));
        }
        return std::min(point, left) + std::max(point - first - difference.removed, 0);
    }
    default:
        return point < first + difference.removed ? std::min(point, after.Count())
                                                  : point + difference.inserted - difference.removed;
    }
}

}

CWin32Doc::CWin32Doc(DocumentServices services, QObject *parent)
    : QObject(parent), m_services(std::move(services))
{
    ApplyUndoSize();
}

bool CWin32Doc::Change(const std::function<void(CWordList &)> &change, std::optional<quint64> joined)
{
    CWordList changed = List();
    change(changed);
    const ListDifference difference = List().DifferenceTo(changed);
    if (difference.IsNone()) {
        return false;
    }
    const int insertionPoint = FollowedInsertionPoint(InsertionPoint(), List(), changed, difference);
    changed.SetSaved(false);
    if (joined != m_changeCounter) {
        m_history.Snapshot();
    }
    m_history.Current() = std::move(changed);
    SetInsertionPoint(insertionPoint);
    Tell({.difference = difference});
    return true;
}

void CWin32Doc::SetInsertionPoint(int entry)
{
    m_history.SetInsertionPoint(std::clamp(entry, 0, List().Count()));
}

void CWin32Doc::Undo()
{
    if (UndoCount() > 0) {
        GoTo(&CUndoHistory::Undo);
    }
}

void CWin32Doc::Redo()
{
    if (RedoCount() > 0) {
        GoTo(&CUndoHistory::Redo);
    }
}

void CWin32Doc::GoTo(void (CUndoHistory::*step)())
{
    const CWordList before = List();
    (m_history.*step)();
    Tell({.difference = before.DifferenceTo(List())});
}

void CWin32Doc::Tell(const ListChange &change)
{
    ++m_changeCounter;
    Q_EMIT Changed(change);
    UpdateTitleMark();
}

void CWin32Doc::ApplyUndoSize()
{
    m_history.SetUndoSize(m_services.settings.undoSize);
}

QString CWin32Doc::Name() const
{
    return Path().isEmpty() ? m_services.texts.Get(Text::Unnamed) : QFileInfo(Path()).fileName();
}

QString CWin32Doc::Title() const
{
    return List().IsSaved() ? Name() : QStringLiteral("* ") + Name();
}

void CWin32Doc::UpdateTitleMark()
{
    if (m_shownTitle != Title()) {
        m_shownTitle = Title();
        Q_EMIT TitleChanged();
    }
}

void CWin32Doc::DeleteContents()
{
    // The names and the author of the list before stay in the empty one.
    CWordList empty = List();
    empty.Reset();
    m_history.ResetHistory(std::move(empty));
    m_history.SetFilePath({});
    m_stamp = {};
}

void CWin32Doc::Replace(CWordList list, const QString &path, const FileStamp &stamp)
{
    m_history.ResetHistory(std::move(list));
    m_history.SetFilePath(path);
    m_stamp = stamp;
    Tell({.replaced = true});
}

void CWin32Doc::OnNewDocument()
{
    DeleteContents();
    const EditorSettings &settings = m_services.settings;
    CWordList list = List();
    list.SetComments(CleanProperty(ExpandPlaceholders(settings.standardComments)));
    NameLanguages(list);
    list.SetProperties({.author = CleanProperty(FirstGiven(list.GetAuthor(), settings.author))});
    list.SetSaved(true);
    ReplaceList(std::move(list));
}

void CWin32Doc::NameLanguages(CWordList &list) const
{
    const EditorSettings &settings = m_services.settings;
    const std::array names = {FirstGiven(settings.language1, m_services.texts.Get(Text::Language1)),
        FirstGiven(settings.language2, m_services.texts.Get(Text::Language2))};
    for (const int language : {0, 1}) {
        list.SetLanguage(
            language, CleanProperty(FirstGiven(list.GetLanguage(language), names[size_t(language)])));
    }
}

bool CWin32Doc::OpenDocument(const QString &path, const FormatReadOptions &options, const FormatLosses &known)
{
    return Open(path, false, options, known);
}

bool CWin32Doc::OpenCopy(const QString &path)
{
    return Open(path, true, {}, {});
}

bool CWin32Doc::Open(
    const QString &file, bool asCopy, const FormatReadOptions &options, const FormatLosses &known)
{
    // Absolute, since the path outlives the folder that the program was started in.
    const QString path = AbsoluteFilePath(file);
    const FileStamp stamp = FileStamp::Of(path); // Before it is read, so that a change meanwhile is one.
    DeleteContents();
    CWordList list = List();
    const FormatReading reading = ReadListFile(list, path, options);
    const bool own = reading.MayBeSavedOver();
    if (!own) {
        NameLanguages(list);
    }
    // Without a path, saving asks for a name: a newer file is not overwritten by an older layout, nor one of a
    // format that holds less.
    const bool hasFile = own && !asCopy;
    Replace(std::move(list), hasFile ? path : QString(), hasFile ? stamp : FileStamp());
    const int message = ReadMessage(reading.result);
    if (IsRefused(reading.result)) {
        m_services.prompt.Tell(m_services.texts.Prompt(message, {path}), PromptIcon::Error);
        return false;
    }
    PromptText told;
    if (message != 0) {
        told = m_services.texts.Prompt(message);
    }
    if (!reading.losses.empty() && reading.losses != known) {
        const PromptText lost = m_services.texts.Prompt(
            Text::NotAllRead, {path, LossesAsText(reading.losses, m_services.texts, u"\n")});
        told = message == 0 ? lost : PromptText{message, told.text + QStringLiteral("\n\n") + lost.text};
    }
    if (!told.text.isEmpty()) {
        m_services.prompt.Tell(told, PromptIcon::Warning);
    }
    return true;
}

void CWin32Doc::OpenRecovered(CWordList list, const QString &path, const FileStamp &stamp)
{
    list.SetSaved(false);
    Replace(std::move(list), path, stamp);
}

bool CWin32Doc::IsChangedOutside() const
{
    const FileStamp now = FileStamp::Of(Path());
    return now.size >= 0 && now != m_stamp;
}

bool CWin32Doc::OnSaveDocument(const QString &file)
{
    const QString path = AbsoluteFilePath(file);
    const FileStamp now = FileStamp::Of(path);
    m_history.MarkOthersChanged();
    if (!WriteWordListFile(m_history.Current(), path,
            {.forceUnicode = m_services.settings.alwaysSaveInUnicode,
                .backupFolder = m_services.backupFolder})) {
        // A file that was overwritten and put back is as it was, but for its times.
        const FileStamp left = FileStamp::Of(path);
        if (path == Path() && left.inode == now.inode && left.size == now.size) {
            m_stamp = left;
        }
        m_services.prompt.Tell(m_services.texts.Prompt(Text::CannotSave, {path}), PromptIcon::Warning);
        UpdateTitleMark();
        return false;
    }
    m_history.SetFilePath(path);
    m_stamp = FileStamp::Of(path);
    Q_EMIT Saved();
    TellOfLostEntries(m_history.Current());
    UpdateTitleMark();
    return true;
}

void CWin32Doc::TellOfLostEntries(CWordList &saved)
{
    if (const int lost = saved.CountWithoutTerms(); lost > 0) {
        saved.SetSaved(false);
        m_services.prompt.Tell(
            m_services.texts.Prompt(Text::EntriesNotSaved, {FormatNumber(lost)}), PromptIcon::Warning);
    }
}

bool CWin32Doc::SaveCopy(const QString &path)
{
    return Write(List(), path);
}

bool CWin32Doc::SaveCopyAs(const QString &path, const Format &format, FormatWriteOptions options)
{
    options.file = {
        .forceUnicode = m_services.settings.alwaysSaveInUnicode, .backupFolder = m_services.backupFolder};
    if (!WriteListFile(List(), AbsoluteFilePath(path), format, options)) {
        m_services.prompt.Tell(m_services.texts.Prompt(Text::CannotSave, {path}), PromptIcon::Warning);
        return false;
    }
    return true;
}

bool CWin32Doc::SaveEntries(const QString &path, CWordList::Selection entries)
{
    CWordList chosen = List();
    chosen.DeleteAll();
    for (const int index : entries) {
        chosen.Insert(List().Entry(index));
    }
    return Write(std::move(chosen), path);
}

bool CWin32Doc::Write(CWordList copy, const QString &path)
{
    // Writing marks the copy as saved, not the list.
    if (!WriteWordListFile(copy, path,
            {.forceUnicode = m_services.settings.alwaysSaveInUnicode,
                .backupFolder = m_services.backupFolder})) {
        m_services.prompt.Tell(m_services.texts.Prompt(Text::CannotSave, {path}), PromptIcon::Warning);
        return false;
    }
    TellOfLostEntries(copy);
    return true;
}

void CWin32Doc::OnFileSendMail()
{
    // Stays when the program ends, since the e-mail may be sent later.
    QTemporaryDir folder;
    folder.setAutoRemove(false);
    const QString path = folder.filePath(SuggestFileName() + QStringLiteral(".gls"));
    if (SaveCopy(path)) {
        m_services.startOpener(QStringLiteral("xdg-email"), {QStringLiteral("--attach"), path}, [this] {
            m_services.prompt.Tell(m_services.texts.Prompt(Text::CannotStartMail), PromptIcon::Warning);
        });
    }
}

void CWin32Doc::SetListProperties(ListProperties properties)
{
    for (std::optional<QString> *text : {&properties.language1, &properties.language2, &properties.author,
             &properties.comments, &properties.questionTemplate1, &properties.questionTemplate2}) {
        if (*text) {
            *text = CleanProperty(**text);
        }
    }
    for (std::optional<QString> *language : {&properties.language1, &properties.language2}) {
        if (*language) {
            *language = (**language).trimmed();
        }
    }
    Change([&properties](CWordList &list) { list.SetProperties(properties); });
}

QString CWin32Doc::ExpandPlaceholders(const QString &text) const
{
    return ExpandListPlaceholders(text, List(), m_services.today());
}

QString CWin32Doc::SuggestFileName() const
{
    return AsFileName(ExpandPlaceholders(
        FirstGiven(m_services.settings.standardFilename, m_services.texts.Get(Text::SuggestedFileName))));
}

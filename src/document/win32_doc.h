// SPDX-License-Identifier: MIT
#pragma once

#include "document/list_change.h"
#include "document/undo_history.h"
#include "fileformats/format_loss.h"
#include "fileformats/format_options.h"
#include "model/word_list.h"
#include "platform/file_stamp.h"

#include <QDate>
#include <QObject>

#include <functional>
#include <optional>

class CTexts;
class IUserPrompt;
struct EditorSettings;

/// What the document is handed; none of it is owned.
struct DocumentServices
{
    const CTexts &texts;
    const EditorSettings &settings;
    IUserPrompt &prompt;
    std::function<QDate()> today;
    /// Starts a program that opens something in another one, and calls `failed` later when that fails.
    std::function<void(const QString &program, const QStringList &arguments, std::function<void()> failed)>
        startOpener;
    /// Where an old file lies while it is overwritten in place; see WriteOptions.
    QString backupFolder = {};
};

/// The document of the program: owns the word list being edited with its undo history, makes, opens and saves
/// it, and tells the user what went wrong. Nobody keeps a reference to the list across events: ask for it each
/// time, since a change makes another list the current one.
class CWin32Doc : public QObject
{
    Q_OBJECT

public:
    explicit CWin32Doc(DocumentServices services, QObject *parent = nullptr);

    const CWordList &List() const { return m_history.Current(); }
    /// The one way to change the list, once per command: runs `change` on a copy and makes it the list, as a
    /// step for undo, if it really differs. Returns whether it did. Changed() has told it when this returns.
    ///
    /// A command that goes on over a while keeps the change counter as it was after its last change and hands
    /// it in as `joined`: if nothing else changed since, its changes are one step.
    bool Change(const std::function<void(CWordList &)> &change, std::optional<quint64> joined = {});
    /// Where the next entry goes, 0 to the number of entries. It moves with the entries that it stands between,
    /// and undo brings it back.
    int InsertionPoint() const { return m_history.InsertionPoint(); }
    /// What lies outside becomes the nearest.
    void SetInsertionPoint(int entry);
    /// Grows with every change; compare it to learn whether something changed in between.
    quint64 ChangeCounter() const { return m_changeCounter; }

    void Undo();
    void Redo();
    int UndoCount() const { return m_history.UndoCount(); }
    int RedoCount() const { return m_history.RedoCount(); }
    /// Call after the number of undo steps changed in the settings.
    void ApplyUndoSize();

    /// The file of the list; empty while it has none.
    const QString &Path() const { return m_history.FilePath(); }
    /// What its file was when it was last read or written.
    const FileStamp &Stamp() const { return m_stamp; }
    /// Whether its file is there and another program wrote it since.
    bool IsChangedOutside() const;
    /// The name of the list without a mark: its file's name.
    QString Name() const;
    /// The name shown for the list, with "* " in front while it has unsaved changes.
    QString Title() const;
    /// An empty list is never modified: it holds nothing to save.
    bool IsModified() const { return !List().IsSaved() && List().Count() > 0; }

    /// Starts a new list with the standard properties; names and author of the list before stay when all are
    /// given.
    void OnNewDocument();
    /// Puts a list that has no file in place of the one before; its saved mark says whether it is worth saving.
    void ReplaceList(CWordList list) { Replace(std::move(list), {}, {}); }
    /// Reads a file of any kind in place of the list. The user is told what could not be taken, unless that is
    /// all `known` already. On failure, which the user is told, an empty list is left and the result is false.
    bool OpenDocument(
        const QString &path, const FormatReadOptions &options = {}, const FormatLosses &known = {});
    /// The same, as a list that has no file: saving it asks for a name.
    bool OpenCopy(const QString &path);
    /// Takes a list kept for recovery as the changed content of the file `path`, which may be empty and which
    /// had `stamp` when the list was kept.
    void OpenRecovered(CWordList list, const QString &path, const FileStamp &stamp);
    /// Writes the list and makes `path` its file, whatever another program wrote there. On failure, which the
    /// user is told, list, path and file stay as they were and the result is false.
    bool OnSaveDocument(const QString &path);
    /// Writes the list to another file without taking it for its own. On failure, which the user is told, the
    /// result is false.
    bool SaveCopy(const QString &path);
    /// The same with these entries alone.
    bool SaveEntries(const QString &path, CWordList::Selection entries);
    /// Writes the list as a copy in any format. On failure, which the user is told, the result is false.
    bool SaveCopyAs(const QString &path, const Format &format, FormatWriteOptions options);
    /// Hands a copy of the list to the e-mail program; path and saved mark stay as they are.
    void OnFileSendMail();

    /// Sets properties as one undo step, or does nothing when none differs. They are single lines: control
    /// characters become blanks. The names of the languages are trimmed.
    void SetListProperties(ListProperties properties);

    /// Replaces %language1, %language2, %comments, %author, %nwords and %date, in this order.
    QString ExpandPlaceholders(const QString &text) const;
    /// A file name made of the list's properties, without folder and suffix.
    QString SuggestFileName() const;

Q_SIGNALS:
    /// The list is another than before: by a command, by undo or redo, or with its document.
    void Changed(const ListChange &change);
    void TitleChanged();
    /// The list was written to its file.
    void Saved();

private:
    void DeleteContents();
    /// Gives languages without a name the standard ones.
    void NameLanguages(CWordList &list) const;
    bool Open(const QString &file, bool asCopy, const FormatReadOptions &options, const FormatLosses &known);
    /// Tells TitleChanged() when the title is another than at the call before.
    void UpdateTitleMark();
    /// Goes to another state of the history, and tells what that changed.
    void GoTo(void (CUndoHistory::*step)());
    void Tell(const ListChange &change);
    bool Write(CWordList copy, const QString &path);
    /// Tells how many entries of a list that was written are not in its file, and marks it changed then.
    void TellOfLostEntries(CWordList &saved);
    /// Makes the list the only state of the history and has it shown.
    void Replace(CWordList list, const QString &path, const FileStamp &stamp);

    DocumentServices m_services;
    CUndoHistory m_history;
    FileStamp m_stamp;
    quint64 m_changeCounter = 0;
    QString m_shownTitle;
};

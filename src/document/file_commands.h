// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/import_preview.h"

#include <QString>

class CRecentFiles;
class CTexts;
class CWin32Doc;
class IFileChooser;
class IFormatDialogs;
class IPendingWork;
class IUserPrompt;
struct Format;

/// The commands New, Open, Save, Save as and Send, with the question before unsaved changes would be lost. Each
/// returns false when it was cancelled or failed; nothing is lost then.
class CFileCommands
{
public:
    /// Nothing is owned.
    CFileCommands(CWin32Doc &document, const CTexts &texts, IUserPrompt &prompt, IFileChooser &chooser,
        IFormatDialogs &formatDialogs, CRecentFiles &recent);

    /// What is typed and not yet in the list; null for none. It is stored before the list is saved or given up.
    void SetPendingWork(IPendingWork *pending) { m_pending = pending; }

    bool New();
    /// Asks for a file and opens it.
    bool Open();
    /// Opens a file that is known already. A web address is none, which the user is told.
    bool OpenFile(const QString &path);
    /// Opens one of the recent files; one that is gone leaves their list.
    bool OpenRecent(const QString &path);
    /// Opens a file as a list without a file of its own.
    bool OpenCopy(const QString &path);
    /// Reads the list's own file again, without a question.
    bool Reload();
    /// Whether the list, or what is typed and not yet in it, differs from its file.
    bool HasUnsaved() const;
    /// Saves to the list's own file, and asks for a name where it has none.
    bool Save();
    bool SaveAs();
    /// Hands a copy to the e-mail program.
    void Send();
    /// Saves to `path`, and asks for a name where it is empty. Asks before it overwrites what another program
    /// wrote to the list's own file. With `replace` the file becomes the list's own;
    /// without it a copy is saved. In a format that can't hold all of a list only a copy is saved: with
    /// `replace` the list is not saved then, and the result is false.
    bool DoSave(const QString &path, bool replace);
    /// Asks what to do with unsaved changes. True when the list may be given up.
    bool MayDiscard();

private:
    void StorePending();
    QString StartFolder() const;
    bool OpenNow(const QString &path);
    struct Target
    {
        QString path; ///< Empty when none was chosen.
        const Format *format = nullptr;
    };
    Target ChooseTarget(bool replace);
    /// Writes a copy, once the user has seen what it would not have.
    bool Export(const Target &target);
    /// Has the user choose how a separated text is read; false when that is cancelled.
    bool ChooseImport(CImportPreview &preview);

    CWin32Doc &m_document;
    const CTexts &m_texts;
    IUserPrompt &m_prompt;
    IFileChooser &m_chooser;
    IFormatDialogs &m_formatDialogs;
    CRecentFiles &m_recent;
    QString m_lastFolder;
    CRememberedChoices m_importChoices;
    IPendingWork *m_pending = nullptr;
};

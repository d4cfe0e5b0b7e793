// SPDX-License-Identifier: MIT
#pragma once

#include "model/word_list.h"

#include <QDate>
#include <QObject>

#include <functional>

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
};

/// The document of the program: owns the word list being edited, makes, opens and saves it, and tells the user
/// what went wrong. Nobody keeps a reference to the list across events: ask for it each time.
class CWin32Doc : public QObject
{
    Q_OBJECT

public:
    explicit CWin32Doc(DocumentServices services, QObject *parent = nullptr);

    const CWordList &List() const { return m_list; }
    /// The one way to change the list: call it right before a change, and only when something will change.
    CWordList &BeginChange();
    /// Grows with every change; compare it to learn whether something changed in between.
    quint64 ChangeCounter() const { return m_changeCounter; }

    /// The file of the list; empty while it has none.
    const QString &Path() const { return m_path; }
    /// The name shown for the list: its file's name, with "* " in front while it has unsaved changes.
    QString Title() const;
    /// An empty list is never modified: it holds nothing to save.
    bool IsModified() const { return !m_list.IsSaved() && m_list.Count() > 0; }

    /// Starts a new list with the standard properties; names and author of the list before stay when all are
    /// given.
    void OnNewDocument();
    /// Reads a file of any kind in place of the list. On failure, which the user is told, an empty list is left
    /// and the result is false.
    bool OpenDocument(const QString &path);
    /// Writes the list and makes `path` its file. On failure, which the user is told, list, path and file stay
    /// as they were and the result is false.
    bool OnSaveDocument(const QString &path);

    /// Replaces %language1, %language2, %comments, %author, %nwords and %date, in this order.
    QString ExpandPlaceholders(const QString &text) const;
    /// A file name made of the list's properties, without folder and suffix.
    QString SuggestFileName() const;

Q_SIGNALS:
    /// Another list, or another file, took the place of the one before.
    void ListReplaced();
    /// The title may have changed.
    void TitleChanged();

private:
    void DeleteContents();

    DocumentServices m_services;
    CWordList m_list;
    QString m_path;
    quint64 m_changeCounter = 0;
};

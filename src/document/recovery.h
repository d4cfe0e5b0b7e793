// SPDX-License-Identifier: MIT
#pragma once

#include "document/win32_doc.h"

#include <QDateTime>
#include <QLockFile>
#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

class CTexts;
class IUserPrompt;

/// A copy of a list whose program ended without saving it.
struct LostList
{
    QString id;
    /// The file that the list belonged to, and what that was like; empty for none.
    QString path;
    FileStamp stamp;
    QDateTime written;
};

/// Keeps a copy of the list on the disk while it has unsaved changes, and offers it after a crash. A copy is an
/// ordinary glossary file, ID.gls, with the file that it belonged to in ID.path; ID.lock shows whether the
/// program that keeps it is still there. Writes on a thread of its own.
class CRecovery : public QObject
{
    Q_OBJECT

public:
    /// The document is not owned. `delay` is the time from a change to the writing of the copy, in
    /// milliseconds.
    CRecovery(CWin32Doc &document, const QString &folder, int delay, QObject *parent = nullptr);
    /// Leaves the copy, if there is one, where it is; see Discard().
    ~CRecovery() override;

    /// "Ornbury Workshops/Ordelin" in the user's folder for the state of programs (XDG base directories).
    static QString UserFolder();

    /// The copies that no running program keeps, newest first.
    std::vector<LostList> FindLost() const;
    /// Asks what to do with each lost copy, newest first: restore it into the document, which ends the asking,
    /// throw it away, or ask again next time. Returns true when one was restored. Call it before the document's
    /// first change.
    bool Offer(const CTexts &texts, IUserPrompt &prompt);

    /// Where the list to keep comes from, when it is more than the document's.
    void SetListToKeep(std::function<CWordList()> list) { m_listToKeep = std::move(list); }
    /// What is to be kept changed: a copy is written soon.
    void KeepSoon();

    /// Removes the copy, after a save; one that is being written, as soon as that is done.
    void Discard();
    /// Waits until nothing is being written.
    void Wait();
    /// Removes the copy at a clean end of the program, waiting where it must.
    void Finish();
    /// At an end that leaves no time for questions: writes the copy of unsaved changes at once and leaves it
    /// for the next start.
    void Keep();

private:
    class CWriter;

    void WriteCopy();
    QString FilePath(const QString &id, const char *suffix) const;
    void Remove(const QString &id) const;
    void RemoveRemains() const;
    void CopyWritten();
    /// The lock of a copy; none when another program holds it.
    std::unique_ptr<QLockFile> Lock(const QString &id) const;

    CWin32Doc &m_document;
    std::function<CWordList()> m_listToKeep;
    QString m_folder;
    QTimer m_timer;
    QString m_id; // Empty until there is something to keep.
    std::unique_ptr<QLockFile> m_lock;
    bool m_discardWhenWritten = false;
    std::unique_ptr<CWriter> m_writer;
};

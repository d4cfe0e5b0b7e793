// SPDX-License-Identifier: MIT
#pragma once

#include "document/win32_doc.h"
#include "platform/kept_copies.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

class CTexts;
class IUserPrompt;

/// Keeps a copy of the list on the disk while it has unsaved changes, and offers it after a crash. Each
/// document has a copy of its own, whose head says which file it belongs to. What the file before was, when a
/// program ended while it overwrote it, is offered likewise. Writes on a thread of its own.
class CRecovery : public QObject
{
    Q_OBJECT

public:
    /// The document is not owned. `delay` is the time from a change to the writing of the copy, in
    /// milliseconds; after ten times that a copy that could not be written is tried again.
    CRecovery(CWin32Doc &document, const QString &folder, int delay, QObject *parent = nullptr);
    /// Leaves the copy, if there is one, where it is; see Finish().
    ~CRecovery() override;

    /// "Ornbury Workshops/Ordelin" in the user's folder for the state of programs (XDG base directories).
    static QString UserFolder();

    /// Asks what to do with each copy that no running program keeps, newest first: restore it into the
    /// document, which ends the asking, throw it away, or ask again next time. One that holds less than it
    /// should is called so, and restored as a list without a file. Returns true when one was restored. Call it
    /// before the document's first change.
    bool Offer(const CTexts &texts, IUserPrompt &prompt);

    /// Where the list to keep comes from, when it is more than the document's.
    void SetListToKeep(std::function<CWordList()> list) { m_listToKeep = std::move(list); }
    /// What is to be kept changed: a copy is written soon.
    void KeepSoon();

    /// Waits until nothing is being written.
    void Wait();
    /// Removes the copy at a clean end of the program, waiting where it must.
    void Finish();
    /// At an end that leaves no time for questions: writes the copy of unsaved changes at once and leaves it
    /// for the next start. Returns false when there is none that is up to date.
    bool Keep();

Q_SIGNALS:
    /// The copy could not be written. Told once, until one could.
    void CopyFailed();
    /// Emitted on the writing thread, for this object alone.
    void WriterEnded(bool written, QPrivateSignal);

private:
    class CWriter;
    struct LostList;

    void WriteCopy();
    /// Makes a name for the copy of this document. Returns false when there is no place for it.
    bool MakeId();
    /// Removes the copy; one that is being written, as soon as that is done.
    void Discard();
    void CopyWritten(bool written);
    void RemoveLeaving();

    std::optional<LostList> Load(const QString &id) const;
    QStringList LostIds() const;
    void Remove(const QString &id) const;
    void RemoveRemains() const;

    CWin32Doc &m_document;
    std::function<CWordList()> m_listToKeep;
    QString m_folder;
    CKeptCopies m_copies;
    int m_delay;
    QTimer m_timer;
    QString m_id; // Of the document's copy; empty until there is something to keep.
    std::unique_ptr<QLockFile> m_lock;
    QString m_leavingId; // Of a copy that is still being written, and is wanted no longer.
    std::unique_ptr<QLockFile> m_leavingLock;
    bool m_writing = false;
    bool m_failed = false; // Told, and not written since.
    std::unique_ptr<CWriter> m_writer;
};

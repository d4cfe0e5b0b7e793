// SPDX-License-Identifier: MIT
#pragma once

#include "model/word_list.h"
#include "platform/thread.h"

#include <QDateTime>
#include <QLockFile>
#include <QObject>
#include <QTimer>

#include <memory>
#include <vector>

class CTexts;
class CWin32Doc;
class IUserPrompt;

/// A copy of a list whose program ended without saving it.
struct LostList
{
    QString id;
    /// The file that the list belonged to; empty for none.
    QString path;
    QDateTime written;
};

/// Keeps a copy of the list on the disk while it has unsaved changes, and offers it after a crash. A copy is an
/// ordinary glossary file, ID.gls, with the path that it belonged to in ID.path; ID.lock shows whether the
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
    /// Asks what to do with the newest lost copy: restore it into the document, throw it away, or ask again
    /// next time. Returns true when one was restored. Call it before the first change of the document.
    bool Offer(const CTexts &texts, IUserPrompt &prompt);

    /// Removes the copy, after a save or at a clean end.
    void Discard();
    /// Waits until nothing is being written.
    void Wait();

private:
    class CWriter;

    void DocumentChanged();
    void WriteCopy();
    QString FilePath(const QString &id, const char *suffix) const;
    void Remove(const QString &id) const;
    /// Makes `id` this program's own. Returns false when another program has it.
    bool Take(const QString &id);

    CWin32Doc &m_document;
    QString m_folder;
    QTimer m_timer;
    QString m_id; // Empty until there is something to keep.
    std::unique_ptr<QLockFile> m_lock;
    std::unique_ptr<CWriter> m_writer;
};

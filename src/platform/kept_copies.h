// SPDX-License-Identifier: MIT
#pragma once

#include "platform/file_stamp.h"

#include <QByteArray>
#include <QLockFile>
#include <QStringList>

#include <memory>
#include <optional>

/// A copy of what a file holds or is to hold, and all that is needed to bring it back.
struct KeptCopy
{
    enum class Kind {
        Unsaved, ///< Changes that the file doesn't have yet.
        Overwritten, ///< What the file held before it was written over.
    };

    Kind kind = Kind::Unsaved;
    QString path = {}; ///< The file; empty for none.
    FileStamp stamp = {}; ///< What the file was when the copy was made.
    qint64 count = 0; ///< How many entries there are in `content`.
    QByteArray newContent = {}; ///< The fingerprint of what the file is written over with.
    QByteArray content = {};
};

/// The copies that programs keep in a folder for the case that they end before their time: each is one file,
/// ID.copy, a head of lines and then the content. ID.lock shows whether the program that keeps it is still
/// there.
class CKeptCopies
{
public:
    /// Neither reads nor makes the folder.
    explicit CKeptCopies(QString folder) : m_folder(std::move(folder)) { }

    static QString NewId();
    /// What tells two contents apart.
    static QByteArray Fingerprint(const QByteArray &content);

    /// Makes sure that there is the folder, for its user alone.
    bool MakeFolder() const;
    /// None when a running program holds it, or there is no folder.
    std::unique_ptr<QLockFile> Lock(const QString &id) const;
    /// Replaces the copy of this id. Returns false when the one before is still there.
    [[nodiscard]] bool Write(const QString &id, const KeptCopy &copy) const;
    /// None when it can't be read, is damaged in its head or is cut off within it. A content that is cut off is
    /// given as it is.
    std::optional<KeptCopy> Read(const QString &id) const;
    void Remove(const QString &id) const;
    /// Removes what was kept while the file was overwritten, by programs that run no longer.
    void RemoveOverwritten(const QString &path) const;
    /// Every copy, newest first.
    QStringList Ids() const;
    QString Path(const QString &id) const;

private:
    QString m_folder;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "platform/file_stamp.h"

#include <QObject>

#include <optional>

class CFileCommands;
class CTexts;
class CWin32Doc;
class IUserPrompt;

/// Tells that another program changed the file of the list. Asks whether to read it again while nothing would
/// be lost, once for each change; else says what stays to be told.
class CFileWatch : public QObject
{
    Q_OBJECT

public:
    /// Nothing is owned.
    CFileWatch(const CWin32Doc &document, CFileCommands &files, const CTexts &texts, IUserPrompt &prompt);

    /// Looks at the file. Call it when the user comes back to the list.
    void Look();

Q_SIGNALS:
    /// What is to be told from now on; empty for nothing.
    void NoticeChanged(const QString &notice);

private:
    QString NoticeOf(const FileStamp &now);
    void SetNotice(const QString &notice);
    void Forget();

    const CWin32Doc &m_document;
    CFileCommands &m_files;
    const CTexts &m_texts;
    IUserPrompt &m_prompt;
    std::optional<FileStamp> m_asked;
    QString m_notice;
};

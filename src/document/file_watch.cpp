// SPDX-License-Identifier: MIT
#include "document/file_watch.h"

#include "document/file_commands.h"
#include "document/text_numbers.h"
#include "document/win32_doc.h"
#include "platform/user_prompt.h"
#include "resources/texts.h"

CFileWatch::CFileWatch(
    const CWin32Doc &document, CFileCommands &files, const CTexts &texts, IUserPrompt &prompt)
    : m_document(document), m_files(files), m_texts(texts), m_prompt(prompt)
{
    connect(&document, &CWin32Doc::Saved, this, &CFileWatch::Forget);
    connect(&document, &CWin32Doc::Changed, this, [this](const ListChange &change) {
        if (change.replaced) {
            Forget();
        }
    });
}

void CFileWatch::Look()
{
    SetNotice(m_document.Path().isEmpty() ? QString() : NoticeOf(FileStamp::Of(m_document.Path())));
}

QString CFileWatch::NoticeOf(const FileStamp &now)
{
    const QString path = m_document.Path();
    if (now == m_document.Stamp()) {
        return {};
    }
    if (now.size < 0) {
        return m_texts.Fill(Text::FileIsGone, {path});
    }
    if (!m_files.HasUnsaved() && m_asked != now) {
        m_asked = now;
        if (m_prompt.AskTypist(m_texts.Prompt(Text::ReadAgain, {path}), PromptIcon::Question,
                PromptButtons::YesNo, PromptAnswer::Yes)
            == PromptAnswer::Yes) {
            m_files.Reload();
            return {};
        }
    }
    return m_texts.Fill(Text::ChangedOutside, {path});
}

void CFileWatch::SetNotice(const QString &notice)
{
    if (notice != m_notice) {
        m_notice = notice;
        Q_EMIT NoticeChanged(notice);
    }
}

void CFileWatch::Forget()
{
    m_asked.reset();
    SetNotice({});
}

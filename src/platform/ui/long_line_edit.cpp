// SPDX-License-Identifier: MIT
#include "platform/ui/long_line_edit.h"

#include "platform/plain_text.h"

#include <QClipboard>
#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QUrl>

#include <algorithm>
#include <limits>

CLongLineEdit::CLongLineEdit(const QString &hint, QWidget *parent) : QLineEdit(parent), m_hint(hint)
{
    setMaxLength(std::numeric_limits<int>::max()); // No term is cut off.
    connect(this, &QLineEdit::textEdited, this, &CLongLineEdit::TextEdited);
}

void CLongLineEdit::SetWholeText(const QString &text)
{
    const qsizetype shown = StartLength(text, MaxShown);
    m_given = text;
    m_givenStart = text.first(shown);
    m_rest = text.sliced(shown);
    setText(m_givenStart);
    ShowHint();
}

QString CLongLineEdit::WholeText() const
{
    const QString shown = text();
    if (shown == m_givenStart) {
        return m_given; // Not copied, since it may be long.
    }
    return m_rest.isEmpty() ? shown : QString(shown + m_rest);
}

void CLongLineEdit::Paste()
{
    const QString pasted = QGuiApplication::clipboard()->text();
    if (text().size() + pasted.size() <= MaxShown) {
        paste();
        return;
    }
    const qsizetype start = hasSelectedText() ? selectionStart() : cursorPosition();
    const qsizetype end = hasSelectedText() ? selectionEnd() : start;
    const QString rest = IsAllSelected() ? QString() : m_rest;
    SetWholeText(text().first(start) + pasted + text().sliced(end) + rest);
    Q_EMIT textEdited(text());
}

void CLongLineEdit::dragEnterEvent(QDragEnterEvent *event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (std::ranges::any_of(urls, &QUrl::isLocalFile)) {
        event->ignore();
    } else {
        QLineEdit::dragEnterEvent(event);
    }
}

void CLongLineEdit::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Paste)) {
        Paste();
        return;
    }
    const bool all = IsAllSelected();
    const QString before = text();
    QLineEdit::keyPressEvent(event);
    NoteEdit(all, before);
}

void CLongLineEdit::inputMethodEvent(QInputMethodEvent *event)
{
    const bool all = IsAllSelected();
    const QString before = text();
    QLineEdit::inputMethodEvent(event);
    NoteEdit(all, before);
}

bool CLongLineEdit::IsAllSelected() const
{
    return hasSelectedText() && selectionLength() == text().size();
}

void CLongLineEdit::NoteEdit(bool all, const QString &before)
{
    if (all && text() != before && text() != m_givenStart) {
        m_rest.clear();
        ShowHint();
    }
}

void CLongLineEdit::TextEdited()
{
    if (text().size() > MaxShown * 2) {
        SetWholeText(WholeText());
    } else if (m_given.size() > m_givenStart.size() && text() == m_givenStart) {
        m_rest = m_given.sliced(m_givenStart.size()); // By undo.
        ShowHint();
    }
}

void CLongLineEdit::ShowHint()
{
    setToolTip(m_rest.isEmpty() ? QString() : m_hint);
}

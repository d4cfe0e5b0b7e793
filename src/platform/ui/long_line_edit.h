// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

/// A line for texts of any length. Of a long one only the start is shown and edited, since the toolkit lays out
/// all of a line at each key; the rest follows what is typed, until the whole start is replaced.
class CLongLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    /// In code units.
    static constexpr qsizetype MaxShown = 4000;

    /// `hint` is the tool tip while a rest is not shown.
    explicit CLongLineEdit(const QString &hint, QWidget *parent = nullptr);

    void SetWholeText(const QString &text);
    /// What is shown and what follows it.
    QString WholeText() const;
    /// Like paste(), which lays out all that it inserts.
    void Paste();

protected:
    /// Files are for the window.
    void dragEnterEvent(QDragEnterEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;

private:
    bool IsAllSelected() const;
    /// After a key or text that came when all was selected or not.
    void NoteEdit(bool all, const QString &before);
    void TextEdited();
    void ShowHint();

    QString m_hint;
    QString m_rest;
    // What the last SetWholeText() was given, and what was shown of it: undo may come back to it.
    QString m_given;
    QString m_givenStart;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "platform/type_ahead.h"

#include <QObject>
#include <QPointer>

class QKeyEvent;
class QMessageBox;
class QWidget;

/// Shows questions to someone who is typing, as CTypeAhead decides, and sends what was kept to the window that
/// it was meant for. It filters the events of the application while there is something to keep.
class CTypeAheadFilter : public QObject
{
    Q_OBJECT

public:
    explicit CTypeAheadFilter(Clock clock, QObject *parent = nullptr);

    /// Like the box's exec(). The box has a parent, in whose window the typing goes on.
    int Ask(QMessageBox &box);
    bool TypingGoesOn() const { return m_typeAhead.GoesOn(); }
    QString KeptText() const { return m_typeAhead.KeptText(); }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// Whether an event for `watched` is one for `window`.
    static bool IsPartOf(const QObject *watched, const QWidget *window);
    bool KeepKey(const QKeyEvent &event);
    /// Lets the question hear again after a pause, and be deaf again to a letter, which is no answer.
    void NoteKeyOfBox(const QKeyEvent &event);
    /// Whether a key press comes first to `watched`. One that opened the question goes on to the parents of its
    /// field when that is answered, and is not typed anew.
    bool IsFirstStop(const QObject *watched) const;
    /// Shows the box without the focus until it hears; true then, false when it was answered or the program
    /// ends.
    bool ShowDeaf(QMessageBox &box);
    /// Sends on the next key that was kept; the others follow from the event loop.
    void GoOn();
    void GoOnSoon();
    void Send(QWidget &target, const TypedInput &input);
    void Stop();

    CTypeAhead m_typeAhead;
    QPointer<QWidget> m_window; // Where the typing goes on.
    QPointer<QMessageBox> m_box;
    bool m_sending = false;
    bool m_hasFocus = false; // The question has been heard once and has the keyboard.
    bool m_goesOnSoon = false;
    // A key comes twice, first for those who would rather have it than a shortcut.
    int m_announcedKey = 0;
};

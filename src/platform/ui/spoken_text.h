// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// Says to assistive technology what appears in a window by itself, wherever the focus is. Takes no room. One
/// per window, which owns it.
class CSpokenText : public QWidget
{
    Q_OBJECT

public:
    explicit CSpokenText(QWidget *window);

    /// Says a text, as soon as the window is active: what is said to another one is cut off when the focus
    /// comes here. Of several texts until then the last one is said.
    void Say(const QString &text);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Tell();
    void TellBehindFocus();

    bool m_waits = false;
};

/// Says a text in the window of a widget, which gets a CSpokenText if it has none.
void SayInWindowOf(const QWidget &widget, const QString &text);

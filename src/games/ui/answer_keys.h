// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <optional>
#include <set>

class QKeyEvent;
class QWidget;

/// Lets the digits of both keypads choose an answer of a window, wherever the focus is in it. A key counts when
/// it is released, if it was pressed here by itself; no control of the window sees it. The window owns it.
class CAnswerKeys : public QObject
{
    Q_OBJECT

public:
    /// For the digits 1 to `count`. Make it when the window has all its controls.
    CAnswerKeys(int count, QWidget *window);

    /// What was pressed so far was meant for other answers.
    void forget() { m_pressed.clear(); }
    /// The number of the answer, from 0, that a key stands for; nothing for any other key, and for a digit with
    /// modifiers.
    std::optional<int> numberOf(const QKeyEvent &key) const;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void chosen(int number);

private:
    bool release(const QKeyEvent &key);

    int m_count;
    std::set<int> m_pressed; // Numbers of answers.
};

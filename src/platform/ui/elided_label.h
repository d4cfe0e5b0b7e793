// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// A line of plain text that takes the room it is given: what does not fit is elided at the end, and the whole
/// text, as far as anybody would read it, is the tool tip then. With a buddy it may mark a key.
class CElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit CElidedLabel(QWidget *parent = nullptr);

    /// Only the start of a long text is kept.
    void ShowText(const QString &text);
    /// Asks for the room of its text, up to so many average characters. Without it the label asks for none.
    void AskForRoom(int mostCharacters);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    using QLabel::setText;

    QString Shown() const;
    int ShownFlags() const;
    bool Fits() const;

    int m_mostCharacters = 0;
};

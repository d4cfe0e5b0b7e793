// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// A line of plain text that takes the room it is given: what does not fit is elided at the end, and the whole
/// text, as far as anybody would read it, is the tool tip then.
class CElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit CElidedLabel(QWidget *parent = nullptr);

    /// Only the start of a long text is kept.
    void setText(const QString &text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    QString Shown() const;
    bool Fits() const;
};

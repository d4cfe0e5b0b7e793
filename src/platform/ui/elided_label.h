// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// A line of plain text that takes the room it is given: what does not fit is elided at the end, and the whole
/// text is the tool tip then.
class CElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit CElidedLabel(QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    bool Fits() const;
};

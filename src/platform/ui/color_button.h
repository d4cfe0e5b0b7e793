// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

/// A button that shows a colour and lets the user choose another one.
class CColorButton : public QPushButton
{
    Q_OBJECT

public:
    /// `value`, 0x00BBGGRR, is kept up to date and must outlive the button. `readOut` names the colour to
    /// assistive technology; its code is added.
    CColorButton(const QString &caption, const QString &readOut, quint32 &value, QWidget *parent = nullptr);

    void SetColor(const QColor &color);

protected:
    void changeEvent(QEvent *event) override;

private:
    QColor Color() const;
    void ShowColor();
    void Choose();

    QString m_readOut;
    quint32 &m_value;
};

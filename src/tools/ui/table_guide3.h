// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class CColorButton;
class CTableGuideForm;
class QCheckBox;

/// The third page of the table wizard: page or text, and how a page looks.
class CTableGuide3 : public QWidget
{
    Q_OBJECT

public:
    /// The form is not owned.
    explicit CTableGuide3(CTableGuideForm &form, QWidget *parent = nullptr);

private:
    QWidget *MakeFormat();
    QWidget *MakeLook();
    CColorButton *MakeColor(const char *name, int caption, int readOut, quint32 &value);
    /// What holds for a page alone can't be chosen for a text.
    void UpdateEnabled();

    CTableGuideForm &m_form;
    QWidget *m_look;
    QWidget *m_tableColor = nullptr;
    QWidget *m_special = nullptr;
    QWidget *m_specialColor = nullptr;
};

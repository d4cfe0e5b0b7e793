// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class CTableGuideForm;
class QComboBox;

/// The second page of the table wizard: what becomes of the texts.
class CTableGuide2 : public QWidget
{
    Q_OBJECT

public:
    /// The form is not owned.
    explicit CTableGuide2(CTableGuideForm &form, QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;

private:
    CTableGuideForm &m_form;
    QComboBox *m_bold;
};

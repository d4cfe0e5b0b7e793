// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class CTexts;

/// The window that says what program this is, in which version and under which licence.
class CAboutDialog : public QDialog
{
    Q_OBJECT

public:
    CAboutDialog(const CTexts &texts, QWidget *parent);
};

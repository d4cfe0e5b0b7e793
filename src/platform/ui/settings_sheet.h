// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QTabWidget;

/// A window of pages of settings that are accepted together with OK. Each page scrolls where the screen is too
/// low for it.
class CSettingsSheet : public QDialog
{
    Q_OBJECT

public:
    CSettingsSheet(const QString &title, QWidget *parent);

protected:
    /// The sheet owns the page.
    void AddPage(QWidget *page, const QString &title);
    void showEvent(QShowEvent *event) override;

private:
    QTabWidget *m_pages;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <functional>

class QDialogButtonBox;
class QTabWidget;

/// A window of pages of settings that are stored together with OK, and with Apply where it has that. Each page
/// scrolls where the screen is too low for it.
class CSettingsSheet : public QDialog
{
    Q_OBJECT

public:
    enum class Buttons { OkCancel, OkCancelApply };

    CSettingsSheet(const QString &title, QWidget *parent, Buttons buttons = Buttons::OkCancel);

    void accept() override;

protected:
    /// Makes what the pages show the values in force.
    virtual void Store() = 0;
    /// The sheet owns the page.
    void AddPage(QWidget *page, const QString &title);
    /// Puts other pages in place of all, and shows the one at the same place. Call it from the event loop, not
    /// from what a page's control does.
    void ReplacePages(const std::function<void()> &addPages);

private:
    QTabWidget *m_pages;
    QDialogButtonBox *m_buttons;
};

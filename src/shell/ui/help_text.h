// SPDX-License-Identifier: MIT
#pragma once

#include "shell/help.h"

#include <QHash>
#include <QImage>
#include <QTextBrowser>
#include <QUrl>

/// The text of the help. It shows one page with its pictures, and loads nothing that lies outside the page's
/// folder.
class CHelpText : public QTextBrowser
{
    Q_OBJECT

public:
    explicit CHelpText(QWidget *parent);

    /// Shows the page, which is that of the file, at its beginning.
    void ShowPage(const QString &file, const HelpPage &page);
    /// Goes to the place of that name; a step for "back".
    void GoTo(const QString &anchor);
    /// Selects the next hit from the selection, or the first one from its start with `again` false, round the
    /// end. Returns whether there is one.
    bool Find(const QString &text, bool forward, bool again);
    /// Marks all hits and returns how many there are.
    int MarkAll(const QString &text);

protected:
    QVariant loadResource(int type, const QUrl &name) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QString Style() const;
    /// A picture that is no wider than the text.
    QImage Fitted(const QImage &picture) const;
    void FitPictures();

    QString m_file;
    QString m_html;
    QString m_marked;
    QHash<QUrl, QImage> m_pictures; // As they are in their files.
};

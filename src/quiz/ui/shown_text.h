// SPDX-License-Identifier: MIT
#pragma once

#include <QPlainTextEdit>

/// A text to be read, as a part of the window and not as a field to write in. It can be reached, marked and
/// copied. Its height follows from its width; what finds no room scrolls.
class CShownText : public QPlainTextEdit
{
    Q_OBJECT

public:
    CShownText(const char *objectName, const QString &accessibleName, QWidget *parent);

    /// Only the start of a long text is kept. It runs in its own direction, or in that of `like` if given.
    void showText(const QString &text, const QString &like = {});
    /// How high it becomes in a font and a width.
    int neededHeight(const QFont &font, int width) const;
    /// What stands above, below and beside the lines of any text.
    int margins() const;

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return neededHeight(font(), width); }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
};

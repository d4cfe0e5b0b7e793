// SPDX-License-Identifier: MIT
#pragma once

#include "document/import_models.h"
#include "platform/ui/contrast.h"

#include <QStyledItemDelegate>

/// Draws what comes to nothing in a quiet colour.
class CImportRowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (index.data(CImportModel::LeftOutRole).toBool()) {
            QPalette &palette = option->palette;
            palette.setColor(
                QPalette::Text, QuietText(palette.color(QPalette::Text), palette.color(QPalette::Base), 0.5));
        }
    }
};

// SPDX-License-Identifier: MIT
#include "quiz/ui/difference_delegate.h"

#include "quiz/ui/difference_style.h"
#include "quiz/wrong_answers_model.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QPainter>
#include <QTextDocument>

namespace {

constexpr int Margin = 4;

bool isSelected(const QStyleOptionViewItem &item)
{
    return item.state.testFlag(QStyle::State_Selected);
}

}

void CDifferenceDelegate::fill(
    QTextDocument &document, const QStyleOptionViewItem &item, const QModelIndex &index)
{
    document.setDefaultFont(item.font);
    document.setDocumentMargin(Margin);
    // On a selected row colours of our own might not be readable.
    document.setDefaultStyleSheet(
        isSelected(item) ? QStringLiteral("s, u { font-weight: bold }") : differenceStyle(item.palette));
    document.setHtml(index.data(CWrongAnswersModel::MarkupRole).toString());
}

void CDifferenceDelegate::paint(
    QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    item.text.clear();
    const QStyle *const style = item.widget != nullptr ? item.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    QTextDocument document;
    fill(document, item, index);
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(
        QPalette::Text, item.palette.color(isSelected(item) ? QPalette::HighlightedText : QPalette::Text));
    painter->save();
    painter->setClipRect(item.rect);
    painter->translate(item.rect.topLeft());
    document.documentLayout()->draw(painter, context);
    painter->restore();
}

QSize CDifferenceDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    QTextDocument document;
    fill(document, item, index);
    return document.size().toSize();
}

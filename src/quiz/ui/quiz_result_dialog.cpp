// SPDX-License-Identifier: MIT
#include "quiz/ui/quiz_result_dialog.h"

#include "quiz/quiz_result.h"
#include "quiz/quiz_session.h"
#include "resources/text_numbers.h"
#include "resources/texts.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QStyledItemDelegate>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <cmath>

namespace {

constexpr int PercentRole = Qt::UserRole;

/// Draws the share of right answers over a bar of its length.
class CShareDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyleOptionViewItem item = option;
        initStyleOption(&item, index);
        const QString text = std::exchange(item.text, {});
        const QWidget *const widget = item.widget;
        QStyle *const style = widget != nullptr ? widget->style() : QApplication::style();
        style->drawControl(QStyle::CE_ItemViewItem, &item, painter, widget);

        QRect bar = item.rect.adjusted(2, 2, -2, -2);
        const int percent = index.data(PercentRole).toInt();
        bar.setWidth(bar.width() * percent / 100);
        QColor fill = item.palette.color(QPalette::Highlight);
        fill.setAlpha(90);
        if (percent > 0) {
            painter->fillRect(bar, fill);
        }
        const bool selected = item.state.testFlag(QStyle::State_Selected);
        painter->save();
        painter->setPen(item.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
        painter->drawText(item.rect, Qt::AlignCenter, text);
        painter->restore();
    }
};

}

CQuizResultDialog::CQuizResultDialog(
    const CQuizSession &session, const CTexts &texts, Mode mode, QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(texts.Get(Text::ResultTitle));
    setWindowModality(Qt::WindowModal);
    const bool withAnswers = mode == Mode::AfterQuiz && session.wordCount() > 0;

    auto *list = new QTreeWidget(this);
    list->setObjectName(QStringLiteral("results"));
    list->setAccessibleName(texts.Get(Text::ResultEntries));
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setAllColumnsShowFocus(true);
    list->setAlternatingRowColors(true);
    QStringList titles;
    if (session.wordCount() > 0) {
        const QuizQuestion first = session.questionAt(0);
        titles.append(first.languages[size_t(first.questionColumn)]);
        if (withAnswers) {
            titles.append(first.languages[size_t(first.AnswerColumn())]);
        }
    }
    const int shareColumn = int(titles.size());
    titles.append(texts.Get(Text::ResultPercent));
    titles.append(texts.Get(Text::WrongAnswers));
    list->setHeaderLabels(titles);
    list->setItemDelegateForColumn(shareColumn, new CShareDelegate(list));

    QList<QTreeWidgetItem *> items;
    for (int position = 0; position < session.wordCount(); ++position) {
        const QuizResultRow row = resultRow(session, texts, position);
        QStringList cells = {row.question};
        if (withAnswers) {
            cells.append(row.answer);
        }
        cells.append({row.share, row.wrongAnswers});
        auto *item = new QTreeWidgetItem(cells);
        item->setData(shareColumn, PercentRole, std::max(row.percent, 0));
        items.append(item);
    }
    list->addTopLevelItems(items);
    const int width = fontMetrics().averageCharWidth();
    for (int column = 0; column < titles.size(); ++column) {
        list->setColumnWidth(column, width * (column < shareColumn ? 28 : 18));
    }

    auto *summary = new QLabel(resultSummary(session, texts), this);
    summary->setObjectName(QStringLiteral("summary"));
    summary->setTextFormat(Qt::PlainText);
    auto *bar = new QProgressBar(this);
    bar->setObjectName(QStringLiteral("rightShare"));
    bar->setAccessibleName(texts.Get(Text::ResultRightShare));
    bar->setRange(0, 1000);
    bar->setValue(int(std::lround(session.totalPercent() * 10)));
    bar->setTextVisible(false);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    buttons->setObjectName(QStringLiteral("buttons"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(list, 1);
    layout->addWidget(summary);
    layout->addWidget(bar);
    layout->addWidget(buttons);
    resize(width * 100, fontMetrics().lineSpacing() * 26);
}

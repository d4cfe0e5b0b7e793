// SPDX-License-Identifier: MIT
#include "editor/ui/suggestion_list.h"

#include "editor/text_numbers.h"
#include "platform/ui/spoken_text.h"
#include "resources/texts.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace {

constexpr int MostRowsInSight = 8;
/// How many suggestions are read out at once.
constexpr qsizetype MostReadOut = 3;

}

CSuggestionList::CSuggestionList(const CTexts &texts, QWidget &area)
    : QListWidget(&area), m_texts(texts), m_spoken(new CSpokenText(&area))
{
    setObjectName(QStringLiteral("suggestions"));
    setAccessibleName(texts.Get(Text::Suggestions));
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideRight);
    setUniformItemSizes(true);
    setFrameShape(QFrame::Box);
    setLineWidth(1);
    connect(this, &QListWidget::itemClicked, this, [this](const QListWidgetItem *item) { Take(*item); });
    hide();
}

void CSuggestionList::Await(QLineEdit &line)
{
    Close();
    m_line = &line;
}

void CSuggestionList::Offer(const QStringList &translations)
{
    if (!m_line || !m_line->hasFocus() || !m_line->text().isEmpty()) {
        return;
    }
    setFont(m_line->font());
    clear();
    addItems(translations);
    setCurrentRow(-1);
    PlaceBelowLine();
    // Behind its own filter, so that keys come here first.
    m_line->removeEventFilter(this);
    m_line->installEventFilter(this);
    show();
    raise();
    m_spoken->Say(m_texts.Fill(Text::SuggestionsFound,
        {QString::number(translations.size()),
            translations.first(std::min(translations.size(), MostReadOut)).join(QStringLiteral(", "))}));
}

void CSuggestionList::PlaceBelowLine()
{
    const QWidget *const area = parentWidget();
    const QRect line(m_line->mapTo(area, QPoint(0, 0)), m_line->size());
    const int rows = std::min(count(), MostRowsInSight);
    const int border = 2 * frameWidth();
    const int wanted = sizeHintForColumn(0) + border + 2 * fontMetrics().averageCharWidth();
    const QSize size(std::min(std::max(line.width(), wanted), area->width() - line.left()),
        std::min(rows * sizeHintForRow(0) + border, area->height()));
    const bool fitsBelow = line.bottom() + 1 + size.height() <= area->height();
    setGeometry(QRect(
        QPoint(line.left(), fitsBelow ? line.bottom() + 1 : std::max(line.top() - size.height(), 0)), size));
}

bool CSuggestionList::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_line || isHidden()) {
        return false;
    }
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // Escape closes nothing else then.
        if (static_cast<const QKeyEvent *>(event)->key() == Qt::Key_Escape) {
            event->accept();
            return true;
        }
        return false;
    case QEvent::KeyPress:
        return KeyPressed(static_cast<const QKeyEvent *>(event)->key());
    case QEvent::InputMethod:
    case QEvent::FocusOut:
    case QEvent::Hide:
    case QEvent::Move:
    case QEvent::Resize:
        Close();
        return false;
    default:
        return false;
    }
}

bool CSuggestionList::KeyPressed(int key)
{
    switch (key) {
    case Qt::Key_Down:
    case Qt::Key_Up:
        MoveChoice(key == Qt::Key_Down ? 1 : -1);
        return true;
    case Qt::Key_Escape:
        Close();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (const QListWidgetItem *const chosen = currentItem()) {
            Take(*chosen);
            return true;
        }
        break;
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
        return false;
    default:
        break;
    }
    Close();
    return false;
}

void CSuggestionList::MoveChoice(int step)
{
    // Above the first one none is chosen.
    setCurrentRow(std::clamp(currentRow() + step, -1, count() - 1));
}

void CSuggestionList::Take(const QListWidgetItem &item)
{
    const QString text = item.text();
    Close();
    if (m_line) {
        m_line->selectAll();
        m_line->insert(text);
    }
}

void CSuggestionList::Close()
{
    hide();
    if (m_line) {
        m_line->removeEventFilter(this);
    }
}

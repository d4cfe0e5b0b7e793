// SPDX-License-Identifier: MIT
#pragma once

#include "games/memory_form.h"

#include <QWidget>

#include <vector>

class CMemoryCard;
class CTexts;

/// The cards of a memory board in a grid that follows the size of the window. One of them has the focus, or had
/// it last; arrows move it.
class CMemoryTable : public QWidget
{
    Q_OBJECT

public:
    /// `form` must live as long as the table.
    CMemoryTable(const CMemoryForm &form, const CTexts &texts, QWidget *parent);

    /// Lays other cards there; the first one gets the focus.
    void deal();
    /// Shows the cards as they are now.
    void refresh();
    /// Gives the focus to the card that had it last.
    void focusCard();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void cardPressed(int card);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int columnsFor(QSize size) const;
    QSize sizeFor(QSize card) const;
    void showCards(bool areNew);
    void placeCards();
    void setCurrent(int card);
    QString spokenName(int card) const;

    const CMemoryForm &m_form;
    const CTexts &m_texts;
    std::vector<CMemoryCard *> m_cards;
    int m_columns = 1;
    int m_current = 0;
};

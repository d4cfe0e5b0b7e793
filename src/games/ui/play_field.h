// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ui/fitted_text.h"

#include <QPixmap>
#include <QWidget>

#include <chrono>
#include <vector>

/// The field in which words fall. It is told where the word is and how much time passed, and paints no more
/// than what moved.
class CPlayField : public QWidget
{
    Q_OBJECT

public:
    /// `pausedText` stands there while no word falls.
    CPlayField(const QString &pausedText, QWidget *parent);

    /// No text for none: then a pause is shown, if `isPaused`.
    void showWord(const QString &text, bool isPaused);
    /// Both from 0 to 1: from left to right, and from the top to the floor.
    void placeWord(double place, double fallen);
    /// How far it is for the word from the top to the floor, in logical pixels.
    double fallDistance() const;
    /// A line about the last answer, with a hint below it; empty for none.
    void showLine(const QString &line, const QString &hint);

    enum class Effect { Hit, Miss };
    /// A short effect at the place of the word, which is about to be another.
    void playEffect(Effect effect);
    bool hasEffects() const { return !m_effects.empty(); }
    void timePassed(std::chrono::milliseconds time);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The word may be larger or smaller, and its way longer or shorter.
    void resized();
    void clicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    struct Flash
    {
        Effect effect;
        QPixmap word;
        QRect place;
        std::chrono::milliseconds age{0};
    };

    int floorHeight() const;
    QPointF wordPoint() const;
    QRect wordPlace() const;
    QRect flashPlace(const Flash &flash) const;
    QColor effectColour(Effect effect) const;
    void makeWord();
    void layOutLine();
    void makeBackground();
    void paintFlash(QPainter &painter, const Flash &flash) const;
    void paintLine(QPainter &painter) const;
    void paintPause(QPainter &painter) const;

    QString m_pausedText;
    bool m_isPaused = false;
    QString m_text;
    QPixmap m_word; // The text on its tile.
    double m_place = 0;
    double m_fallen = 0;
    QString m_line;
    QString m_hint;
    FittedText m_fittedLine;
    QRect m_linePlace;
    QPixmap m_background;
    std::vector<Flash> m_effects;
};

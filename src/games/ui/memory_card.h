// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ui/fitted_text.h"

#include <QAbstractButton>
#include <QVariantAnimation>

/// A card of the memory game. Its back tells by a sign and the name of a language what is on its face.
class CMemoryCard : public QAbstractButton
{
    Q_OBJECT

public:
    struct Look
    {
        QString sign; ///< Of its kind.
        QString language;
        bool isQuestion = false; ///< Which of the two colours the back has.
        QString text; ///< Shown only while the card is up.
        bool isUp = false;
        bool isSolved = false;
        bool isMistake = false;
    };

    explicit CMemoryCard(QWidget *parent);

    /// The card turns if it lies otherwise now, except where movement is not wanted or with `isNew`.
    void showLook(const Look &look, bool isNew);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QRect faceText() const;
    QColor backColour() const;
    void fitText();
    void paintBack(QPainter &painter, const QRect &card) const;
    void paintFace(QPainter &painter, const QRect &card) const;
    void paintMark(QPainter &painter, const char *picture) const;

    Look m_look;
    FittedText m_fitted; // The text in the room of the face.
    QVariantAnimation m_turning; // From 0 to 1.
};

// SPDX-License-Identifier: MIT
#include "editor/ui/cell_colours.h"

#include "platform/ui/contrast.h"

#include <QPalette>

#include <algorithm>

namespace {

/// The highlight moved away from the colour of its text, so that the contrast only grows.
QColor CursorBackground(const QPalette &palette)
{
    const QColor highlight = palette.color(QPalette::Active, QPalette::Highlight);
    const QColor text = palette.color(QPalette::Active, QPalette::HighlightedText);
    const QColor away = text.lightness() > 127 ? QColor(Qt::black) : QColor(Qt::white);
    return Mixed(highlight, away, 0.35);
}

/// A selection that waits for the keyboard: as much of the highlight as it takes to be told from other rows.
CellColours WaitingColours(const QPalette &palette)
{
    constexpr double ToldFromOthers = 1.6;
    constexpr double Step = 0.05;
    const QColor base = palette.color(QPalette::Active, QPalette::Base);
    const QColor highlight = palette.color(QPalette::Active, QPalette::Highlight);
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    const QColor highlighted = palette.color(QPalette::Active, QPalette::HighlightedText);
    double share = 0.3;
    QColor background = Mixed(base, highlight, share);
    while (share < 1 && Contrast(background, base) < ToldFromOthers) {
        share += Step;
        background = Mixed(base, highlight, share);
    }
    // A highlight that is itself as dark or as pale as other rows needs some of the text's colour.
    for (double ofText = Step; ofText < 1 && Contrast(background, base) < ToldFromOthers; ofText += Step) {
        background = Mixed(highlight, text, ofText);
    }
    const bool keepsText =
        Contrast(text, background) >= std::min(TextContrast, Contrast(highlighted, background));
    return {background, keepsText ? text : highlighted};
}

}

CellColours CellColoursFor(const QPalette &palette, const CellState &state)
{
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    if (!state.selected) {
        const QColor base = palette.color(QPalette::Active, QPalette::Base);
        const QColor link = palette.color(QPalette::Active, QPalette::Link);
        if (state.hot) {
            return {Mixed(base, link, 0.25), text};
        }
        return {base, state.number ? QuietText(text, base, 0.3) : text};
    }
    if (!state.focused) {
        return WaitingColours(palette);
    }
    return {state.cursor ? CursorBackground(palette) : palette.color(QPalette::Active, QPalette::Highlight),
        palette.color(QPalette::Active, QPalette::HighlightedText)};
}

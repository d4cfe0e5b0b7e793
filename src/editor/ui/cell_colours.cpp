// SPDX-License-Identifier: MIT
#include "editor/ui/cell_colours.h"

#include <QPalette>

namespace {

QColor Mixed(const QColor &a, const QColor &b, double shareOfB)
{
    const auto mix = [shareOfB](int x, int y) { return int(x * (1 - shareOfB) + y * shareOfB); };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

/// The highlight moved away from the colour of its text, so that the contrast only grows.
QColor CursorBackground(const QPalette &palette)
{
    const QColor highlight = palette.color(QPalette::Active, QPalette::Highlight);
    const QColor text = palette.color(QPalette::Active, QPalette::HighlightedText);
    const QColor away = text.lightness() > 127 ? QColor(Qt::black) : QColor(Qt::white);
    return Mixed(highlight, away, 0.35);
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
        // Quieter, and still read: some themes leave their own colour for placeholders black on black.
        return {base, state.number ? Mixed(text, base, 0.3) : text};
    }
    if (!state.focused) {
        return {palette.color(QPalette::Active, QPalette::Button),
            palette.color(QPalette::Active, QPalette::ButtonText)};
    }
    return {state.cursor ? CursorBackground(palette) : palette.color(QPalette::Active, QPalette::Highlight),
        palette.color(QPalette::Active, QPalette::HighlightedText)};
}

// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

/// What can be read needs this contrast, and what is only to be told from its background that of a mark.
inline constexpr double TextContrast = 4.5;
inline constexpr double MarkContrast = 3.0;

/// From 1 for colours of the same luminance to 21 for black and white.
double Contrast(const QColor &a, const QColor &b);

/// `a` with a share of `b`, from 0 to 1.
QColor Mixed(const QColor &a, const QColor &b, double shareOfB);

/// `text` moved towards its background, as far as `share` says and the contrast of text allows.
QColor QuietText(const QColor &text, const QColor &background, double share);

/// `colour` moved towards that of text, as far as a mark on the background needs it.
QColor MarkColour(const QColor &colour, const QColor &text, const QColor &background);

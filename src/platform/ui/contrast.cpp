// SPDX-License-Identifier: MIT
#include "platform/ui/contrast.h"

#include <algorithm>
#include <cmath>

namespace {

/// How bright a colour is to the eye, 0 to 1, as the guidelines for readable text define it.
double Luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

}

double Contrast(const QColor &a, const QColor &b)
{
    const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor Mixed(const QColor &a, const QColor &b, double shareOfB)
{
    const auto mix = [shareOfB](int x, int y) { return int(std::lround(x * (1 - shareOfB) + y * shareOfB)); };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

QColor QuietText(const QColor &text, const QColor &background, double share)
{
    constexpr double Step = 0.05;
    QColor quiet = Mixed(text, background, share);
    while (share > 0 && Contrast(quiet, background) < TextContrast) {
        share -= Step;
        quiet = Mixed(text, background, std::max(share, 0.0));
    }
    return quiet;
}

QColor MarkColour(const QColor &colour, const QColor &text, const QColor &background)
{
    constexpr double Step = 0.1;
    QColor mark = colour;
    for (double share = Step; share <= 1 && Contrast(mark, background) < MarkContrast; share += Step) {
        mark = Mixed(colour, text, share);
    }
    return mark;
}

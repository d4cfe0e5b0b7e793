// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

/// A line of text in which a stretch stands out. In code units.
struct MarkedText
{
    QString text;
    qsizetype start = 0;
    qsizetype length = 0;

    bool operator==(const MarkedText &) const = default;
};

/// As much of a text as fits on a line, with its mark in sight. What is left out at either end becomes an
/// ellipsis; a mark that is longer than the line is cut. Cuts no character in two.
MarkedText WithMarkInSight(const MarkedText &whole, const std::function<bool(const QString &line)> &fits);

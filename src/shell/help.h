// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class CTexts;
class QUrl;

/// A heading of the help: plain text, in one line.
struct HelpSection
{
    /// The name of the place in the page.
    QString anchor;
    QString title;
    /// 2 or 3, as headings are counted; 1 is that of the page.
    int level = 2;

    bool operator==(const HelpSection &) const = default;
};

/// The page of the help, made ready for the toolkit's text engine: what it has no elements for is put into
/// words that it has, and what is only for browsers (contents, style) is left out.
struct HelpPage
{
    QString html;
    QList<HelpSection> sections;
};

/// The file of the help of the language in force, looked for in the data folders; empty when there is none.
QString FindHelp(const CTexts &texts, const QStringList &dataFolders);
/// Reads it, UTF-8; none when it can't be read or is unreasonably large.
std::optional<HelpPage> ReadHelp(const QString &file);
/// The file that an address in the page `file` leads to; empty when it is not there or lies outside the page's
/// folder. Symbolic links are followed first.
QString FileOfHelp(const QString &file, const QUrl &address);

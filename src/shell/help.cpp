// SPDX-License-Identifier: MIT
#include "shell/help.h"

#include "platform/data_folders.h"
#include "platform/plain_text.h"
#include "platform/regular_file.h"
#include "resources/texts.h"
#include "shell/text_numbers.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>

namespace {

/// In bytes; many times what a help takes.
constexpr qint64 LargestHelp = 1 << 20;

/// The text without its elements of a name, with all that they hold.
QString Without(const QString &html, const QString &element)
{
    const QString end = QStringLiteral("</%1>").arg(element);
    const QRegularExpression start(QStringLiteral("<%1\\b").arg(element));
    QString rest;
    qsizetype kept = 0;
    for (qsizetype from = 0; (from = html.indexOf(start, kept)) >= 0;) {
        const qsizetype to = html.indexOf(end, from);
        if (to < 0) {
            break;
        }
        rest += QStringView(html).mid(kept, from - kept);
        kept = to + end.size();
    }
    rest += QStringView(html).mid(kept);
    return rest;
}

/// What a heading shows, without markup.
QString PlainTitle(QString html)
{
    static const QRegularExpression tag(QStringLiteral("<[^>]*>"));
    html.remove(tag);
    html.replace(QStringLiteral("&nbsp;"), QStringLiteral(" "));
    html.replace(QStringLiteral("&lt;"), QStringLiteral("<"));
    html.replace(QStringLiteral("&gt;"), QStringLiteral(">"));
    html.replace(QStringLiteral("&amp;"), QStringLiteral("&"));
    return html.simplified();
}

}

QString FindHelp(const CTexts &texts, const QStringList &dataFolders)
{
    return FindDataFile(dataFolders, texts.Get(Text::HelpPath));
}

std::optional<HelpPage> ReadHelp(const QString &file)
{
    const std::optional<QByteArray> content = ReadRegularFile(file, LargestHelp);
    if (!content) {
        return std::nullopt;
    }
    QString html = QString::fromUtf8(*content);
    for (const char *element : {"head", "header", "nav", "footer"}) {
        html = Without(html, QLatin1StringView(element));
    }
    static const QRegularExpression caption(QStringLiteral("(<table\\b[^>]*>)\\s*<caption>([^<]*)</caption>"));
    html.replace(caption, QStringLiteral("<p class=\"caption\">\\2</p>\\1"));
    html.replace(QStringLiteral("<figure>"), QStringLiteral("<div>"));
    html.replace(QStringLiteral("</figure>"), QStringLiteral("</div>"));
    html.replace(QStringLiteral("<figcaption>"), QStringLiteral("<p class=\"caption\">"));
    html.replace(QStringLiteral("</figcaption>"), QStringLiteral("</p>"));
    static const QRegularExpression skipped(QStringLiteral("<a class=\"skip\"[^>]*>[^<]*</a>"));
    html.remove(skipped);

    HelpPage page;
    // A heading, and in front of it perhaps the section that it begins. Bounded, whatever stands there.
    static const QRegularExpression headings(
        QStringLiteral("<section\\b[^>]{0,200}\\bid=\"([^\"]{1,100})\"[^>]{0,200}>"
                       "|<h([23])\\b(?:[^>]{0,200}?\\bid=\"([^\"]{1,100})\")?[^>]{0,200}>(.{0,500}?)</h\\2>"),
        QRegularExpression::DotMatchesEverythingOption);
    QString section;
    qsizetype done = 0;
    for (QRegularExpressionMatchIterator matches = headings.globalMatch(html); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        if (match.hasCaptured(1)) {
            section = match.captured(1);
            continue;
        }
        QString anchor = match.captured(3).isEmpty() ? section : match.captured(3);
        section.clear();
        if (anchor.isEmpty()) {
            anchor = QStringLiteral("heading%1").arg(page.sections.size());
        }
        page.html += QStringView(html).mid(done, match.capturedStart(4) - done);
        page.html += QStringLiteral("<a name=\"%1\"></a>").arg(anchor);
        done = match.capturedStart(4);
        page.sections.append(
            {anchor, ShownShort(PlainTitle(match.captured(4)), 100), match.captured(2).toInt()});
    }
    page.html += QStringView(html).mid(done);
    return page;
}

QString FileOfHelp(const QString &file, const QUrl &address)
{
    const QUrl resolved = QUrl::fromLocalFile(file).resolved(address);
    const QString folder = QFileInfo(QFileInfo(file).canonicalFilePath()).path() + u'/';
    const QString found =
        resolved.isLocalFile() ? QFileInfo(resolved.toLocalFile()).canonicalFilePath() : QString();
    return found.startsWith(folder) ? found : QString();
}

// SPDX-License-Identifier: MIT
#include "shell/ui/help_text.h"

#include "platform/regular_file.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>

namespace {

/// In bytes, and in pixels a side.
constexpr qint64 LargestPicture = 8 << 20;
constexpr int LongestSide = 4000;

constexpr int MostHits = 2000;

QColor Mixed(const QColor &one, const QColor &other, double share)
{
    const auto mix = [share](float a, float b) { return float(a * share + b * (1 - share)); };
    return QColor::fromRgbF(
        mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()), mix(one.blueF(), other.blueF()));
}

QImage ReadPicture(const QString &file)
{
    std::optional<QByteArray> content = ReadRegularFile(file, LargestPicture);
    if (!content) {
        return {};
    }
    QBuffer buffer(&*content);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    return size.width() > LongestSide || size.height() > LongestSide ? QImage() : reader.read();
}

}

CHelpText::CHelpText(QWidget *parent) : QTextBrowser(parent)
{
    setOpenLinks(false);
    document()->setDocumentMargin(fontMetrics().averageCharWidth() * 2);
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl &link) {
        if (link.hasFragment() && source().resolved(link).matches(source(), QUrl::RemoveFragment)) {
            GoTo(link.fragment());
        }
    });
}

void CHelpText::ShowPage(const QString &file, const HelpPage &page)
{
    m_file = file;
    m_html = page.html;
    document()->setDefaultStyleSheet(Style());
    setSource(QUrl::fromLocalFile(file), QTextDocument::HtmlResource);
}

void CHelpText::GoTo(const QString &anchor)
{
    QUrl place = source();
    place.setFragment(anchor);
    setSource(place, QTextDocument::HtmlResource);
}

bool CHelpText::Find(const QString &text, bool forward, bool again)
{
    QTextDocument::FindFlags flags;
    flags.setFlag(QTextDocument::FindBackward, !forward);
    QTextCursor start = textCursor();
    if (!start.hasSelection()) {
        start = cursorForPosition({}); // From what is in view.
    } else if (!again) {
        start.setPosition(start.selectionStart());
    }
    QTextCursor hit = document()->find(text, start, flags);
    if (hit.isNull()) {
        start.movePosition(forward ? QTextCursor::Start : QTextCursor::End);
        hit = document()->find(text, start, flags);
    }
    if (hit.isNull()) {
        return false;
    }
    setTextCursor(hit);
    return true;
}

int CHelpText::MarkAll(const QString &text)
{
    m_marked = text;
    QList<ExtraSelection> marks;
    QTextCharFormat format;
    format.setBackground(Mixed(palette().color(QPalette::Highlight), palette().color(QPalette::Base), 0.35));
    for (QTextCursor hit = document()->find(text); !hit.isNull() && marks.size() < MostHits;
         hit = document()->find(text, hit)) {
        marks.append({hit, format});
    }
    setExtraSelections(marks);
    return int(marks.size());
}

QString CHelpText::Style() const
{
    const QColor paper = palette().color(QPalette::Base);
    const QColor ink = palette().color(QPalette::Text);
    const int line = fontMetrics().lineSpacing();
    return QStringLiteral("h2 { font-size: x-large; margin-top: %1px; margin-bottom: %2px; }"
                          "h3 { font-size: large; margin-top: %3px; margin-bottom: %2px; }"
                          "p, li, dd { line-height: 130%; }"
                          "p { margin-top: 0; margin-bottom: %2px; }"
                          "dt { font-weight: bold; }"
                          "code, kbd { background-color: %4; }"
                          "th { background-color: %4; text-align: left; }"
                          "td, th { padding: %5px; }"
                          "table { border: 1px solid %6; border-collapse: collapse; }"
                          ".caption { color: %7; font-size: small; }"
                          "a { color: %8; }")
        .arg(line * 5 / 2)
        .arg(line / 2)
        .arg(line * 3 / 2)
        .arg(Mixed(ink, paper, 0.08).name())
        .arg(line / 3)
        .arg(Mixed(ink, paper, 0.3).name(), Mixed(ink, paper, 0.75).name(),
            palette().color(QPalette::Link).name());
}

QVariant CHelpText::loadResource(int type, const QUrl &name)
{
    if (type == QTextDocument::HtmlResource) {
        return m_html;
    }
    const QString file = type == QTextDocument::ImageResource ? FileOfHelp(m_file, name) : QString();
    const QImage picture = file.isEmpty() ? QImage() : ReadPicture(file);
    if (picture.isNull()) {
        return {};
    }
    m_pictures.insert(name, picture);
    return Fitted(picture);
}

QImage CHelpText::Fitted(const QImage &picture) const
{
    const int most = std::max(viewport()->width() - 2 * int(document()->documentMargin()), 1);
    const QSize size =
        picture.width() <= most ? picture.size() : QSize(most, picture.height() * most / picture.width());
    // The toolkit itself scales without smoothing.
    const qreal ratio = devicePixelRatioF();
    QImage fitted = picture.scaled(size * ratio, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    fitted.setDevicePixelRatio(ratio);
    return fitted;
}

void CHelpText::FitPictures()
{
    for (auto picture = m_pictures.cbegin(); picture != m_pictures.cend(); ++picture) {
        document()->addResource(QTextDocument::ImageResource, picture.key(), Fitted(picture.value()));
    }
    if (!m_pictures.isEmpty()) {
        document()->markContentsDirty(0, document()->characterCount());
    }
}

void CHelpText::resizeEvent(QResizeEvent *event)
{
    QTextBrowser::resizeEvent(event);
    FitPictures();
}

void CHelpText::changeEvent(QEvent *event)
{
    QTextBrowser::changeEvent(event);
    if ((event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) && !m_file.isEmpty()) {
        document()->setDefaultStyleSheet(Style());
        reload();
        MarkAll(m_marked);
    }
}

// SPDX-License-Identifier: MIT
#include "platform/ui/drawn_icon.h"

#include "platform/ui/contrast.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QRegularExpression>

namespace {

/// In one colour on a background: lines and dark areas take it, what is light inside them lets it through.
QString InOneColour(const QString &svg, const QColor &colour, const QColor &background)
{
    static const QRegularExpression paint(QStringLiteral("(fill|stroke)=\"(#[0-9a-fA-F]{3,6})\""));
    QString result;
    qsizetype end = 0;
    for (const QRegularExpressionMatch &match : paint.globalMatch(svg)) {
        const bool isLight = Contrast(QColor(match.captured(2)), Qt::white) < 2;
        const QString painted = !isLight         ? colour.name()
            : match.captured(1).startsWith(u'f') ? QStringLiteral("none")
                                                 : background.name();
        result += svg.mid(end, match.capturedStart() - end)
            + QStringLiteral("%1=\"%2\"").arg(match.captured(1), painted);
        end = match.capturedEnd();
    }
    return result + svg.mid(end);
}

class CDrawnIconEngine : public QIconEngine
{
public:
    explicit CDrawnIconEngine(const QString &path) : m_path(path) { }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State /*state*/) override
    {
        painter->drawPixmap(
            rect, Picture((QSizeF(rect.size()) * painter->device()->devicePixelRatio()).toSize(), mode));
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State /*state*/) override
    {
        return Picture(size, mode);
    }
    QIconEngine *clone() const override { return new CDrawnIconEngine(m_path); }
    bool isNull() override { return !QFile::exists(m_path); }

private:
    QPixmap Picture(const QSize &size, QIcon::Mode mode) const;

    QString m_path;
};

QPixmap CDrawnIconEngine::Picture(const QSize &size, QIcon::Mode mode) const
{
    const QPalette palette = QGuiApplication::palette();
    const QColor text = palette.color(QPalette::Active, QPalette::HighlightedText);
    const QColor highlight = palette.color(QPalette::Active, QPalette::Highlight);
    const QString key = QStringLiteral("%1 %2 %3 %4 %5 %6")
                            .arg(m_path)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(int(mode))
                            .arg(text.name(), highlight.name());
    QPixmap picture;
    if (QPixmapCache::find(key, &picture)) {
        return picture;
    }
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QByteArray svg = file.readAll();
    if (mode == QIcon::Selected) {
        svg = InOneColour(QString::fromUtf8(svg), text, highlight).toUtf8();
    }
    QBuffer buffer(&svg);
    QImageReader reader(&buffer, "svg");
    const int side = std::min(size.width(), size.height());
    reader.setScaledSize({side, side});
    const QImage drawn = reader.read();
    picture = QPixmap(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    constexpr double Faded = 0.35;
    painter.setOpacity(mode == QIcon::Disabled ? Faded : 1.0);
    painter.drawImage((size.width() - side) / 2, (size.height() - side) / 2, drawn);
    painter.end();
    QPixmapCache::insert(key, picture);
    return picture;
}

}

QIcon DrawnIcon(const QString &path)
{
    return QIcon(new CDrawnIconEngine(path));
}

// SPDX-License-Identifier: MIT
#include "editor/ui/cell_colours.h"
#include "platform/ui/contrast.h"
#include "platform/ui/drawn_icon.h"
#include "platform/ui/program_style.h"
#include "support/test.h"

#include <QApplication>
#include <QDirIterator>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QRegularExpression>

/// What is drawn can be seen, on the palettes of common desktops.
class ColoursTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cells()
    {
        QCOMPARE(qRound(Contrast("#308cc6", "#ffffff") * 100), 369);
        QCOMPARE(Mixed("#ffffff", "#000000", 0.25).name(), u"#bfbfbf"_s);
        // Base, text, highlight and highlighted text.
        const char *const palettes[][4] = {
            {"#ffffff", "#000000", "#308cc6", "#ffffff"},
            {"#ffffff", "#232629", "#0a64ad", "#ffffff"},
            {"#fcfcfc", "#232629", "#93cee9", "#232629"}, // a pale highlight
            {"#2d2d2d", "#ffffff", "#308cc6", "#ffffff"},
            {"#1b1e20", "#fcfcfc", "#3daee9", "#fcfcfc"},
            {"#000000", "#ffffff", "#1a1a8c", "#ffffff"},
        };
        for (const auto &colours : palettes) {
            QPalette palette;
            palette.setColor(QPalette::Base, colours[0]);
            palette.setColor(QPalette::Text, colours[1]);
            palette.setColor(QPalette::Highlight, colours[2]);
            palette.setColor(QPalette::HighlightedText, colours[3]);
            CProgramStyle style;
            style.polish(palette);
            const QColor base = palette.color(QPalette::Base);
            const CellColours number = CellColoursFor(palette, {.number = true});
            QVERIFY(Contrast(number.text, number.background) >= TextContrast);
            QVERIFY(Contrast(palette.color(QPalette::PlaceholderText), base) >= TextContrast);
            const CellColours waiting = CellColoursFor(palette, {.selected = true});
            QVERIFY(Contrast(waiting.background, base) >= 1.6);
            QVERIFY2(Contrast(waiting.text, waiting.background) >= TextContrast,
                qPrintable(waiting.background.name()));
            // With the keyboard the cell of the cursor can be told from the rest of its row.
            const CellColours row = CellColoursFor(palette, {.selected = true, .focused = true});
            const CellColours cursor =
                CellColoursFor(palette, {.selected = true, .focused = true, .cursor = true});
            QVERIFY(Contrast(cursor.text, cursor.background) >= Contrast(row.text, row.background));
            QVERIFY(Contrast(cursor.background, row.background) >= 1.2);
        }
    }

    void icons()
    {
        const QColor white = Qt::white;
        const QRegularExpression line(u"stroke=\"(#[0-9a-f]+)\""_s);
        QDirIterator files(QStringLiteral(ORDELIN_SOURCE_DIR "/src/resources"), {u"*.svg"_s}, QDir::Files,
            QDirIterator::Subdirectories);
        int count = 0;
        while (files.hasNext()) {
            QFile file(files.next());
            const QString name = QFileInfo(file).fileName();
            if (name.startsWith(u"workshops."_s) || name.startsWith(u"application-"_s)) {
                continue; // The desktop's icons have a background of their own.
            }
            ++count;
            QVERIFY(file.open(QIODevice::ReadOnly));
            for (const QRegularExpressionMatch &match : line.globalMatch(QString::fromUtf8(file.readAll()))) {
                const QColor colour(match.captured(1));
                if (Contrast(colour, white) < 2) {
                    continue; // Stands in front of a dark area.
                }
                for (const char *window : {"#ffffff", "#efefef", "#353535", "#1e1e1e"}) {
                    QVERIFY2(
                        Contrast(colour, window) >= MarkContrast, qPrintable(file.fileName() + colour.name()));
                }
            }
        }
        QVERIFY(count > 40);

        const QIcon icon = DrawnIcon(QStringLiteral(ORDELIN_SOURCE_DIR "/src/resources/icons/edit-copy.svg"));
        const auto strongest = [&](QIcon::Mode mode, const char *window) {
            QImage picture(32, 32, QImage::Format_RGB32);
            picture.fill(window);
            QPainter painter(&picture);
            icon.paint(&painter, picture.rect(), Qt::AlignCenter, mode);
            painter.end();
            double found = 1;
            for (int i = 0; i < 32 * 32; ++i) {
                found = std::max(found, Contrast(picture.pixelColor(i % 32, i / 32), window));
            }
            return found;
        };
        const QPalette palette = QApplication::palette();
        QVERIFY(
            strongest(QIcon::Selected, qPrintable(palette.color(QPalette::Highlight).name())) >= MarkContrast);
        QVERIFY(strongest(QIcon::Disabled, "#efefef") < 2);
        QVERIFY(strongest(QIcon::Normal, "#efefef") >= MarkContrast);
        QVERIFY(DrawnIcon(u":/icons/none.svg"_s).isNull());
    }
};

QTEST_MAIN(ColoursTest)
#include "colours_test.moc"

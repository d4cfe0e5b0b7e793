// SPDX-License-Identifier: MIT
#include "platform/plain_text.h"

namespace {

constexpr QChar FirstStrongIsolate(u'\u2068');
constexpr QChar PopIsolate(u'\u2069');

bool IsOther(QChar::Direction direction)
{
    switch (direction) {
    case QChar::DirR:
    case QChar::DirAL:
    case QChar::DirLRE:
    case QChar::DirLRO:
    case QChar::DirRLE:
    case QChar::DirRLO:
    case QChar::DirPDF:
    case QChar::DirLRI:
    case QChar::DirRLI:
    case QChar::DirFSI:
    case QChar::DirPDI:
        return true;
    default:
        return false;
    }
}

}

QString ShownShort(const QString &text, qsizetype longest)
{
    if (text.size() <= longest) {
        return text;
    }
    return text.left(StartLength(text, longest - 1)) + u'…';
}

QString OneLine(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    text.replace(u'\r', u' ');
    text.replace(u'\n', u' ');
    return text;
}

QString ShownInCaption(const QString &text)
{
    constexpr qsizetype Longest = 40;
    // Cut before it is looked at as a whole. A tab would begin the shortcut's text.
    QString shown = ShownShort(ShownShort(text, 10 * Longest).simplified(), Longest);
    return shown.replace(u'&', QStringLiteral("&&"));
}

QString CaptionReadOut(const QString &caption)
{
    QString text;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        i += caption.at(i) == u'&' && i + 1 < caption.size() ? 1 : 0;
        text += caption.at(i);
    }
    if (text.endsWith(u':')) {
        text.chop(1);
    }
    return text;
}

bool HoldsOtherDirections(const QString &text)
{
    constexpr char16_t FirstOther = 0x0590;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        if (unit.unicode() < FirstOther) {
            continue;
        }
        const bool pair = unit.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        const char32_t character = pair ? QChar::surrogateToUcs4(unit, text.at(++i)) : unit.unicode();
        if (IsOther(QChar::direction(character))) {
            return true;
        }
    }
    return false;
}

QString Isolated(const QString &text, bool force)
{
    if (!force && !HoldsOtherDirections(text)) {
        return text;
    }
    // The marks of the text itself are closed, and none of them closes ours. A line break ends them all.
    QString isolated(FirstStrongIsolate);
    qsizetype open = 0;
    for (const QChar unit : text) {
        switch (unit.direction()) {
        case QChar::DirLRI:
        case QChar::DirRLI:
        case QChar::DirFSI:
            ++open;
            break;
        case QChar::DirPDI:
            if (open == 0) {
                continue;
            }
            --open;
            break;
        case QChar::DirB:
            isolated += QString(open + 1, PopIsolate);
            open = 0;
            isolated += unit;
            isolated += FirstStrongIsolate;
            continue;
        default:
            break;
        }
        isolated += unit;
    }
    return isolated + QString(open + 1, PopIsolate);
}

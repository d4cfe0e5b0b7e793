// SPDX-License-Identifier: MIT
#include "platform/local_formats.h"

#include <QLocale>

QString FormatShortDate(QDate date)
{
    const QLocale locale = QLocale::system();
    QString format = locale.dateFormat(QLocale::ShortFormat);
    if (!format.contains(QStringLiteral("yyyy"))) {
        format.replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
    }
    return locale.toString(date, format);
}

QString FormatNumber(qint64 number)
{
    return QLocale::system().toString(number);
}

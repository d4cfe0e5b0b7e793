// SPDX-License-Identifier: MIT
#include "commandline/list_json.h"

#include "commandline/console.h"

#include <QJsonDocument>

QString JsonText(const QJsonArray &array)
{
    const QString json = QString::fromUtf8(QJsonDocument(array).toJson());
    QString text;
    text.reserve(json.size());
    for (const QChar unit : json) {
        // Surrogates come in pairs here, and what is not printable alone stands in a string.
        if (unit.isSurrogate() || Printable(QStringView(&unit, 1)) == QStringView(&unit, 1)) {
            text += unit;
        } else {
            text += QStringLiteral("\\u%1").arg(unit.unicode(), 4, 16, QChar(u'0'));
        }
    }
    return text;
}

// SPDX-License-Identifier: MIT
#include "resources/texts.h"

#include <QFile>

QString FillText(const QString &format, const QStringList &values)
{
    QString text;
    qsizetype used = 0;
    for (qsizetype i = 0; i < format.size(); ++i) {
        const QChar next = format.at(i) == u'%' && i + 1 < format.size() ? format.at(i + 1) : QChar();
        if (next == u'%') {
            text += u'%';
            ++i;
        } else if (next == u's' || next == u'd') {
            text += values.value(used++);
            ++i;
        } else {
            text += format.at(i);
        }
    }
    return text;
}

CTexts::CTexts()
{
    if (!m_own.Load(OwnModule())) {
        qFatal("The program's own texts are missing.");
    }
}

QByteArray CTexts::OwnModule()
{
    Q_INIT_RESOURCE(texts); // A static library's resources are linked only when asked for.
    QFile own(QStringLiteral(":/texts/swedish.ordmod"));
    return own.open(QIODevice::ReadOnly) ? own.readAll() : QByteArray();
}

bool CTexts::LoadModule(const QByteArray &module)
{
    return m_module.Load(module);
}

QString CTexts::TextOf(const CStringTable &module, int number) const
{
    // Several times the program's longest text.
    constexpr qsizetype Longest = 4000;
    const QString text = module.Text(number);
    const bool usable = module.Contains(number) && text.size() <= Longest && !text.trimmed().isEmpty();
    return usable ? text : m_own.Text(number);
}

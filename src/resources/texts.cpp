// SPDX-License-Identifier: MIT
#include "resources/texts.h"

#include <QFile>

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

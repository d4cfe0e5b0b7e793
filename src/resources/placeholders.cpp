// SPDX-License-Identifier: MIT
#include "resources/placeholders.h"

#include "platform/plain_text.h"

#include <algorithm>

namespace {

/// What stands at a per cent sign: how long it is and what takes its place; a length of 0 for the sign itself.
struct Found
{
    qsizetype length = 0;
    QString replacement;
};

template<class Find>
QString Fill(const QString &format, const Find &find)
{
    QString text;
    qsizetype done = 0;
    for (qsizetype i = format.indexOf(u'%'); i >= 0; i = format.indexOf(u'%', i)) {
        const Found found = find(QStringView(format).sliced(i));
        if (found.length == 0) {
            ++i;
            continue;
        }
        text += QStringView(format).sliced(done, i - done);
        text += found.replacement;
        i += found.length;
        done = i;
    }
    text += QStringView(format).sliced(done);
    return text;
}

/// How values look in a text of that form.
class CValues
{
public:
    CValues(const QString &format, FilledFor use)
        : m_use(use), m_otherDirections(use == FilledFor::Screen && HoldsOtherDirections(format))
    {
    }

    QString Shown(const QString &value) const
    {
        if (m_use == FilledFor::Storage) {
            return value;
        }
        // In a sentence that runs from right to left it is the other letters that run the other way.
        const auto isLetter = [](QChar unit) { return unit.isLetter() || unit.isSurrogate(); };
        return Isolated(value, m_otherDirections && std::ranges::any_of(value, isLetter));
    }

private:
    FilledFor m_use;
    bool m_otherDirections;
};

QString FillOnce(const QString &format, const QList<Placeholder> &placeholders, const CValues &shown)
{
    return Fill(format, [&](QStringView rest) -> Found {
        for (const Placeholder &placeholder : placeholders) {
            if (rest.startsWith(placeholder.name)) {
                return {placeholder.name.size(), shown.Shown(placeholder.value)};
            }
        }
        return {};
    });
}

}

QString FillText(const QString &format, const QStringList &values, FilledFor use)
{
    const CValues shown(format, use);
    qsizetype used = 0;
    return Fill(format, [&](QStringView rest) -> Found {
        const QChar kind = rest.size() > 1 ? rest.at(1) : QChar();
        if (kind == u's' || kind == u'd') {
            return {2, shown.Shown(values.value(used++))};
        }
        return kind == u'%' ? Found{2, QStringLiteral("%")} : Found{};
    });
}

QString FillPlaceholders(const QString &format, const QList<Placeholder> &placeholders, FilledFor use)
{
    return FillOnce(format, placeholders, CValues(format, use));
}

QString FillInOrder(const QString &format, const QList<Placeholder> &placeholders, FilledFor use)
{
    const CValues shown(format, use);
    QString text = format;
    for (const Placeholder &placeholder : placeholders) {
        text = FillOnce(text, {placeholder}, shown);
    }
    return text;
}

// SPDX-License-Identifier: MIT
#include "dictionaries/dictionary_choices.h"

namespace {

QString KeyOf(const QString &from, const QString &to)
{
    return from.simplified().toLower() + u'\t' + to.simplified().toLower() + u'\t';
}

}

std::optional<QString> CDictionaryChoices::Chosen(const QString &from, const QString &to) const
{
    const QString key = KeyOf(from, to);
    for (const QString &choice : m_stored) {
        // Behind a last tabulator there may be nothing, and the store keeps no blanks at the end.
        if ((choice + u'\t').startsWith(key)) {
            return choice.mid(key.size());
        }
    }
    return {};
}

void CDictionaryChoices::Choose(const QString &from, const QString &to, const std::optional<QString> &name)
{
    const QString key = KeyOf(from, to);
    m_stored.removeIf([&key](const QString &choice) { return (choice + u'\t').startsWith(key); });
    if (name) {
        m_stored.append(key + *name);
    }
}

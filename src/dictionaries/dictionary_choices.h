// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <optional>

/// Which dictionary the user chose for which languages, as a list of texts: the language translated from, the
/// one translated into and the name of the dictionary, with tabulators between. The name is empty where none is
/// wanted; languages that are not in the list have the one that is found by their names.
class CDictionaryChoices
{
public:
    explicit CDictionaryChoices(QStringList stored = {}) : m_stored(std::move(stored)) { }

    const QStringList &Stored() const { return m_stored; }
    /// The dictionary chosen for two languages; none when there was no choice.
    std::optional<QString> Chosen(const QString &from, const QString &to) const;
    void Choose(const QString &from, const QString &to, const std::optional<QString> &name);

private:
    QStringList m_stored;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

/// Texts by number, read from a language module: a UTF-8 text whose first line is "Ordelin-språkmodul", then
/// lines `number=text` with the escapes \n \r \t \\, a line `bitmap170=` with a picture in base64, and comment
/// lines that begin with "#".
class CStringTable
{
public:
    /// Returns false, and leaves the table empty, when `module` does not begin like a module. Lines that can't
    /// be read are skipped; of a number given twice the last counts.
    [[nodiscard]] bool Load(const QByteArray &module);

    bool Contains(int number) const { return m_texts.contains(number); }
    /// Empty for a number that the table lacks.
    QString Text(int number) const { return m_texts.value(number); }
    QList<int> Numbers() const { return m_texts.keys(); }
    /// The module's picture, a PNG file of 16×16 pixels if it is what it should be; empty for none.
    const QByteArray &Picture() const { return m_picture; }

private:
    QHash<int, QString> m_texts;
    QByteArray m_picture;
};

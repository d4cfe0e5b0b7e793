// SPDX-License-Identifier: MIT
#pragma once

#include "support/files.h"

#include <QList>

#include <utility>

/// What the index of a dictionary calls an article, and its text.
using Article = std::pair<QByteArray, QByteArray>;

/// The index and the articles of a dictionary; `articles` stand in the order of the index.
inline std::pair<QByteArray, QByteArray> DictionaryBytes(const QList<Article> &articles)
{
    const auto number = [](qint64 value) {
        const char *const alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
        QByteArray digits;
        do {
            digits.prepend(alphabet[value % 64]);
            value /= 64;
        } while (value > 0);
        return digits;
    };
    QByteArray index;
    QByteArray text;
    for (const auto &[headword, article] : articles) {
        index += headword + '\t' + number(text.size()) + '\t' + number(article.size()) + '\n';
        text += article;
    }
    return {index, text};
}

/// Writes both files of a dictionary; returns whether that went well.
inline bool WriteDictionary(const QTemporaryDir &folder, const QString &name, const QList<Article> &articles)
{
    const auto [index, text] = DictionaryBytes(articles);
    return !WriteFile(folder.filePath(name + QStringLiteral(".index")), index).isEmpty()
        && !WriteFile(folder.filePath(name + QStringLiteral(".dict")), text).isEmpty();
}

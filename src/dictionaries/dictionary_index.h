// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QString>

#include <vector>

/// Where the article of a headword stands in the text of a dictionary, in bytes.
struct ArticlePlace
{
    QString headword;
    qint64 offset = 0;
    qint64 length = 0;
};

/// The index of a dictionary in the format of the DICT servers (dictd): a line for each headword, with the
/// place of its article as two numbers in base 64, tabulators between. The file is mapped, never read whole,
/// and searched by halving.
class CDictionaryIndex
{
public:
    CDictionaryIndex() = default;

    /// Returns false for what can't be read or is no index.
    [[nodiscard]] bool Open(const QString &path);

    /// The articles of a headword in the order of the index, at most `most`. Letter case, and all characters
    /// but letters, digits and blanks, count only where the index has them.
    std::vector<ArticlePlace> Find(const QString &headword, int most) const;
    /// Those of all headwords that begin with a text; none for one without letters and digits.
    std::vector<ArticlePlace> FindBeginning(const QString &start, int most) const;
    /// Those of all headwords that hold a text, in which "*" is any run of characters and "?" any one. All
    /// headwords are looked through, and as above all but letters, digits and blanks is ignored.
    std::vector<ArticlePlace> FindPart(const QString &text, int most) const;
    /// Those of all headwords, at most `most`.
    std::vector<ArticlePlace> All(int most) const;

private:
    QByteArrayView LineAt(qint64 start) const;
    /// By what a line is found.
    QByteArray KeyOf(qint64 start) const;
    std::vector<ArticlePlace> Search(const QString &text, bool whole, int most) const;
    [[nodiscard]] bool LookThrough();

    QFile m_file;
    QByteArrayView m_bytes; // Mapped.
    std::vector<qint64> m_starts; // Of the lines, in the order of their keys.
    bool m_isInOrder = true; // The file is in the order of its bytes, and its headwords are the keys.
};

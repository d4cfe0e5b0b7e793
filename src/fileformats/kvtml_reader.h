// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/foreign_entries.h"
#include "fileformats/formats.h"

#include <QStringList>
#include <QXmlStreamReader>

#include <array>

/// Reads a file of either version into a list. What the versions share stands in kvtml_reader.cpp.
class CKvtmlReader
{
public:
    /// All of them must outlive this.
    CKvtmlReader(CWordList &list, QIODevice &device, const FormatReadOptions &options, CLossCounter &losses);

    ReadResult Read();

private:
    /// One text of an entry and what stands beside it.
    struct Translation
    {
        QString text;
        QString remark;
        bool hasGrade = false;
        bool hasDetails = false;
    };

    bool NextChild();
    bool Is(QStringView name) const { return m_xml.name() == name; }
    /// The text of the element, without that of elements in it.
    QString Text();
    /// What an attribute of the element says; empty when it has none of this name.
    QString Attribute(QStringView name) const;
    /// Elements and attributes of a translation that are no vocabulary.
    static bool IsGrade(QStringView name);

    void ReadBody1();
    void ReadEntry1();
    Translation ReadTranslation1();

    void ReadBody2();
    void ReadInformation();
    void ReadIdentifiers();
    void ReadEntry2();
    /// The language of a translation in the order of the file, if it is wanted: by its identifier, else by its
    /// place in the entry. -1 for another.
    int LanguageOf(const QString &id, int place) const;
    Translation ReadTranslation2();

    /// Takes a translation to where its language, counted in the order of the file, belongs.
    void Choose(int language, Translation translation, std::array<Translation, 2> &chosen);
    void Insert(const std::array<Translation, 2> &chosen);
    void SetProperties();

    CWordList &m_list;
    const FormatReadOptions &m_options;
    CLossCounter &m_losses;
    CForeignEntries m_entries;
    QXmlStreamReader m_xml;
    QString m_title;
    QString m_comment;
    QString m_author;
    QStringList m_ids; // Of the languages, in the order of the file; none where nothing names them.
    QStringList m_names;
    bool m_tooLong = false;
};

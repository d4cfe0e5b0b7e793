// SPDX-License-Identifier: MIT
#include "fileformats/foreign_entries.h"
#include "fileformats/kvtml.h"
#include "fileformats/reading.h"
#include "fileformats/text_detection.h"
#include "fileformats/text_file_reader.h"
#include "model/term_syntax.h"
#include "model/word_list.h"
#include "platform/language_names.h"

#include <QIODevice>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

/// One text of an entry and what stands beside it.
struct Translation
{
    QString text;
    QString remark;
    bool hasGrade = false;
    bool hasDetails = false;
};

/// Elements and attributes of a translation that are no vocabulary.
bool IsGrade(QStringView name)
{
    return name == u"grade" || name == u"g" || name == u"c" || name == u"w" || name == u"d";
}

/// Reads a file of either version into a list.
class CKvtmlReader
{
public:
    CKvtmlReader(CWordList &list, QIODevice &device, const FormatReadOptions &options, CLossCounter &losses)
        : m_list(list), m_options(options), m_losses(losses), m_entries(options.terms, losses), m_xml(&device)
    {
        // What a file may make of its own entities, in characters.
        m_xml.setEntityExpansionLimit(4096);
    }

    ReadResult Read()
    {
        if (!m_xml.readNextStartElement() || m_xml.name() != u"kvtml") {
            return ReadResult::Damaged;
        }
        const QXmlStreamAttributes attributes = m_xml.attributes();
        const bool isFirst = !attributes.hasAttribute(QStringLiteral("version"))
            || attributes.value(QStringLiteral("version")).startsWith(u"1");
        if (isFirst) {
            m_title = attributes.value(QStringLiteral("title")).toString();
            m_comment = attributes.value(QStringLiteral("remark")).toString();
            m_author = attributes.value(QStringLiteral("author")).toString();
            ReadBody1();
        } else {
            ReadBody2();
        }
        if (m_tooLong) {
            return ReadResult::LineTooLong;
        }
        const bool stopped = !MayGoOn(m_list, m_options.keepGoing);
        if (m_xml.hasError() && !stopped) {
            return ReadResult::Damaged;
        }
        SetProperties();
        return ReadResult::Read;
    }

private:
    bool NextChild()
    {
        return !m_tooLong && MayGoOn(m_list, m_options.keepGoing) && m_xml.readNextStartElement();
    }
    bool Is(QStringView name) const { return m_xml.name() == name; }
    /// The text of the element, without that of elements in it.
    QString Text()
    {
        QString text = m_xml.readElementText(QXmlStreamReader::SkipChildElements);
        m_tooLong = m_tooLong || text.size() > CTextFileReader::LongestLine;
        return text;
    }

    void ReadBody2()
    {
        while (NextChild()) {
            if (Is(u"information")) {
                ReadInformation();
            } else if (Is(u"identifiers")) {
                ReadIdentifiers();
            } else if (Is(u"entries")) {
                while (NextChild()) {
                    if (Is(u"entry")) {
                        ReadEntry2();
                    } else {
                        m_xml.skipCurrentElement();
                    }
                }
            } else {
                // The groups of the entries, which a list has not.
                m_losses.Add(LossKind::Details, int(Is(u"lessons")));
                m_xml.skipCurrentElement();
            }
        }
    }

    void ReadInformation()
    {
        while (NextChild()) {
            if (Is(u"title")) {
                m_title = Text();
            } else if (Is(u"author")) {
                m_author = Text();
            } else if (Is(u"comment")) {
                m_comment = Text();
            } else {
                m_xml.skipCurrentElement();
            }
        }
    }

    void ReadIdentifiers()
    {
        while (NextChild()) {
            if (!Is(u"identifier")) {
                m_xml.skipCurrentElement();
                continue;
            }
            m_ids.append(m_xml.attributes().value(QStringLiteral("id")).toString());
            QString name;
            QString code;
            while (NextChild()) {
                if (Is(u"name")) {
                    name = Text();
                } else if (Is(u"locale")) {
                    code = Text();
                } else {
                    m_xml.skipCurrentElement();
                }
            }
            m_names.append(name.isEmpty() ? CLanguageNames::NameOf(code) : name);
        }
    }

    /// Which of the list's languages a translation is; -1 for none.
    int LanguageOf(QStringView id) const
    {
        for (const int language : {0, 1}) {
            const int wanted = m_options.languages[size_t(language)];
            if (m_ids.isEmpty() ? id.toInt() == wanted : m_ids.value(wanted) == id) {
                return language;
            }
        }
        return -1;
    }

    void ReadEntry2()
    {
        std::array<Translation, 2> chosen;
        while (NextChild()) {
            if (!Is(u"translation")) {
                m_xml.skipCurrentElement();
                continue;
            }
            const int language = LanguageOf(m_xml.attributes().value(QStringLiteral("id")));
            Translation translation = ReadTranslation2();
            if (language >= 0) {
                chosen[size_t(language)] = std::move(translation);
            } else {
                m_losses.Add(LossKind::OtherLanguages, int(!translation.text.isEmpty()));
            }
        }
        Insert(chosen);
    }

    Translation ReadTranslation2()
    {
        Translation translation;
        while (NextChild()) {
            if (Is(u"text")) {
                translation.text = Text();
            } else if (Is(u"comment")) {
                translation.remark = Text();
            } else if (IsGrade(m_xml.name())) {
                translation.hasGrade = true;
                m_xml.skipCurrentElement();
            } else {
                translation.hasDetails = true;
                m_xml.skipCurrentElement();
            }
        }
        return translation;
    }

    void ReadBody1()
    {
        while (NextChild()) {
            if (Is(u"e")) {
                ReadEntry1();
            } else {
                m_xml.skipCurrentElement();
            }
        }
    }

    void ReadEntry1()
    {
        std::array<Translation, 2> chosen;
        chosen[0].remark = m_xml.attributes().value(QStringLiteral("r")).toString();
        int place = 0;
        while (NextChild()) {
            if (!Is(u"o") && !Is(u"t")) {
                m_xml.skipCurrentElement();
                continue;
            }
            const QString code = m_xml.attributes().value(QStringLiteral("l")).toString();
            if (m_names.size() <= place) {
                m_names.append(CLanguageNames::NameOf(code)); // The first entry alone names the languages.
            }
            Translation translation = ReadTranslation1();
            const auto *const found = std::ranges::find(m_options.languages, place);
            if (found != m_options.languages.end()) {
                Translation &of = chosen[size_t(found - m_options.languages.begin())];
                translation.remark = translation.remark.isEmpty() ? of.remark : translation.remark;
                of = std::move(translation);
            } else {
                m_losses.Add(LossKind::OtherLanguages, int(!translation.text.isEmpty()));
            }
            ++place;
        }
        Insert(chosen);
    }

    Translation ReadTranslation1()
    {
        Translation translation;
        for (const QXmlStreamAttribute &attribute : m_xml.attributes()) {
            const QStringView name = attribute.name();
            if (name == u"r") {
                translation.remark = attribute.value().toString();
            } else if (IsGrade(name)) {
                translation.hasGrade = true;
            } else if (name != u"l" && name != u"width" && name != u"q" && name != u"s") {
                translation.hasDetails = true;
            }
        }
        translation.text = Text();
        return translation;
    }

    void Insert(const std::array<Translation, 2> &chosen)
    {
        if (m_tooLong || m_xml.hasError()) {
            return; // Half an entry is none.
        }
        const QString &remark = chosen[0].remark;
        const QString &other = chosen[1].remark;
        const QString note = remark.isEmpty() || other.isEmpty() || remark == other
            ? (remark.isEmpty() ? other : remark)
            : remark + QStringLiteral("; ") + other;
        CWordEntry entry = m_entries.Make({.term1 = chosen[0].text, .term2 = chosen[1].text, .note = note});
        for (const Translation &translation : chosen) {
            m_losses.Add(LossKind::Grades, int(translation.hasGrade));
            m_losses.Add(LossKind::Details, int(translation.hasDetails));
        }
        if (entry.HasTerm()) {
            m_list.Insert(std::move(entry));
        } else {
            m_losses.Add(LossKind::Rows, int(entry.HasNote()));
        }
    }

    void SetProperties()
    {
        for (QString *const text : {&m_title, &m_comment, &m_author}) {
            CleanSpaces(*text);
        }
        const QString joint = m_title.isEmpty() || m_comment.isEmpty() ? QString() : QStringLiteral(": ");
        m_list.SetProperties({.author = m_author, .comments = m_title + joint + m_comment});
        for (const int language : {0, 1}) {
            QString name = m_names.value(m_options.languages[size_t(language)]);
            CleanSpaces(name);
            m_list.SetLanguage(language, name);
        }
    }

    CWordList &m_list;
    const FormatReadOptions &m_options;
    CLossCounter &m_losses;
    CForeignEntries m_entries;
    QXmlStreamReader m_xml;
    QString m_title;
    QString m_comment;
    QString m_author;
    QStringList m_ids; // Of the languages, in the order of the file.
    QStringList m_names;
    bool m_tooLong = false;
};

}

bool KvtmlFormat::Recognises(const FormatSample &sample, FormatSource & /*source*/)
{
    constexpr qsizetype Enough = 4096;
    const QString start = DecodeHead(sample.head.first(std::min(Enough, sample.head.size())));
    return start.trimmed().startsWith(u'<') && start.contains(u"<kvtml");
}

ReadResult KvtmlFormat::Read(
    CWordList &list, FormatSource &source, const FormatReadOptions &options, CLossCounter &losses)
{
    return CKvtmlReader(list, source.device, options, losses).Read();
}

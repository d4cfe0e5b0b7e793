// SPDX-License-Identifier: MIT
#include "fileformats/kvtml_reader.h"

#include "fileformats/kvtml.h"
#include "fileformats/reading.h"
#include "fileformats/text_detection.h"
#include "fileformats/text_file_reader.h"
#include "model/term_syntax.h"
#include "model/word_list.h"

#include <QIODevice>

#include <algorithm>

CKvtmlReader::CKvtmlReader(
    CWordList &list, QIODevice &device, const FormatReadOptions &options, CLossCounter &losses)
    : m_list(list), m_options(options), m_losses(losses), m_entries(options.terms, losses), m_xml(&device)
{
    // What a file may make of its own entities, in characters.
    m_xml.setEntityExpansionLimit(4096);
}

ReadResult CKvtmlReader::Read()
{
    if (!m_xml.readNextStartElement() || !Is(u"kvtml")) {
        return ReadResult::Damaged;
    }
    const QString version = Attribute(u"version");
    if (version.isEmpty() || version.startsWith(u'1')) {
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

bool CKvtmlReader::NextChild()
{
    return !m_tooLong && MayGoOn(m_list, m_options.keepGoing) && m_xml.readNextStartElement();
}

QString CKvtmlReader::Text()
{
    QString text = m_xml.readElementText(QXmlStreamReader::SkipChildElements);
    m_tooLong = m_tooLong || text.size() > CTextFileReader::LongestLine;
    return text;
}

QString CKvtmlReader::Attribute(QStringView name) const
{
    for (const QXmlStreamAttribute &attribute : m_xml.attributes()) {
        if (attribute.name() == name) {
            return attribute.value().toString();
        }
    }
    return {};
}

bool CKvtmlReader::IsGrade(QStringView name)
{
    return name == u"grade" || name == u"g" || name == u"c" || name == u"w" || name == u"d";
}

void CKvtmlReader::Choose(int language, Translation translation, std::array<Translation, 2> &chosen)
{
    const auto *const found = std::ranges::find(m_options.languages, language);
    if (language >= 0 && found != m_options.languages.end()) {
        chosen[size_t(found - m_options.languages.begin())] = std::move(translation);
    } else {
        m_losses.Add(LossKind::OtherLanguages, int(!translation.text.isEmpty()));
    }
}

void CKvtmlReader::Insert(const std::array<Translation, 2> &chosen)
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

void CKvtmlReader::SetProperties()
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

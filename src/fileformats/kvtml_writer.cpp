// SPDX-License-Identifier: MIT
#include "fileformats/foreign_entries.h"
#include "fileformats/kvtml.h"
#include "fileformats/plain_formats.h"
#include "fileformats/text_output.h"
#include "model/word_list.h"
#include "platform/language_names.h"

#include <algorithm>

namespace {

/// Whether XML may hold this code unit.
bool IsXmlUnit(QChar unit)
{
    return (unit >= u' ' || unit == u'\t' || unit == u'\n' || unit == u'\r') && unit < u'\uFFFE';
}

bool CanBeXml(const QString &text)
{
    return text.isValidUtf16() && std::ranges::all_of(text, IsXmlUnit);
}

class CXml
{
public:
    explicit CXml(CTextOutput &output) : m_output(output) { }

    /// What is no text but the file's own.
    void Line(QStringView markup)
    {
        m_output.Write(markup);
        m_output.Write(u"\n");
    }
    /// An element with text in it, between what begins and what ends it; none for no text.
    void Element(QStringView start, const QString &text, QStringView end)
    {
        if (!text.isEmpty()) {
            m_output.Write(start);
            Text(text);
            Line(end);
        }
    }

private:
    void Text(QStringView text)
    {
        while (true) {
            const auto special = std::ranges::find_if_not(text, IsPlainUnit);
            const qsizetype plain = special - text.begin();
            m_output.Write(text.first(plain));
            if (plain == text.size()) {
                return;
            }
            m_output.Write(Escaped(*special));
            text = text.sliced(plain + 1);
        }
    }
    static bool IsPlainUnit(QChar unit)
    {
        return unit != u'&' && unit != u'<' && unit != u'>' && unit != u'\r' && IsXmlUnit(unit);
    }
    static QStringView Escaped(QChar unit)
    {
        switch (unit.unicode()) {
        case u'&':
            return u"&amp;";
        case u'<':
            return u"&lt;";
        case u'>':
            return u"&gt;";
        case u'\r':
            return u"&#13;";
        default:
            return u"\uFFFD";
        }
    }

    CTextOutput &m_output;
};

/// What is in front of the first colon is the title, as in the lists that come with the program.
void WriteComments(const QString &comments, CXml &xml)
{
    const qsizetype colon = comments.indexOf(QStringLiteral(": "));
    const bool hasBoth = colon > 0 && colon + 2 < comments.size();
    xml.Element(u"    <title>", hasBoth ? comments.first(colon) : comments, u"</title>");
    if (hasBoth) {
        xml.Element(u"    <comment>", comments.sliced(colon + 2), u"</comment>");
    }
}

}

void KvtmlFormat::Count(const CWordList &list, const FormatWriteOptions & /*options*/, CLossCounter &losses)
{
    list.ForEach([&](int, const CWordEntry &entry) {
        losses.Add(LossKind::EntriesWithoutTerms, int(!entry.HasTerm()));
        losses.Add(LossKind::Flags, int(entry.GetFlag(0)) + int(entry.GetFlag(1)));
        for (int field = 0; field < CWordEntry::FieldCount; ++field) {
            losses.Add(LossKind::Characters, int(!CanBeXml(entry.GetField(field))));
        }
    });
    CountProperties(list, true, true, losses);
}

bool KvtmlFormat::Write(const CWordList &list, QIODevice &device, const FormatWriteOptions &options)
{
    CTextOutput output(device, TextEncoding::Utf8, false);
    CXml xml(output);
    xml.Line(u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
    xml.Line(u"<!DOCTYPE kvtml PUBLIC \"kvtml2.dtd\" \"http://edu.kde.org/kvtml/kvtml2.dtd\">");
    xml.Line(u"<kvtml version=\"2.0\">");
    xml.Line(u"  <information>");
    xml.Line(u"    <generator>Ordelin</generator>");
    WriteComments(list.GetComments(), xml);
    xml.Element(u"    <author>", list.GetAuthor(), u"</author>");
    xml.Line(u"  </information>");
    xml.Line(u"  <identifiers>");
    for (const int language : {0, 1}) {
        xml.Line(language == 0 ? u"    <identifier id=\"0\">" : u"    <identifier id=\"1\">");
        const QString &name = list.GetLanguage(language);
        if (!name.isEmpty()) {
            xml.Element(u"      <name>", name, u"</name>");
            const QString code = CLanguageNames::ShortCodeOf(CLanguageNames().CodeOf(name));
            xml.Element(u"      <locale>", code, u"</locale>");
        }
        xml.Line(u"    </identifier>");
    }
    xml.Line(u"  </identifiers>");
    xml.Line(u"  <entries>");
    int id = 0;
    list.ForEach([&](int, const CWordEntry &entry) {
        if (!entry.HasTerm()) {
            return;
        }
        const auto term = [&](int language) {
            return WithAlternativeMark(entry.GetText(language), options.alternatives);
        };
        xml.Element(u"    <entry id=\"", QString::number(id++), u"\">");
        xml.Line(u"      <translation id=\"0\">");
        xml.Element(u"        <text>", term(0), u"</text>");
        xml.Element(u"        <comment>", entry.GetNote(), u"</comment>");
        xml.Line(u"      </translation>\n      <translation id=\"1\">");
        xml.Element(u"        <text>", term(1), u"</text>");
        xml.Line(u"      </translation>\n    </entry>");
    });
    xml.Line(u"  </entries>");
    xml.Line(u"</kvtml>");
    return output.Finish();
}

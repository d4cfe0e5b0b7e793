// SPDX-License-Identifier: MIT
#include "fileformats/kvtml_reader.h"
#include "platform/language_names.h"

// The first version: entries "e" with texts "o" and "t", whose language is that of their place.

void CKvtmlReader::ReadBody1()
{
    m_title = Attribute(u"title");
    m_comment = Attribute(u"remark");
    m_author = Attribute(u"author");
    while (NextChild()) {
        if (Is(u"e")) {
            ReadEntry1();
        } else {
            // The groups of the entries, which a list has not.
            m_losses.Add(LossKind::Details, int(Is(u"lesson")));
            m_xml.skipCurrentElement();
        }
    }
}

void CKvtmlReader::ReadEntry1()
{
    std::array<Translation, 2> chosen;
    const QString remark = Attribute(u"r");
    int place = 0;
    while (NextChild()) {
        if (!Is(u"o") && !Is(u"t")) {
            m_xml.skipCurrentElement();
            continue;
        }
        if (m_names.size() <= place) {
            m_names.append(
                CLanguageNames::NameOf(Attribute(u"l"))); // The first entry alone names the languages.
        }
        Choose(place++, ReadTranslation1(), chosen);
    }
    if (chosen[0].remark.isEmpty()) {
        chosen[0].remark = remark;
    }
    Insert(chosen);
}

CKvtmlReader::Translation CKvtmlReader::ReadTranslation1()
{
    Translation translation;
    const QXmlStreamAttributes attributes = m_xml.attributes();
    for (const QXmlStreamAttribute &attribute : attributes) {
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

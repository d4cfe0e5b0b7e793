// SPDX-License-Identifier: MIT
#include "document/win32_doc.h"

#include "fileformats/word_list_file.h"
#include "platform/local_formats.h"
#include "platform/user_prompt.h"
#include "resources/text_numbers.h"
#include "resources/texts.h"
#include "settings/editor_settings.h"

#include <QFileInfo>

namespace {

/// The first of two texts that is not empty.
QString FirstGiven(const QString &first, const QString &second)
{
    return first.isEmpty() ? second : first;
}

}

CWin32Doc::CWin32Doc(DocumentServices services, QObject *parent)
    : QObject(parent), m_services(std::move(services))
{
}

CWordList &CWin32Doc::BeginChange()
{
    ++m_changeCounter;
    return m_list;
}

QString CWin32Doc::Title() const
{
    const QString name = m_path.isEmpty() ? m_services.texts.Get(Text::Unnamed) : QFileInfo(m_path).fileName();
    return m_list.IsSaved() ? name : QStringLiteral("* ") + name;
}

void CWin32Doc::DeleteContents()
{
    BeginChange().Reset();
    m_path.clear();
}

void CWin32Doc::OnNewDocument()
{
    DeleteContents();
    const CTexts &texts = m_services.texts;
    const EditorSettings &settings = m_services.settings;
    m_list.SetComments(
        ExpandPlaceholders(FirstGiven(settings.standardComments, texts.Get(Text::StandardComments))));
    const QString author = FirstGiven(m_list.GetAuthor(), settings.author);
    const QString language1 =
        FirstGiven(m_list.GetLanguage(0), FirstGiven(settings.language1, texts.Get(Text::Language1)));
    const QString language2 =
        FirstGiven(m_list.GetLanguage(1), FirstGiven(settings.language2, texts.Get(Text::Language2)));
    m_list.SetProperties({.language1 = language1, .language2 = language2, .author = author});
    m_list.SetSaved(true);
    Q_EMIT ListReplaced();
}

bool CWin32Doc::OpenDocument(const QString &path)
{
    DeleteContents();
    m_path = path;
    const ReadResult result = ReadWordListFile(m_list, path);
    switch (result) {
    case ReadResult::Read:
    case ReadResult::ReadLossy:
        break;
    case ReadResult::CannotOpen:
        m_path.clear();
        m_list.Reset();
        m_services.prompt.Tell(m_services.texts.Prompt(Text::CannotOpen, {path}), PromptIcon::Error);
        break;
    case ReadResult::NewerVersion:
        // Without a path, saving asks for a name, and the newer file is not overwritten by an older layout.
        m_path.clear();
        m_services.prompt.Tell(m_services.texts.Prompt(Text::NewerVersion), PromptIcon::Warning);
        break;
    case ReadResult::PlainText:
        m_path.clear();
        m_services.prompt.Tell(m_services.texts.Prompt(Text::ReadAsPlainText), PromptIcon::Warning);
        break;
    }
    Q_EMIT ListReplaced();
    return result != ReadResult::CannotOpen;
}

bool CWin32Doc::OnSaveDocument(const QString &path)
{
    const WriteOptions options = {.forceUnicode = m_services.settings.alwaysSaveInUnicode};
    if (!WriteWordListFile(m_list, path, options)) {
        m_services.prompt.Tell(m_services.texts.Prompt(Text::CannotSave, {path}), PromptIcon::Warning);
        return false;
    }
    m_path = path;
    Q_EMIT TitleChanged();
    return true;
}

QString CWin32Doc::ExpandPlaceholders(const QString &text) const
{
    QString expanded = text;
    expanded.replace(QStringLiteral("%language1"), m_list.GetLanguage(0));
    expanded.replace(QStringLiteral("%language2"), m_list.GetLanguage(1));
    expanded.replace(QStringLiteral("%comments"), m_list.GetComments());
    expanded.replace(QStringLiteral("%author"), m_list.GetAuthor());
    expanded.replace(QStringLiteral("%nwords"), FormatNumber(m_list.Count()));
    const QString date = FormatShortDate(m_services.today());
    if (!date.isEmpty()) {
        expanded.replace(QStringLiteral("%date"), date);
    }
    return expanded;
}

QString CWin32Doc::SuggestFileName() const
{
    QString name = ExpandPlaceholders(
        FirstGiven(m_services.settings.standardFilename, m_services.texts.Get(Text::SuggestedFileName)));
    name.removeIf([](QChar character) { return QStringView(u"\\/:*?\"<>|").contains(character); });
    return name;
}

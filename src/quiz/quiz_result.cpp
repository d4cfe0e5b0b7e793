// SPDX-License-Identifier: MIT
#include "quiz/quiz_result.h"

#include "document/file_filters.h"
#include "document/win32_doc.h"
#include "fileformats/formats.h"
#include "fileformats/text_file_writer.h"
#include "platform/file_chooser.h"
#include "platform/file_name.h"
#include "platform/user_prompt.h"
#include "quiz/quiz_session.h"
#include "quiz/rounding.h"
#include "quiz/text_numbers.h"
#include "resources/texts.h"
#include "settings/quiz_settings.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <cmath>

CQuizResult::CQuizResult(CQuizSession &session, ResultServices services, ResultMode mode)
    : m_session(session), m_services(services), m_mode(mode), m_proposesFlags(!session.settings().learning),
      m_model(session, services.texts, mode)
{
}

bool CQuizResult::showsRightAnswers() const
{
    return m_mode == ResultMode::AfterQuiz;
}

QString CQuizResult::summary() const
{
    return m_services.texts.Fill(Text::ResultSummary,
        {QString::number(m_session.wordCount()),
            QString::number(m_session.totalRight() + m_session.totalWrong()),
            QString::number(m_session.totalRight()), QString::number(roundHalfUp(m_session.totalPercent()))});
}

int CQuizResult::rightShare() const
{
    return int(std::lround(m_session.totalPercent() * 10));
}

FlagLimits CQuizResult::limits() const
{
    return m_proposesFlags ? FlagLimits::of(m_services.settings) : FlagLimits();
}

QString CQuizResult::unanswerableLine() const
{
    const int count = m_session.unanswerableCount();
    return count == 0 ? QString()
        : count == 1  ? m_services.texts.Get(Text::OneWordUnanswerable)
                      : m_services.texts.Fill(Text::WordsUnanswerable, {QString::number(count)});
}

QString CQuizResult::flagLine() const
{
    const FlagChanges changes = m_session.flagChanges(limits());
    const QString flag = QString::number(changes.flag.size());
    const QString unflag = QString::number(changes.unflag.size());
    const CTexts &texts = m_services.texts;
    if (changes.flag.empty()) {
        return changes.unflag.empty() ? texts.Get(Text::NoFlagsChange)
                                      : texts.Fill(Text::WillBeUnflagged, {unflag});
    }
    return changes.unflag.empty() ? texts.Fill(Text::WillBeFlagged, {flag})
                                  : texts.Fill(Text::WillBeFlaggedAndUnflagged, {flag, unflag});
}

void CQuizResult::applyFlags()
{
    m_session.applyFlags(limits());
}

QString CQuizResult::table() const
{
    const auto line = [&](auto cell) {
        QStringList cells;
        for (int column = 0; column < m_model.columnCount(); ++column) {
            cells.append(cell(column).toString());
        }
        return cells.join(u'\t') + QStringLiteral("\r\n");
    };
    QString text = line([&](int column) { return m_model.headerData(column, Qt::Horizontal); });
    for (int row = 0; row < m_model.rowCount(); ++row) {
        text += line([&](int column) { return m_model.index(row, column).data(CQuizResultModel::StoredRole); });
    }
    return text + summary();
}

bool CQuizResult::isListsOwnFile(const QString &path)
{
    if (!IsSameFile(m_session.document().Path(), path)) {
        return false;
    }
    m_services.prompt.Tell(m_services.texts.Prompt(Text::HoldsWholeList, {path}), PromptIcon::Warning);
    return true;
}

QString CQuizResult::proposedFile(int name, const QString &suffix) const
{
    const CWin32Doc &document = m_session.document();
    const QFileInfo file(document.Path());
    const bool named = !document.Path().isEmpty();
    const QString folder =
        named ? file.absolutePath() : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString base = named ? file.completeBaseName() : document.SuggestFileName();
    return QDir(folder).filePath(m_services.texts.Fill(name, {base}, FilledFor::Storage) + u'.' + suffix);
}

void CQuizResult::saveTable()
{
    const CTexts &texts = m_services.texts;
    const QString suffix = texts.Get(Text::ResultSuffix);
    const auto [path, filter] = m_services.chooser.ChooseFileToSave({.title = texts.Get(Text::SaveResultTitle),
        .filters = FileFilters(texts.Get(Text::ResultFilters)),
        .start = proposedFile(Text::ResultFileName, suffix),
        .defaultSuffix = suffix});
    if (path.isEmpty() || isListsOwnFile(path)) {
        return;
    }
    CTextFileWriter writer;
    bool written = writer.Open(path, filter == 0 ? TextEncoding::Ansi : TextEncoding::Utf16LittleEndian);
    if (written) {
        writer.Write(table());
        written = writer.Close();
    }
    if (!written) {
        m_services.prompt.Tell(texts.Prompt(Text::CannotSave, {path}), PromptIcon::Warning);
    } else if (writer.Lossy()) {
        m_services.prompt.Tell(texts.Prompt(Text::SavedWithoutCharacters, {path}), PromptIcon::Warning);
    }
}

bool CQuizResult::hasMistakes() const
{
    return !m_session.mistakes().empty();
}

void CQuizResult::saveMistakes()
{
    const CTexts &texts = m_services.texts;
    const QString suffix = QStringLiteral("gls");
    const QString path = m_services.chooser
                             .ChooseFileToSave({.title = texts.Get(Text::SaveMistakesTitle),
                                 .filters = FormatFilters(FormatsToStayIn(), texts),
                                 .start = proposedFile(Text::MistakesFileName, suffix),
                                 .defaultSuffix = suffix})
                             .path;
    if (!path.isEmpty() && !isListsOwnFile(path)) {
        m_session.document().SaveEntries(path, m_session.mistakes());
    }
}

bool flagLimitsContradict(const ResultSettings &settings)
{
    // Kept: equal limits too, although the message speaks of a greater one.
    return settings.flagWord && settings.unFlagWord && settings.unFlagWordLimit >= settings.flagWordLimit;
}

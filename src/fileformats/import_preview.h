// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/formats.h"
#include "model/word_entry.h"

#include <QHash>

#include <memory>

/// What is chosen for a separated text before it is read.
struct ImportChoices
{
    SeparatedTextOptions layout = {};
    TermOptions terms = {};

    bool operator==(const ImportChoices &) const = default;
};

/// Shows how the start of a separated text would be read, with what may be chosen, and reads it. Knows no
/// window.
class CImportPreview
{
public:
    static constexpr int MostRows = 200;

    struct Row
    {
        QStringList cells; ///< As in the file, each cut to MaxShownLength.
        std::optional<CWordEntry> entry; ///< None for a row without a term, which is left out.
    };

    CImportPreview();
    ~CImportPreview();
    CImportPreview(const CImportPreview &) = delete;
    CImportPreview &operator=(const CImportPreview &) = delete;

    /// Each guesses everything. Returns why a file is refused, or Read.
    [[nodiscard]] ReadResult OpenFile(const QString &path);
    void OpenText(const QString &text);

    const ImportChoices &Choices() const { return m_choices; }
    /// Takes choices as they were for another text. Returns false, and takes none, where the text has another
    /// number of columns.
    bool Adopt(const ImportChoices &choices);
    /// These three guess the columns and the heading anew. The encoding means nothing for a text that is no
    /// file.
    void SetSeparator(char16_t separator);
    void SetQuote(char16_t quote);
    void SetEncoding(TextEncoding encoding);
    /// Guesses the columns anew.
    void SetHeading(bool hasHeading);
    /// The column that was this kind before becomes what this one was.
    void SetColumn(int column, TextColumn kind);
    void SetTerms(const TermOptions &terms);

    const std::vector<Row> &Rows() const { return m_rows; }
    /// As many as the longest of the rows has.
    int ColumnCount() const { return m_columnCount; }
    TextColumn Column(int column) const;
    /// The names of the columns by the heading; empty without one.
    const QStringList &Heading() const { return m_heading; }
    /// Whether the text has more rows than are shown.
    bool HasMore() const { return m_hasMore; }
    /// What could not be taken of the rows that are shown.
    const FormatLosses &Losses() const { return m_losses; }
    /// Whether it is a file: a text that is none has no encoding.
    bool IsFile() const { return !m_path.isEmpty(); }
    /// Whether a term is chosen, so that there would be entries.
    bool CanRead() const;

    /// How a file is read as chosen.
    FormatReadOptions ReadOptions() const;
    /// Reads the whole text as chosen.
    [[nodiscard]] FormatReading Read(CWordList &list, const KeepGoing *keepGoing = nullptr) const;

private:
    /// Opens the text again; null where it is gone.
    std::unique_ptr<QIODevice> Device() const;
    void GuessAll();
    /// Without a given heading, that is guessed too.
    void GuessColumnsAnew(std::optional<bool> hasHeading = {});
    void Refresh();

    QString m_path; // Empty for a text that is no file.
    QByteArray m_bytes; // That text.
    ImportChoices m_choices;
    std::vector<Row> m_rows;
    QStringList m_heading;
    FormatLosses m_losses;
    int m_columnCount = 0;
    bool m_hasMore = false;
};

/// The choices of the last file from each folder, for as long as the program runs.
class CRememberedChoices
{
public:
    void Remember(const QString &folder, const ImportChoices &choices) { m_choices.insert(folder, choices); }
    std::optional<ImportChoices> Of(const QString &folder) const;

private:
    QHash<QString, ImportChoices> m_choices;
};

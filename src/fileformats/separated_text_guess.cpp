// SPDX-License-Identifier: MIT
#include "fileformats/separated_text_guess.h"

#include "fileformats/column_guess.h"
#include "fileformats/formats.h"
#include "fileformats/row_reader.h"
#include "fileformats/text_detection.h"

#include <QBuffer>

#include <algorithm>
#include <map>
#include <tuple>

namespace {

bool IsBlank(const QStringList &row)
{
    return std::ranges::all_of(row, [](const QString &cell) { return cell.trimmed().isEmpty(); });
}

/// How well a separator fits.
struct Fit
{
    double pairs = 0; ///< The share of the rows that have two columns or more.
    /// A blank stands behind no separator; in sentences one does.
    bool isTight = true;
    double share = 0; ///< That of the rows with as many columns as most have.
    qsizetype columns = 0; ///< As most rows have.

    bool IsBetterThan(const Fit &other) const
    {
        return std::tie(pairs, isTight, share) > std::tie(other.pairs, other.isTight, other.share);
    }
};

bool IsTight(const QStringList &row)
{
    return std::none_of(row.begin() + 1, row.end(), [](const QString &cell) { return cell.startsWith(u' '); });
}

Fit FitOf(const SampleRows &sample)
{
    Fit fit;
    std::map<qsizetype, int> rowsByColumns;
    const auto rows = BelowTitles(sample.rows);
    for (const QStringList &row : rows) {
        ++rowsByColumns[row.size()];
        fit.isTight = fit.isTight && IsTight(row);
    }
    for (const auto &[columns, count] : rowsByColumns) {
        const double share = double(count) / double(rows.size());
        if (columns > 1) {
            fit.pairs += share;
            if (share >= fit.share) {
                fit.share = share;
                fit.columns = columns;
            }
        }
    }
    return fit;
}

bool LooksSeparated(const SampleRows &sample, const Fit &fit, char16_t separator)
{
    constexpr qsizetype MostColumns = 30;
    const auto rows = BelowTitles(sample.rows);
    const bool everyRowFits = std::ranges::all_of(rows, [](const QStringList &row) { return row.size() > 1; });
    if (!everyRowFits || fit.columns > MostColumns || rows.size() < (separator == u'\t' ? 1 : 2)
        || (separator == u',' && (fit.share < 1 || !fit.isTight))) {
        return false;
    }
    const auto pairs = std::ranges::count_if(
        rows, [](const QStringList &row) { return !row[0].isEmpty() && !row.value(1).isEmpty(); });
    return 2 * size_t(pairs) >= rows.size();
}

}

bool SaysSeparator(std::span<const QStringView> cells)
{
    return (cells.size() == 1 && cells[0].size() == 5 && cells[0].startsWith(u"sep="))
        || (cells.size() == 2 && cells[0] == u"sep=" && cells[1].isEmpty());
}

bool IsComment(std::span<const QStringView> cells)
{
    return cells.size() == 1 && cells[0].startsWith(u'#');
}

SampleRows TakeSampleRows(const QString &head, bool isWhole, char16_t separator, char16_t quote)
{
    QBuffer buffer;
    buffer.setData(head.toUtf8());
    buffer.open(QIODevice::ReadOnly);
    CTextInput input(buffer, TextEncoding::Utf8);
    CRowReader reader(input, separator, quote);
    SampleRows sample;
    bool isAtEnd = false;
    while (int(sample.rows.size()) < SampleRows::Most) {
        isAtEnd = !reader.ReadRow();
        if (isAtEnd) {
            break;
        }
        if (sample.rows.empty() && SaysSeparator(reader.Fields())) {
            continue;
        }
        QStringList row;
        for (const QStringView field : reader.Fields()) {
            row.append(field.toString());
        }
        if (!IsBlank(row) && !IsComment(reader.Fields())) {
            sample.rows.push_back(row);
        }
    }
    if (isAtEnd && !isWhole && sample.rows.size() > 1) {
        sample.rows.pop_back();
    }
    sample.quotedFields = reader.QuotedFields();
    sample.brokenFields = reader.OpenQuotes() + reader.LooseFields();
    return sample;
}

char16_t SeparatorOfSuffix(QStringView suffix)
{
    if (suffix == u"tsv" || suffix == u"tab") {
        return u'\t';
    }
    return suffix == u"psv" ? u'|' : u'\0';
}

SeparatedTextGuess GuessSeparatedText(const QString &head, bool isWhole, QStringView suffix)
{
    const char16_t usual = SeparatorOfSuffix(suffix);
    SeparatedTextGuess guess;
    guess.options.separator = usual != 0 ? usual : u',';
    SampleRows best;
    Fit bestFit;
    for (const char16_t separator : {usual, u'\t', u';', u'|', u','}) {
        if (separator == 0) {
            continue;
        }
        SampleRows sample = TakeSampleRows(head, isWhole, separator, u'"');
        const Fit fit = FitOf(sample);
        if (best.rows.empty() || fit.IsBetterThan(bestFit)) {
            guess.options.separator = fit.pairs > 0 ? separator : guess.options.separator;
            best = std::move(sample);
            bestFit = fit;
        }
    }
    if (best.brokenFields > best.quotedFields) {
        guess.options.quote = 0;
        best = TakeSampleRows(head, isWhole, guess.options.separator, 0);
        bestFit = FitOf(best);
    }
    guess.looksSeparated = LooksSeparated(best, bestFit, guess.options.separator);
    guess.options.hasHeading = GuessHeading(best.rows);
    guess.options.titleRows = guess.options.hasHeading ? GuessTitleRows(best.rows) : 0;
    guess.options.columns = GuessColumns(best.rows, guess.options.hasHeading);
    return guess;
}

SeparatedTextOptions CompletedOptions(QIODevice &device, const std::optional<SeparatedTextOptions> &options,
    QStringView suffix, const KeepGoing *keepGoing)
{
    SeparatedTextOptions complete = options.value_or(SeparatedTextOptions());
    if (!complete.encoding) {
        complete.encoding = DetectEncoding(device, keepGoing);
    }
    if (options && !options->columns.empty()) {
        return complete;
    }
    std::vector<char16_t> units;
    const qsizetype count = CTextInput(device, *complete.encoding).Read(units, 0);
    const QString head(reinterpret_cast<const QChar *>(units.data()), count);
    const bool isWhole = device.size() <= FormatSample::SampleSize;
    device.seek(0);
    if (!options) {
        const auto encoding = complete.encoding;
        complete = GuessSeparatedText(head, isWhole, suffix).options;
        complete.encoding = encoding;
        return complete;
    }
    complete.columns = GuessColumns(
        TakeSampleRows(head, isWhole, complete.separator, complete.quote).rows, complete.hasHeading);
    return complete;
}

// SPDX-License-Identifier: MIT
#include "fileformats/separated_text_guess.h"

#include "fileformats/column_guess.h"
#include "fileformats/formats.h"
#include "fileformats/row_reader.h"
#include "fileformats/text_detection.h"

#include <QBuffer>

#include <algorithm>
#include <map>

namespace {

bool IsBlank(const QStringList &row)
{
    return std::ranges::all_of(row, [](const QString &cell) { return cell.trimmed().isEmpty(); });
}

/// How well a separator fits: the columns that most rows have, and which share of the rows has them.
struct Fit
{
    qsizetype columns = 0;
    double share = 0;
};

Fit FitOf(const SampleRows &sample)
{
    std::map<qsizetype, int> rowsByColumns;
    int rows = 0;
    for (const QStringList &row : sample.rows) {
        if (!IsBlank(row)) {
            ++rowsByColumns[row.size()];
            ++rows;
        }
    }
    Fit fit;
    for (const auto &[columns, count] : rowsByColumns) {
        const double share = double(count) / rows;
        if (columns > 1 && share >= fit.share) {
            fit = {columns, share};
        }
    }
    return fit;
}

/// A comma with a blank behind it stands in a sentence.
bool HasCommaOfSentence(const SampleRows &sample)
{
    return std::ranges::any_of(sample.rows, [](const QStringList &row) {
        return std::any_of(
            row.begin() + 1, row.end(), [](const QString &cell) { return cell.startsWith(u' '); });
    });
}

bool LooksSeparated(const SampleRows &sample, const Fit &fit, char16_t separator)
{
    constexpr qsizetype MostColumns = 30;
    if (fit.share < 1 || fit.columns > MostColumns || sample.rows.size() < (separator == u'\t' ? 1 : 2)
        || (separator == u',' && HasCommaOfSentence(sample))) {
        return false;
    }
    const auto pairs = std::ranges::count_if(
        sample.rows, [](const QStringList &row) { return !row[0].isEmpty() && !row.value(1).isEmpty(); });
    return 2 * size_t(pairs) >= sample.rows.size();
}

}

bool SaysSeparator(std::span<const QStringView> cells)
{
    return (cells.size() == 1 && cells[0].size() == 5 && cells[0].startsWith(u"sep="))
        || (cells.size() == 2 && cells[0] == u"sep=" && cells[1].isEmpty());
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
        if (!IsBlank(row)) {
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
        if (best.rows.empty() || fit.share > bestFit.share) {
            guess.options.separator = bestFit.share > 0 || fit.share > 0 ? separator : guess.options.separator;
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

// SPDX-License-Identifier: MIT
#pragma once

#include "platform/safe_file.h"
#include "tools/ui/table_page_writer.h"

#include <QPdfWriter>

#include <optional>

/// Writes a table to a PDF file. The file is replaced when all of it is there, and left alone otherwise.
class CTablePdf : public QObject
{
    Q_OBJECT

public:
    explicit CTablePdf(QObject *parent = nullptr);
    ~CTablePdf() override;

    /// Returns false when the file can't be written.
    [[nodiscard]] bool Start(
        const QString &file, const QString &title, const std::shared_ptr<CTablePages> &pages);
    /// Gives up; Ended() is not told.
    void Stop();
    bool IsWorking() const { return m_writer.IsWorking(); }
    const CTablePageWriter &Writer() const { return m_writer; }
    const QString &File() const { return m_path; }

Q_SIGNALS:
    void Ended(bool written);

private:
    QString m_path;
    CSafeFile m_file;
    std::optional<QPdfWriter> m_device;
    CTablePageWriter m_writer;
};

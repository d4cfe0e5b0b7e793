// SPDX-License-Identifier: MIT
#pragma once

#include "commandline/table_pdf_order.h"

class CTexts;

/// Lays a table out on pages and writes them to a PDF file, without a display. Returns false when that failed.
/// There must be no application object: this makes one of its own.
[[nodiscard]] bool WriteTablePdf(const TablePdfOrder &order, const CTexts &texts);

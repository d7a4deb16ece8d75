// SPDX-License-Identifier: MIT
// Printing without a dialog and without a printer: a PDF file. Used by the command line.
#pragma once

#include <string>

#include "core/files.h"
#include "core/stock_table.h"
#include "print/print_settings.h"

namespace kestrel {

// What is wrong with the range of puzzles, in words; empty when the level has them all.
std::string CheckPrintRange(const PrintSettings& settings);

// The pages as a PDF file. The same stock and settings, which must be in range, give the same bytes.
Bytes PrintJob(const StockTable& stock, const PrintSettings& settings);

}  // namespace kestrel

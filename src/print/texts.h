// SPDX-License-Identifier: MIT
// The texts on the printed page and the messages of printing.
#pragma once

#include <string>
#include <string_view>

#include "print/print_settings.h"

namespace kestrel::texts {

// On the page, and beside the first number in the dialog
inline constexpr std::string_view kPage = "Page ";
inline constexpr std::string_view kNumber = "# ";
inline constexpr std::string_view kTo = "to ";
inline constexpr std::string_view kSolutions = "Solutions";

// "# 7", behind the puzzle's label where it has one.
std::string NumberText(std::string_view label, int number);

inline constexpr std::string_view kPrinterError =
    "An error occured while attempting to communicate with the standard printer, please check the "
    "availability and status of your printer.";
inline constexpr std::string_view kPrinterErrorTitle = "Printer error";

// "Kestrel Sudoku Medium 5-8", for a file or a print job.
std::string DocumentTitle(const PrintSettings& settings);

// Why puzzles cannot be printed whose range did not come from the dialog.
std::string BadRange(const PrintSettings& settings);

}  // namespace kestrel::texts

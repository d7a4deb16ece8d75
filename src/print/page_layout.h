// SPDX-License-Identifier: MIT
// Lays the printed pages out on an abstract page. Used by the print dialog and by the PDF writer of the
// command line.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "core/stock_table.h"
#include "forms/page.h"
#include "print/page_metrics.h"
#include "print/print_settings.h"

namespace kestrel {

// The digits that are possible in each cell, indexed [digit - 1][cell].
using CandidateTable = std::array<std::array<bool, kCells>, kUnitSize>;

class PageLayout {
 public:
  // All but `metrics` must outlive this object. The settings must be in range.
  PageLayout(Page& page, const PageMetrics& metrics, const StockTable& stock, const PrintSettings& settings)
      : page_(page), metrics_(metrics), stock_(stock), settings_(settings) {}

  // Prints all pages of the settings, each ended by a new page. False: stopped, by the user or because the
  // program is ending.
  [[nodiscard]] bool PrintPages();

  // The page number, 1..10, in the bottom right corner.
  void PrintPaginanummer(int page_number);

  // The solution of the puzzle opened last, at position 1..per page.
  void PrintSolution(int position);

  // The puzzle opened last: its grid at position 1..per page with givens and, if wanted, candidates; the
  // number; the summary of the techniques that its rating needed.
  void PrintSudoku(int position, int number);

  // The title line.
  void PrintTitel();

  // Takes a puzzle, 1..100 of the chosen level, from the stock.
  void OpenSudoku(int number);

  // Derives the candidates of the puzzle opened last from its givens.
  void SetupCandidates();

 private:
  void PrintGrid(const GridSquare& square);
  void PrintInCell(const GridSquare& square, int cell, const TextStyle& style, int digit);
  void PrintCandidates(const GridSquare& square, int cell);
  void PrintNumber(const GridSquare& square, int number);
  void PrintSummary(const GridSquare& square);

  Page& page_;
  PageMetrics metrics_;
  const StockTable& stock_;
  const PrintSettings& settings_;

  DigitGrid givens_{};
  DigitGrid solution_{};
  std::array<std::int16_t, kTechniques> counts_{};  // by display slot
  CandidateTable candidates_{};
};

}  // namespace kestrel

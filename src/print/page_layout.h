// SPDX-License-Identifier: MIT
// Lays the printed pages out on an abstract page, puzzles with their solutions beside them. Used by the print
// dialog and by the command line.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/stock_table.h"
#include "forms/page.h"
#include "print/page_metrics.h"
#include "print/print_settings.h"
#include "print/printed_puzzle.h"

namespace kestrel {

// The digits that are possible in each cell, indexed [digit - 1][cell].
using CandidateTable = std::array<std::array<bool, kCells>, kUnitSize>;

class PageLayout {
 public:
  // Puzzles of a stock, those of the settings, which must be in range. All but `metrics` must outlive this
  // object.
  PageLayout(Page& page, const PageMetrics& metrics, const StockTable& stock, const PrintSettings& settings);

  // Any puzzles, on as many pages as they take; they are numbered in order, from the settings' first number
  // on. The settings' pages and level do not matter. `heading` stands at the right end of the title line.
  // `page` must outlive this object.
  PageLayout(Page& page, const PageMetrics& metrics, std::vector<PrintedPuzzle> puzzles, std::string heading,
             const PrintSettings& settings)
      : page_(page),
        metrics_(metrics),
        puzzles_(std::move(puzzles)),
        heading_(std::move(heading)),
        settings_(settings) {}

  // Prints all pages of the settings, each ended by a new page. False: stopped, by the user or because the
  // program is ending.
  [[nodiscard]] bool PrintPages();

  // The page number in the bottom right corner.
  void PrintPaginanummer(int page_number);

  // The solution of the puzzle opened last, at position 1..per page.
  void PrintSolution(int position);

  // The puzzle opened last: its grid at position 1..per page with givens and, if wanted, candidates; the
  // number; the summary of the techniques that its rating needed.
  void PrintSudoku(int position, int number);

  // The title line.
  void PrintTitel();

  // Takes the puzzle of that number from those to be printed.
  void OpenSudoku(int number);

  // Derives the candidates of the puzzle opened last from its givens.
  void SetupCandidates();

 private:
  void PrintCandidates(const GridSquare& square, int cell);
  void PrintNumber(const GridSquare& square, int number);
  void PrintSummary(const GridSquare& square);

  Page& page_;
  PageMetrics metrics_;
  std::vector<PrintedPuzzle> puzzles_;
  std::string heading_;
  PrintSettings settings_;

  PrintedPuzzle puzzle_;  // the one opened last
  CandidateTable candidates_{};
};

}  // namespace kestrel

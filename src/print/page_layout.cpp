// SPDX-License-Identifier: MIT
// The layout of the printed pages.
#include "print/page_layout.h"

#include <array>
#include <cstdint>
#include <string>

#include "core/level_names.h"
#include "core/text.h"
#include "forms/texts.h"
#include "print/grid_drawing.h"
#include "print/texts.h"
#include "solver/technique_table.h"

namespace kestrel {

namespace {

constexpr Colour kMarkGrey = 0x808080;

// Sizes in points, by PerPageIndex.
struct FontSizes {
  int given;
  int candidate;
  int number;
  int solution;
};
constexpr std::array<FontSizes, 3> kSizes = {{{42, 11, 18, 11}, {28, 7, 11, 8}, {18, 5, 8, 6}}};
constexpr int kSummarySize = 8;

// Where mark k (0..2) of a cell starts. With c = side / 9 and the gap g = (c - 3 x length) / 4:
// index x c + g + k x (length + g).
int MarkInCell(int side, int index, int k, int length) {
  const std::int64_t gap = side - std::int64_t{27} * length;  // 36 g
  return Nearest(std::int64_t{4} * index * side + (k + 1) * gap + std::int64_t{36} * k * length, 36);
}

// The summary's order is the one of the slots, but the first two are exchanged.
constexpr int SummarySlot(int place) {
  return place < 2 ? 1 - place : place;
}

}  // namespace

std::vector<PrintedPuzzle> PuzzlesOfStock(const StockTable& stock, int level, int first, int count) {
  std::vector<PrintedPuzzle> puzzles;
  for (int number = first; number < first + count; ++number) {
    const SudokuRecord& record = stock(level, number);
    puzzles.push_back(
        {SafeDigits(record.GivenCells), SafeDigits(record.SolutionCells), record.TechniqueCount, number, {}});
  }
  return puzzles;
}

PageLayout::PageLayout(Page& page, const PageMetrics& metrics, const StockTable& stock,
                       const PrintSettings& settings)
    : PageLayout(
          page, metrics,
          PuzzlesOfStock(stock, settings.level_index + 1, settings.first_number, PuzzlesPrinted(settings)),
          std::string(LevelName(settings.level_index + 1)), settings) {
}

bool PageLayout::PrintPages() {
  const int end = settings_.first_number + static_cast<int>(puzzles_.size());
  int number = settings_.first_number;
  for (int page = 1; number < end; ++page) {
    PrintTitel();
    for (int position = 1; position <= settings_.per_page && number < end; ++position, ++number) {
      OpenSudoku(number);
      SetupCandidates();
      PrintSudoku(position, number);
      if (settings_.with_solutions) PrintSolution(position);
    }
    PrintPaginanummer(page);
    if (!page_.NewPage()) return false;
  }
  return true;
}

void PageLayout::PrintPaginanummer(int page_number) {
  DrawPageNumber(page_, metrics_.right, metrics_.bottom, page_number);
}

void PageLayout::PrintSolution(int position) {
  const GridSquare square = SolutionSquare(metrics_, settings_.per_page, position);
  DrawGrid(page_, square);
  // Only a record without a puzzle has a 0 in its solution.
  DrawDigits(page_, square, puzzle_.solution, DigitOfSize(kSizes[PerPageIndex(settings_.per_page)].solution));
}

void PageLayout::PrintSudoku(int position, int number) {
  const GridSquare square = SudokuSquare(metrics_, settings_.per_page, position);
  const TextStyle style = DigitOfSize(kSizes[PerPageIndex(settings_.per_page)].given, true);
  DrawGrid(page_, square);
  for (int cell = 0; cell < kCells; ++cell) {
    if (puzzle_.givens[cell] != 0) {
      DrawDigit(page_, square, cell, style, puzzle_.givens[cell]);
    } else if (settings_.with_pencil_marks) {
      PrintCandidates(square, cell);
    }
  }
  PrintNumber(square, number);
  PrintSummary(square);
}

void PageLayout::PrintTitel() {
  const TextStyle style = TextOfSize(kTitleSize);
  page_.Text(metrics_.left, metrics_.top, style, texts::kProductName);
  DrawRightAligned(page_, metrics_.right, metrics_.top, style, heading_);
}

void PageLayout::OpenSudoku(int number) {
  puzzle_ = puzzles_.at(static_cast<std::size_t>(number - settings_.first_number));
}

void PageLayout::SetupCandidates() {
  for (auto& of_digit : candidates_) of_digit.fill(true);
  for (int cell = 0; cell < kCells; ++cell) {
    if (puzzle_.givens[cell] == 0) continue;
    for (auto& of_digit : candidates_) of_digit[cell] = false;
    auto& of_given = candidates_[puzzle_.givens[cell] - 1];
    for (int k = 0; k < kUnitSize; ++k) {
      of_given[RowCell[CellRow[cell]][k]] = false;
      of_given[RowCell[k][CellCol[cell]]] = false;
      of_given[BoxCell[CellBox[cell]][k]] = false;
    }
  }
}

void PageLayout::PrintCandidates(const GridSquare& square, int cell) {
  const int size = kSizes[PerPageIndex(settings_.per_page)].candidate;
  const TextStyle style = DigitOfSize(size, false, kMarkGrey);
  const auto [width, height] = page_.Measure(style, "8");
  for (int digit = 1; digit <= kUnitSize; ++digit) {
    if (!candidates_[digit - 1][cell]) continue;
    const int x = square.x + MarkInCell(square.side, CellCol[cell], (digit - 1) % 3, width);
    const int y = square.y + MarkInCell(square.side, CellRow[cell], (digit - 1) / 3, height);
    page_.Text(x, y, style, std::to_string(digit));
  }
}

void PageLayout::PrintNumber(const GridSquare& square, int number) {
  const std::string text = texts::NumberText(puzzle_.label, number);
  const TextStyle style = TextOfSize(kSizes[PerPageIndex(settings_.per_page)].number);
  const int height = page_.Measure(style, text).height;
  DrawRightAligned(page_, square.x + square.side, square.y + square.side + 5 * height / 4, style, text);
}

void PageLayout::PrintSummary(const GridSquare& square) {
  const TextStyle style = TextOfSize(kSummarySize);
  const int x = square.x + square.side + page_.Measure(style, " ").width;
  int entries = 0;
  for (int place = 0; place < kTechniques; ++place) {
    const int slot = SummarySlot(place);
    if (puzzle_.counts[slot] <= 0) continue;
    const std::string text =
        std::string(kTechniqueTable[slot].abbreviation) + " " + TwoDigits(puzzle_.counts[slot]);
    page_.Text(x, square.y + entries * page_.Measure(style, text).height, style, text);
    ++entries;
  }
}

}  // namespace kestrel

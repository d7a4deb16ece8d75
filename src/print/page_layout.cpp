// SPDX-License-Identifier: MIT
// The layout of the printed pages. Places that are no whole units are exact fractions until they are printed,
// then the nearest unit is taken: no floating point, so that every machine prints the same.
#include "print/page_layout.h"

#include <cstdint>
#include <string>

#include "core/text.h"
#include "forms/texts.h"
#include "print/names.h"
#include "print/texts.h"
#include "solver/technique_table.h"

namespace kestrel {

namespace {

constexpr int kThick = 8;  // line widths
constexpr int kThin = 2;

constexpr Colour kMarkGrey = 0x808080;

// Sizes in points, by PerPageIndex.
struct FontSizes {
  int given;
  int candidate;
  int number;
  int solution;
};
constexpr std::array<FontSizes, 3> kSizes = {{{42, 11, 18, 11}, {28, 7, 11, 8}, {18, 5, 8, 6}}};
constexpr int kTitleSize = 18;
constexpr int kSummarySize = 8;

TextStyle TextOfSize(int size) {
  return {.font = {names::kTextFont, static_cast<double>(size), false}, .colour = kBlack};
}

TextStyle DigitOfSize(int size, bool bold = false, Colour colour = kBlack) {
  return {.font = {names::kDigitFont, static_cast<double>(size), bold}, .colour = colour};
}

// numerator / denominator rounded to the nearest whole number, a half upwards; the denominator is even.
int Nearest(std::int64_t numerator, std::int64_t denominator) {
  const std::int64_t shifted = numerator + denominator / 2;
  const std::int64_t quotient = shifted / denominator;
  return static_cast<int>(shifted % denominator < 0 ? quotient - 1 : quotient);
}

// Where a text of `length` units starts that stands in the middle of cell number `index` (0..8) of a side.
// With c = side / 9: index x c + (c - length) / 2.
int MiddleOfCell(int side, int index, int length) {
  return Nearest((std::int64_t{2} * index + 1) * side - std::int64_t{9} * length, 18);
}

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

bool PageLayout::PrintPages() {
  for (int page = 1; page <= settings_.pages; ++page) {
    PrintTitel();
    for (int position = 1; position <= settings_.per_page; ++position) {
      const int number = settings_.first_number + settings_.per_page * (page - 1) + position - 1;
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
  const std::string text = std::string(texts::kPage) + std::to_string(page_number);
  const TextStyle style = TextOfSize(kTitleSize);
  const TextSize size = page_.Measure(style, text);
  page_.Text(metrics_.right - size.width, metrics_.bottom - size.height, style, text);
}

void PageLayout::PrintSolution(int position) {
  const GridSquare square = SolutionSquare(metrics_, settings_.per_page, position);
  const TextStyle style = DigitOfSize(kSizes[PerPageIndex(settings_.per_page)].solution);
  PrintGrid(square);
  for (int cell = 0; cell < kCells; ++cell) {
    // Only a record without a puzzle has a 0 here.
    if (solution_[cell] != 0) PrintInCell(square, cell, style, solution_[cell]);
  }
}

void PageLayout::PrintSudoku(int position, int number) {
  const GridSquare square = SudokuSquare(metrics_, settings_.per_page, position);
  const TextStyle style = DigitOfSize(kSizes[PerPageIndex(settings_.per_page)].given, true);
  PrintGrid(square);
  for (int cell = 0; cell < kCells; ++cell) {
    if (givens_[cell] != 0) {
      PrintInCell(square, cell, style, givens_[cell]);
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
  const std::string_view level = texts::kLevelNames[static_cast<std::size_t>(settings_.level_index)];
  page_.Text(metrics_.right - page_.Measure(style, level).width, metrics_.top, style, level);
}

void PageLayout::OpenSudoku(int number) {
  const SudokuRecord& record = stock_(settings_.level_index + 1, number);
  givens_ = SafeDigits(record.GivenCells);
  solution_ = SafeDigits(record.SolutionCells);
  counts_ = record.TechniqueCount;
}

void PageLayout::SetupCandidates() {
  for (auto& of_digit : candidates_) of_digit.fill(true);
  for (int cell = 0; cell < kCells; ++cell) {
    if (givens_[cell] == 0) continue;
    for (auto& of_digit : candidates_) of_digit[cell] = false;
    auto& of_given = candidates_[givens_[cell] - 1];
    for (int k = 0; k < kUnitSize; ++k) {
      of_given[RowCell[CellRow[cell]][k]] = false;
      of_given[RowCell[k][CellCol[cell]]] = false;
      of_given[BoxCell[CellBox[cell]][k]] = false;
    }
  }
}

void PageLayout::PrintGrid(const GridSquare& square) {
  const auto [x, y, side] = square;
  page_.Box(x, y, x + side, y + side, kThick);
  for (int i = 1; i < kUnitSize; ++i) {
    const int offset = i * side / kUnitSize;
    const int width = i % 3 == 0 ? kThick : kThin;
    page_.Line(x, y + offset, x + side, y + offset, width);
    page_.Line(x + offset, y, x + offset, y + side, width);
  }
}

void PageLayout::PrintInCell(const GridSquare& square, int cell, const TextStyle& style, int digit) {
  const std::string text = std::to_string(digit);
  const TextSize size = page_.Measure(style, text);
  page_.Text(square.x + MiddleOfCell(square.side, CellCol[cell], size.width),
             square.y + MiddleOfCell(square.side, CellRow[cell], size.height), style, text);
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
  const std::string text = std::string(texts::kNumber) + std::to_string(number);
  const TextStyle style = TextOfSize(kSizes[PerPageIndex(settings_.per_page)].number);
  const TextSize size = page_.Measure(style, text);
  page_.Text(square.x + square.side - size.width, square.y + square.side + 5 * size.height / 4, style, text);
}

void PageLayout::PrintSummary(const GridSquare& square) {
  const TextStyle style = TextOfSize(kSummarySize);
  const int x = square.x + square.side + page_.Measure(style, " ").width;
  int entries = 0;
  for (int place = 0; place < kTechniques; ++place) {
    const int slot = SummarySlot(place);
    if (counts_[slot] <= 0) continue;
    const std::string text = std::string(kTechniqueTable[slot].abbreviation) + " " + TwoDigits(counts_[slot]);
    page_.Text(x, square.y + entries * page_.Measure(style, text).height, style, text);
    ++entries;
  }
}

}  // namespace kestrel

// SPDX-License-Identifier: MIT
#include "formats/grid_block.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <utility>

#include "formats/one_line.h"

namespace kestrel {
namespace {

constexpr std::string_view kRowSeparators = "|!:+,; \t";

bool IsRowSeparator(char c) {
  return kRowSeparators.find(c) != std::string_view::npos;
}

// A cell as a set of digits, empty for 0.
CandidateMask MaskOf(int digit) {
  return digit == 0 ? CandidateMask{} : DigitBit(digit);
}

std::string WithoutSeparators(std::string_view text) {
  std::string cells;
  std::ranges::copy_if(text, std::back_inserter(cells), [](char c) { return !IsRowSeparator(c); });
  return cells;
}

}  // namespace

bool GridBlock::IsSeparator(std::string_view text) {
  const bool drawn = text.find("---") != std::string_view::npos || text.find("===") != std::string_view::npos;
  if (!drawn || text.find_first_not_of("-=+|*.:' \t") != std::string_view::npos) return false;
  return text.find('+') != std::string_view::npos || WithoutSeparators(text).size() != kUnitSize;
}

// Nine groups of digits with blanks or bars between them.
std::optional<GridBlock::Row> GridBlock::ReadGroups(std::string_view text) {
  Row row;
  std::size_t count = 0;
  while (true) {
    while (!text.empty() && IsRowSeparator(text.front())) text.remove_prefix(1);
    if (text.empty()) break;
    if (count == kUnitSize) return std::nullopt;
    CandidateMask& cell = row.digits[count++];
    int length = 0;
    for (; !text.empty() && !IsRowSeparator(text.front()); text.remove_prefix(1), ++length) {
      const int digit = CellDigit(text.front());
      if (digit < 0 || (digit == 0 && length > 0)) return std::nullopt;
      cell |= MaskOf(digit);
    }
    if (std::popcount(cell) != length && cell != 0) return std::nullopt;  // a digit twice
    row.groups = row.groups || length > 1;
  }
  return count == kUnitSize && row.groups ? std::optional(row) : std::nullopt;
}

std::optional<GridBlock::Row> GridBlock::ReadRow(std::string_view text) {
  const std::string cells = WithoutSeparators(text);
  if (cells.size() != kUnitSize) return ReadGroups(text);
  Row row;
  for (std::size_t i = 0; i < kUnitSize; ++i) {
    const int digit = CellDigit(cells[i]);
    if (digit < 0) return ReadGroups(text);
    row.digits[i] = MaskOf(digit);
    (cells[i] == '-' ? row.dash_is_open : row.other_is_open) |= digit == 0;
  }
  row.dashes = cells.find_first_not_of('-') == std::string::npos;
  return row;
}

// Nine dashes are a separator where the rows show open cells in another way. True when `row` is one; earlier ones that
// turn out to be separators are taken out.
bool GridBlock::DropsDashes(const Row& row) {
  if (row.other_is_open || row.groups) {
    std::erase_if(rows_, [](const Row& other) { return other.dashes; });
    return false;
  }
  const bool drawn_with_dashes =
      std::ranges::all_of(rows_, [](const Row& other) { return other.dashes; }) ||
      std::ranges::any_of(rows_, [](const Row& other) { return other.dash_is_open && !other.dashes; });
  return row.dashes && !drawn_with_dashes;
}

bool GridBlock::Take(std::string_view text, std::uint64_t line, Found& found) {
  std::optional<Row> row = ReadRow(text);
  if (!row) {
    const std::string cells = WithoutSeparators(text);
    if (Empty() || cells.size() < 7 || cells.size() > 11) return false;
    row.emplace();
    row->error = cells.size() == kUnitSize ? WhyNoPuzzle(cells)
                                           : "has " + std::to_string(cells.size()) + " cells instead of 9";
  }
  row->line = line;
  if (DropsDashes(*row)) return true;
  if (rows_.size() == 6 && banded_ && !break_at_six_) {
    // Blank lines stand behind bands here, so the first three rows were all that there is of their puzzle.
    const std::vector<Row> others(rows_.begin() + 3, rows_.end());
    rows_.resize(3);
    found = End();
    rows_ = others;
  }
  after_blank_ = false;
  rows_.push_back(*row);
  if (rows_.size() == kUnitSize) found = Complete();
  return true;
}

GridBlock::Found GridBlock::Blank() {
  if (Empty()) return std::nullopt;
  const bool second = std::exchange(after_blank_, true);
  if (rows_.size() == 3 && !second) {
    banded_ = true;
    return std::nullopt;
  }
  Separate();
  return rows_.size() == 6 && banded_ && !second ? std::nullopt : End();
}

GridBlock::Found GridBlock::End() {
  if (std::ranges::all_of(rows_, &Row::dashes)) {  // none at all, or a frame
    *this = GridBlock();
    return std::nullopt;
  }
  FoundPuzzle found;
  found.line = rows_.front().line;
  found.error = "only " + std::to_string(rows_.size()) + " of 9 rows";
  *this = GridBlock();
  return found;
}

GridBlock::Found GridBlock::Complete() {
  FoundPuzzle found;
  found.line = rows_.front().line;
  CandidateGrid shown{};
  bool groups = false;
  for (std::size_t row = 0; row < kUnitSize; ++row) {
    groups = groups || rows_[row].groups;
    std::ranges::copy(rows_[row].digits, shown.begin() + static_cast<std::ptrdiff_t>(kUnitSize * row));
    if (found.error.empty() && !rows_[row].error.empty()) {
      found.error = "row " + std::to_string(row + 1) + ": " + rows_[row].error;
    }
  }
  PuzzleState state = StateOfCandidates(shown);
  if (!groups) {
    for (int cell = 0; cell < kCells; ++cell) {
      state.digits[cell] = shown[cell] == 0 ? 0 : static_cast<std::uint8_t>(LowestDigit(shown[cell]));
    }
  }
  found.puzzle.givens = state.digits;
  if (groups) found.puzzle.state = state;
  *this = GridBlock();
  return found;
}

}  // namespace kestrel

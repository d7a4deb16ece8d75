// SPDX-License-Identifier: MIT
// Puzzles of nine lines: rows of cells or of candidates, with what separates them. Used by the puzzle stream.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "formats/puzzle.h"

namespace kestrel {

// A puzzle, or why there is none, and the line where it starts.
struct FoundPuzzle {
  std::uint64_t line = 0;
  Puzzle puzzle;
  std::string error;
};

// Collects the rows of one puzzle at a time. Between bands of three rows lines of "-+|" and the like, or blank lines,
// may stand; a blank line anywhere else ends the puzzle, and so do two of them.
class GridBlock {
 public:
  using Found = std::optional<FoundPuzzle>;

  bool Empty() const { return rows_.empty(); }
  // Whether the line only separates rows: "---+---+---", "|-------|".
  static bool IsSeparator(std::string_view text);

  // Takes the line if it is a row, or inside a puzzle one that was meant to be a row. `found` is the puzzle that it
  // completes, or one before it that turns out to be cut off.
  bool Take(std::string_view text, std::uint64_t line, Found& found);
  // A separator or a blank line.
  void Separate() { break_at_six_ = break_at_six_ || rows_.size() == 6; }
  Found Blank();
  // Ends the puzzle; what there is of it is reported as cut off.
  Found End();

 private:
  struct Row {
    std::uint64_t line = 0;
    std::array<CandidateMask, kUnitSize> digits{};  // empty for an open cell
    bool groups = false;                            // a cell has several digits
    bool dashes = false;  // nothing but nine dashes: nine open cells, or a separator
    bool dash_is_open = false;
    bool other_is_open = false;  // one of ".0*_" is an open cell
    std::string error;
  };

  static std::optional<Row> ReadRow(std::string_view text);
  static std::optional<Row> ReadGroups(std::string_view text);
  bool DropsDashes(const Row& row);
  Found Complete();

  std::vector<Row> rows_;
  bool banded_ = false;  // a blank line stood behind the third row
  bool break_at_six_ = false;
  bool after_blank_ = false;
};

}  // namespace kestrel

// SPDX-License-Identifier: MIT
// Hand-made positions written as text, for the tests of the techniques.
//
//   "A1=25 C26=4 D5:7 E5!8"   A1 has the marks 2 and 5; C2 and C6 have 4; D5 is solved with 7 by deduction,
//                             E5 is given as 8. Rows are A to H and J; a later word overrides an earlier one.
#pragma once

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "core/cell_names.h"
#include "solver/solver.h"

namespace kestrel::testing {

// The cells of "AB12": every row named with every column named.
inline std::vector<int> CellsOf(std::string_view word) {
  std::vector<int> cells;
  for (const char row : word) {
    if (kRowLetters.find(row) == std::string_view::npos) continue;
    for (const char column : word) {
      if (column >= '1' && column <= '9') {
        cells.push_back(9 * static_cast<int>(kRowLetters.find(row)) + column - '1');
      }
    }
  }
  return cells;
}

inline CandidateMask MaskOf(std::string_view digits) {
  CandidateMask mask = 0;
  for (const char digit : digits) mask |= DigitBit(digit - '0');
  return mask;
}

struct Position {
  DigitGrid givens{};
  DigitGrid digits{};
  MarkGrid marks{};

  // `background` are the marks of all cells that the text does not name.
  explicit Position(std::string_view text, std::string_view background = "") {
    marks.fill(MaskOf(background));
    std::istringstream words{std::string(text)};
    for (std::string word; words >> word;) {
      const std::size_t sign = word.find_first_of("=:!");
      for (const int cell : CellsOf(word.substr(0, sign))) {
        const bool mark = word[sign] == '=';
        const auto digit = static_cast<std::uint8_t>(mark ? 0 : word[sign + 1] - '0');
        marks[cell] = mark ? MaskOf(word.substr(sign + 1)) : CandidateMask{0};
        digits[cell] = digit;
        givens[cell] = word[sign] == '!' ? digit : std::uint8_t{0};
      }
    }
  }
  [[nodiscard]] SolverState State() const { return {digits, marks}; }
};

// What changed, cell by cell in ascending order: "A1=5" for a digit placed, "A2-37" for candidates gone. What
// a placement takes from other cells is left out.
inline std::string Changes(const SolverState& before, const SolverState& after) {
  std::string placed;
  std::string removed;
  for (int cell = 0; cell < kCells; ++cell) {
    if (after.CellValue(cell) != before.CellValue(cell)) {
      placed += CellName(cell) + "=" + std::to_string(after.CellValue(cell));
    }
    const CandidateMask gone = before.CellMask(cell) & ~after.CellMask(cell);
    if (gone == 0) continue;
    removed += (removed.empty() ? "" : " ") + CellName(cell) + "-";
    for (int digit = 1; digit <= 9; ++digit) {
      if (HasDigit(gone, digit)) removed += std::to_string(digit);
    }
  }
  return placed.empty() ? removed : placed;
}

// Applies the technique; what changed, or "nothing".
inline std::string Apply(SolverState& state, Technique technique, const DigitGrid& givens = {},
                         Finding* finding = nullptr) {
  const SolverState before = state;
  const bool found = RowOf(technique).routine(state, {givens, finding});
  const std::string changes = Changes(before, state);
  if (found != (before != state)) return "result and state disagree: " + changes;
  return found ? changes : "nothing";
}

}  // namespace kestrel::testing

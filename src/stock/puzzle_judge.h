// SPDX-License-Identifier: MIT
// All that the workshop wants to know of a puzzle. Used where a stock is checked, repaired or filled.
#pragma once

#include <cstdint>
#include <optional>

#include "core/stock_table.h"
#include "solver/technique_table.h"
#include "stock/canonical_form.h"
#include "stock/solution_counter.h"

namespace kestrel {

struct Verdict {
  int solutions = 0;  // 0, 1 or 2 (two or more); the rest is only filled for 1
  DigitGrid solution{};
  CanonicalPuzzle form;
  int level = 0;  // 1..6
  std::int32_t score = 0;
  SlotCounts counts{};
};

// One object may be used again and again, by one thread at a time.
class PuzzleJudge {
 public:
  // Any givens may be asked about, also digits above 9. Takes about a millisecond.
  // The same givens again, like the zeros of a stock that was cut short, take no time.
  const Verdict& Judge(const DigitGrid& givens);

 private:
  Verdict Work(const DigitGrid& givens);

  SolutionCounter counter_;
  std::optional<DigitGrid> judged_;
  Verdict verdict_;  // of `judged_`
};

// The record of a puzzle with one solution and a level of 1..5, without a best time.
SudokuRecord RecordOf(const DigitGrid& givens, const Verdict& verdict);

}  // namespace kestrel

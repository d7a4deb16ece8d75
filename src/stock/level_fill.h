// SPDX-License-Identifier: MIT
// Puzzles for the empty places of a level. Used by `stock import` and `stock repair`.
#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <vector>

#include "core/stock_table.h"
#include "stock/canonical_form.h"

namespace kestrel {

struct FillRun {
  std::uint64_t seed = 0;
  int jobs = 1;
  std::function<void(std::uint64_t made)> progress = [](std::uint64_t) {};  // told now and then
};

// The scores between which a puzzle is to lie, both included.
struct ScoreRange {
  std::int32_t lowest = 0;
  std::int32_t highest = INT32_MAX;
};

// Makes one puzzle of `level` (1..5) for each of the ranges, in their order, no two of them nor of `known` the
// same in disguise; `known` grows by them. When no puzzle of a rare score turns up in a long while, the
// nearest that did is taken. The same arguments give the same puzzles, whatever the number of jobs.
std::vector<SudokuRecord> MakeRecords(int level, const std::vector<ScoreRange>& ranges, const FillRun& run,
                                      std::set<CanonicalPuzzle>& known);

}  // namespace kestrel

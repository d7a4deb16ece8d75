// SPDX-License-Identifier: MIT
// The generator in its plain form: one backtracking engine for full grids and for uniqueness. The program has
// a fast form (generator/generator.h), which must give the same answers; the tests hold it against this one.
#pragma once

#include <array>
#include <cstdint>

#include "core/grid.h"
#include "core/random_source.h"
#include "core/yield.h"
#include "generator/outcome.h"
#include "generator/random_order.h"

namespace kestrel {

// Depth-first search with the fewest-candidates choice and a forward check ("minimum remaining values" and
// "forward checking" in the literature).
//
//   CellOrder   [ 0 ... p-1 | p | p+1 ... n-1 ]
//                 open cells  ^   filled cells, the last one filled at p+1
//                             the cell being filled, or taken up again
//
// Positions are filled from the top down. A cell that has run out of digits sends p one up again.
class BacktrackEngine {
 public:
  // An empty grid, no cell listed.
  BacktrackEngine() { row_allows_.fill(kAllDigits), col_allows_ = box_allows_ = row_allows_; }

  // Enters a given digit 1..9. It may clash with another one: then the units just lack the digit.
  void Give(int cell, int digit) { Forbid(cell, digit); }

  // Lists the first `count` cells of `order` as the cells to fill.
  void Start(const CellList& order, int count);

  [[nodiscard]] bool AllFilled() const { return p_ == -1; }
  [[nodiscard]] bool NothingLeft() const { return p_ == count_; }
  // After a solution: goes on from the cell filled last, with that cell's next digit.
  void LookForAnother() { p_ = 0; }
  // One step: the cell at p gets its next digit, or gives up. Neither AllFilled nor NothingLeft may hold.
  void Step();

  // The digits filled in, by cell; 0 where there is none.
  [[nodiscard]] const DigitGrid& Digits() const { return digits_; }

 private:
  [[nodiscard]] CandidateMask Allowed(int cell) const;
  void Forbid(int cell, int digit);
  void Allow(int cell, int digit);
  void ChooseCell();
  [[nodiscard]] bool EveryOpenCellHasADigit() const;

  std::array<CandidateMask, 9> row_allows_{};
  std::array<CandidateMask, 9> col_allows_{};
  std::array<CandidateMask, 9> box_allows_{};
  CellList CellOrder{};
  DigitGrid digits_{};
  int count_ = 0;  // n
  int p_ = -1;
};

// Empties the cells of `solution` pair by pair, in the order of places 0..40 of `order`, and puts a pair back
// when the puzzle would have a second solution without it. Stopped: `puzzle` is as it was.
[[nodiscard]] Making EmptyPairs(const DigitGrid& solution, const CellList& order, Yield& yield,
                                DigitGrid& puzzle);

// Same members, same results as Generator, at a fraction of the speed.
class PlainGenerator {
 public:
  explicit PlainGenerator(SeedSource& seeds) : seeds_(seeds) {}

  DigitGrid SolutionGrid{};
  DigitGrid Givens{};

  [[nodiscard]] Making MakeFullGrid(Yield& yield);
  [[nodiscard]] Making MakePuzzle(Yield& yield);
  [[nodiscard]] static Uniqueness HasUniqueSolution(const DigitGrid& givens, Yield& yield);

 private:
  SeedSource& seeds_;
  RandomSource random_{0};
};

}  // namespace kestrel

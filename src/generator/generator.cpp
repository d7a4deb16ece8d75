// SPDX-License-Identifier: MIT
#include "generator/generator.h"

#include "core/grid_check.h"
#include "generator/alternatives.h"
#include "generator/full_grid.h"
#include "generator/pair_removal.h"
#include "generator/random_order.h"
#include "generator/uniqueness.h"

namespace kestrel {

namespace {

// One pair after the other, each with a look for a second solution.
Making EmptyPairs(const DigitGrid& solution, const CellList& order, Yield& yield, DigitGrid& puzzle) {
  DigitGrid left = solution;
  for (int i = 0; i < kPairs; ++i) {
    const int cell = order[i];
    const int partner = kCells - 1 - cell;
    left[cell] = left[partner] = 0;
    const Uniqueness answer = Generator::HasUniqueSolution(left, yield);
    if (answer == Uniqueness::Stopped) return Making::Stopped;
    if (answer == Uniqueness::Unique) continue;
    left[cell] = solution[cell];
    left[partner] = solution[partner];
  }
  puzzle = left;
  return Making::Made;
}

}  // namespace

Making Generator::MakeFullGrid(Yield& yield) {
  random_.Seed(seeds_.NextSeed());
  FullGridSearch search(FullGridOrder(random_));
  if (search.Fill(yield) == Making::Stopped) return Making::Stopped;
  SolutionGrid = search.Digits();
  return Making::Made;
}

Making Generator::MakePuzzle(Yield& yield) {
  random_.Seed(seeds_.NextSeed());
  const CellList order = PairOrder(random_);
  // The fast way is for full valid grids, such as MakeFullGrid makes; a caller may have put another one there.
  if (!IsFullGrid(SolutionGrid)) return EmptyPairs(SolutionGrid, order, yield, Givens);
  PairRemoval removal(SolutionGrid, order, yield);
  if (removal.Run() == Making::Stopped) return Making::Stopped;
  Givens = removal.Puzzle();
  return Making::Made;
}

Uniqueness Generator::HasUniqueSolution(const DigitGrid& givens, Yield& yield) {
  return FindUniqueness(givens, yield);
}

}  // namespace kestrel

// SPDX-License-Identifier: MIT
#include "generator/generator.h"

#include "generator/alternatives.h"
#include "generator/full_grid.h"
#include "generator/pair_removal.h"
#include "generator/plain_generator.h"
#include "generator/random_order.h"
#include "generator/uniqueness.h"

namespace kestrel {

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

// SPDX-License-Identifier: MIT
#include "support/plain_generator.h"

#include <cstdint>
#include <utility>

namespace kestrel {

void BacktrackEngine::Start(const CellList& order, int count) {
  CellOrder = order;
  count_ = count;
  p_ = count - 1;
}

CandidateMask BacktrackEngine::Allowed(int cell) const {
  return row_allows_[CellRow[cell]] & col_allows_[CellCol[cell]] & box_allows_[CellBox[cell]];
}

void BacktrackEngine::Forbid(int cell, int digit) {
  const auto others = static_cast<CandidateMask>(~DigitBit(digit));
  row_allows_[CellRow[cell]] &= others;
  col_allows_[CellCol[cell]] &= others;
  box_allows_[CellBox[cell]] &= others;
}

void BacktrackEngine::Allow(int cell, int digit) {
  row_allows_[CellRow[cell]] |= DigitBit(digit);
  col_allows_[CellCol[cell]] |= DigitBit(digit);
  box_allows_[CellBox[cell]] |= DigitBit(digit);
}

// Brings the open cell with the fewest allowed digits to position p; of several, the one highest in the list.
void BacktrackEngine::ChooseCell() {
  int best = p_;
  int fewest = 10;
  for (int i = p_; i >= 0; --i) {
    const int count = BitCount[Allowed(CellOrder[i])];
    if (count < fewest) {
      fewest = count;
      best = i;
    }
  }
  std::swap(CellOrder[best], CellOrder[p_]);
}

bool BacktrackEngine::EveryOpenCellHasADigit() const {
  for (int i = 0; i <= p_; ++i) {
    if (Allowed(CellOrder[i]) == 0) return false;
  }
  return true;
}

void BacktrackEngine::Step() {
  if (digits_[CellOrder[p_]] == 0) ChooseCell();
  const int cell = CellOrder[p_];
  const int before = digits_[cell];
  const CandidateMask allowed = Allowed(cell);
  int next = before + 1;
  while (next <= 9 && !HasDigit(allowed, next)) ++next;
  if (before != 0) Allow(cell, before);
  if (next > 9) {
    digits_[cell] = 0;
    ++p_;
    return;
  }
  Forbid(cell, next);
  digits_[cell] = static_cast<std::uint8_t>(next);
  --p_;
  if (!EveryOpenCellHasADigit()) ++p_;  // the next step takes this cell's next digit
}

Making PlainGenerator::MakeFullGrid(Yield& yield) {
  random_.Seed(seeds_.NextSeed());
  BacktrackEngine engine;
  engine.Start(FullGridOrder(random_), kCells);
  while (!engine.AllFilled()) {
    if (!yield.KeepGoing()) return Making::Stopped;
    engine.Step();
  }
  SolutionGrid = engine.Digits();
  return Making::Made;
}

Making EmptyPairs(const DigitGrid& solution, const CellList& order, Yield& yield, DigitGrid& puzzle) {
  DigitGrid left = solution;
  for (int i = 0; i < kPairs; ++i) {
    const int cell = order[i];
    const int partner = kCells - 1 - cell;
    left[cell] = left[partner] = 0;
    const Uniqueness answer = PlainGenerator::HasUniqueSolution(left, yield);
    if (answer == Uniqueness::Stopped) return Making::Stopped;
    if (answer == Uniqueness::Unique) continue;
    left[cell] = solution[cell];
    left[partner] = solution[partner];
  }
  puzzle = left;
  return Making::Made;
}

Making PlainGenerator::MakePuzzle(Yield& yield) {
  random_.Seed(seeds_.NextSeed());
  const CellList order = PairOrder(random_);
  return EmptyPairs(SolutionGrid, order, yield, Givens);
}

Uniqueness PlainGenerator::HasUniqueSolution(const DigitGrid& givens, Yield& yield) {
  BacktrackEngine engine;
  CellList open{};
  int count = 0;
  for (int cell = 0; cell < kCells; ++cell) {
    if (givens[cell] != 0) {
      engine.Give(cell, givens[cell]);
    } else {
      open[count++] = static_cast<std::uint8_t>(cell);
    }
  }
  engine.Start(open, count);
  bool found = false;
  for (;;) {
    if (engine.AllFilled()) {
      if (found) return Uniqueness::Several;
      found = true;
      engine.LookForAnother();
    }
    if (engine.NothingLeft()) return Uniqueness::Unique;
    if (!yield.KeepGoing()) return Uniqueness::Stopped;
    engine.Step();
  }
}

}  // namespace kestrel

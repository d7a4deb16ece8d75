// SPDX-License-Identifier: MIT
#include "generator/pair_removal.h"

#include <cstdint>

#include "generator/board_tables.h"
#include "generator/deviation.h"

namespace kestrel {

namespace {

BitBoard Pair(int cell) {
  return BitBoard(kBoards.cell[cell]) | BitBoard(kBoards.cell[kCells - 1 - cell]);
}

}  // namespace

PairRemoval::PairRemoval(const DigitGrid& solution, const CellList& order, Yield& yield)
    : solution_(solution), order_(order), reference_(solution), cycles_(solution, order), yield_(yield) {
}

Making PairRemoval::Run() {
  Alternatives known(reference_);
  std::array<std::uint8_t, kPairs> places{};
  for (int i = 0; i < kPairs; ++i) places[i] = static_cast<std::uint8_t>(i);
  return Decide(known, places);
}

DigitGrid PairRemoval::Puzzle() const {
  DigitGrid puzzle{};
  kept_.ForEach([&](int cell) { puzzle[cell] = solution_[cell]; });
  return puzzle;
}

BitBoard PairRemoval::CellsOf(Places places) const {
  BitBoard cells;
  for (const int place : places) cells |= Pair(order_[place]);
  return cells;
}

void PairRemoval::Keep(int place) {
  kept_ |= Pair(order_[place]);
  cycles_.Keep(place);
}

// Moves the places whose pair has not followed to the front, in order, and returns them.
PairRemoval::Places PairRemoval::Undecided(const Alternatives& known, Places places) const {
  const BitBoard undecided = known.Undecided();
  std::size_t count = 0;
  for (const std::uint8_t place : places) {
    const int cell = order_[place];
    if (undecided.Has(cell) || undecided.Has(kCells - 1 - cell)) places[count++] = place;
  }
  return places.first(count);
}

// Keeps pairs from the front as long as a cycle needs them; returns how many.
int PairRemoval::KeepForCycles(Places places) {
  int count = 0;
  for (const int place : places) {
    if (!cycles_.NeedPair(place)) break;
    Keep(place);
    ++count;
  }
  return count;
}

// Decides the pairs at `places` over `known`, and uses it up. The part of the list that it is handed is its
// own to shorten.
Making PairRemoval::Decide(Alternatives& known, Places places) {
  for (;;) {
    if (!yield_.KeepGoing()) return Making::Stopped;
    places = Undecided(known, places);
    if (places.empty()) return Making::Made;
    const BitBoard kept_before = kept_;
    if (const int count = KeepForCycles(places); count > 0) {
      places = places.subspan(static_cast<std::size_t>(count));
    } else if (places.size() == 1) {
      return DecideOne(known, places.front());
    } else {
      const Places first = places.first((places.size() + 1) / 2);
      const Places second = places.subspan(first.size());
      Alternatives more = known;
      more.Give(reference_, CellsOf(second), CellsOf(first));
      if (Decide(more, first) == Making::Stopped) return Making::Stopped;
      places = second;
    }
    const BitBoard kept_now = kept_ - kept_before;
    if (kept_now.Any()) known.Give(reference_, kept_now, CellsOf(places));
  }
}

// A second solution differs in one of the two cells. (For the centre, which is both, the second look finds
// that the digit has followed.)
Making PairRemoval::DecideOne(Alternatives& known, int place) {
  DeviationSearch search(reference_, yield_);
  for (const int cell : {int{order_[place]}, kCells - 1 - order_[place]}) {
    if (!known.Undecided().Has(cell)) continue;
    Deviation otherwise(known, cell);
    const DeviationSearch::Result result = search.Run(otherwise);
    if (result == DeviationSearch::Result::Stopped) return Making::Stopped;
    if (result == DeviationSearch::Result::Found) {
      Keep(place);
      return Making::Made;
    }
    known.Give(reference_, kBoards.cell[cell], kBoards.all);
  }
  return Making::Made;
}

}  // namespace kestrel

// SPDX-License-Identifier: MIT
// The two shuffled cell lists of the generator. Shared by its plain and its fast form, which must draw the
// same numbers in the same order.
#pragma once

#include <array>
#include <cstdint>
#include <utility>

#include "core/grid.h"
#include "core/random_source.h"

namespace kestrel {

using CellList = std::array<std::uint8_t, kCells>;

inline constexpr int kPairs = 41;  // cell c with cell 80 - c; the centre is a pair of its own

constexpr CellList CellsInOrder() {
  CellList list{};
  for (int cell = 0; cell < kCells; ++cell) list[cell] = static_cast<std::uint8_t>(cell);
  return list;
}

// `swaps` times: draws two positions below `below`, one after the other, and swaps what stands there.
inline void SwapAtRandom(CellList& list, int below, int swaps, RandomSource& random) {
  for (int i = 0; i < swaps; ++i) {
    const int first = random.Below(below);
    const int second = random.Below(below);
    std::swap(list[first], list[second]);
  }
}

// All cells, shuffled: where the randomness of a full grid comes from.
inline CellList FullGridOrder(RandomSource& random) {
  CellList list = CellsInOrder();
  SwapAtRandom(list, kCells, 500, random);
  return list;
}

// One cell of every pair in positions 0..40, shuffled: the order in which the pairs are tried.
inline CellList PairOrder(RandomSource& random) {
  CellList list = CellsInOrder();
  SwapAtRandom(list, kPairs, 200, random);
  return list;
}

}  // namespace kestrel

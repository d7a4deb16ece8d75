// SPDX-License-Identifier: MIT
// Sets of k out of nine, and k of nine sets that together have at most k members. Used by the subsets and the
// fish, which are the same problem in different clothes.
#pragma once

#include <array>
#include <bit>
#include <cstdint>

#include "core/grid.h"

namespace kestrel {

// The lowest member of a set that is not empty, as a set of its own.
constexpr unsigned LowestBit(unsigned set) {
  return set & (~set + 1);
}

constexpr int Binomial(int n, int k) {
  return k == 0 ? 1 : Binomial(n - 1, k - 1) * n / k;
}

// All sets of k out of nine bits, in lexicographic order of their members: for k = 2 {0,1}, {0,2} .. {7,8}.
template <int k>
inline constexpr auto kCombinations = [] {
  std::array<std::uint16_t, Binomial(9, k)> sets{};
  std::array<int, k> member{};
  for (int i = 0; i < k; ++i) member[i] = i;
  for (std::uint16_t& set : sets) {
    for (const int m : member) set = static_cast<std::uint16_t>(set | 1U << static_cast<unsigned>(m));
    int i = k - 1;
    while (i >= 0 && member[i] == 9 - k + i) --i;
    if (i < 0) break;
    ++member[i];
    for (int j = i + 1; j < k; ++j) member[j] = member[j - 1] + 1;
  }
  return sets;
}();

// Nine sets of digits or of positions, and which of the nine may belong to a subset or fish.
struct NineSets {
  std::array<std::uint16_t, 9> set{};
  unsigned members = 0;
};

// Chooses `missing` more of the sets in `rest` so that all chosen have at most `limit` elements together, in
// lexicographic order; `chosen` and `cover` are the choice so far and its union. Calls use(chosen, cover) for
// every full choice until it returns true; returns whether it did.
template <int missing, class Use>
bool ChooseSets(const NineSets& sets, int limit, unsigned rest, unsigned chosen, unsigned cover,
                const Use& use) {
  if constexpr (missing == 0) {
    return use(chosen, cover);
  } else {
    for (; rest != 0; rest &= rest - 1) {
      const unsigned joined = cover | sets.set[std::countr_zero(rest)];
      if (BitCount[joined] > limit) continue;
      const unsigned next = LowestBit(rest);
      if (ChooseSets<missing - 1>(sets, limit, rest & (rest - 1), chosen | next, joined, use)) return true;
    }
    return false;
  }
}

// False when no `size` of the members lie within `size` digits or positions that also occur elsewhere; then
// the ordered search cannot find anything and is left out. True promises nothing.
template <int size>
bool MayHoldSubset(const NineSets& sets) {
  unsigned small = 0;   // members that are small enough
  unsigned filled = 0;  // sets that are not empty
  for (unsigned i = 0; i < 9; ++i) {
    const int count = BitCount.data()[sets.set.data()[i]];
    small |= static_cast<unsigned>(count <= size) << i;
    filled |= static_cast<unsigned>(count != 0) << i;
  }
  small &= sets.members;
  if (BitCount[small] < size) return false;
  // All that is left would belong to the subset, and nothing outside could lose anything.
  if (BitCount[filled] <= size && (sets.members & ~filled) == 0) return false;
  return ChooseSets<size>(sets, size, small, 0, 0, [&sets](unsigned, unsigned cover) {
    // With fewer digits than cells (a contradiction) several covers are possible: leave it to the full
    // search.
    if (BitCount[cover] < size) return true;
    for (unsigned i = 0; i < 9; ++i) {
      const unsigned set = sets.set[i];
      const bool own = (set & ~cover) == 0 && ((sets.members >> i) & 1U) != 0;
      if ((set & cover) != 0 && !own) return true;
    }
    return false;
  });
}

}  // namespace kestrel

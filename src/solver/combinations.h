// SPDX-License-Identifier: MIT
// Sets of k out of nine, and the quick test whether nine small sets can hide a subset or a fish at all.
// Used by the subsets and the fish, which are the same problem: k of nine sets that together have k members.
#pragma once

#include <array>
#include <bit>
#include <cstdint>

#include "core/grid.h"

namespace kestrel {

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

// Nine sets of digits or positions, and which of the nine may belong to a subset or fish.
struct NineSets {
  std::array<std::uint16_t, 9> set{};
  unsigned members = 0;
};

// False when no `size` of the members lie within `size` digits or positions that also occur elsewhere; then
// the ordered search cannot find anything and is left out. True promises nothing.
bool MayHoldSubset(const NineSets& sets, int size);

}  // namespace kestrel

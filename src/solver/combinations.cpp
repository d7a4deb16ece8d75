// SPDX-License-Identifier: MIT
// The quick test before the ordered search of the subsets and fish.
#include "solver/combinations.h"

namespace kestrel {
namespace {

// True when some set outside the subset loses something: it meets `cover` and is not one of its own.
bool CoverOccursElsewhere(const NineSets& sets, unsigned cover) {
  for (unsigned i = 0; i < 9; ++i) {
    const unsigned set = sets.set[i];
    const bool own = (set & ~cover) == 0 && ((sets.members >> i) & 1U) != 0;
    if ((set & cover) != 0 && !own) return true;
  }
  return false;
}

// Chooses `missing` more of the members left in `rest`, keeping the union within `size`.
bool Search(const NineSets& sets, unsigned rest, int size, int missing, unsigned cover) {
  // With fewer digits than cells (a contradiction) several covers are possible: leave it to the full search.
  if (missing == 0) return BitCount[cover] < size || CoverOccursElsewhere(sets, cover);
  for (; BitCount[rest] >= missing; rest &= rest - 1) {
    const unsigned joined = cover | sets.set[std::countr_zero(rest)];
    if (BitCount[joined] <= size && Search(sets, rest & (rest - 1), size, missing - 1, joined)) return true;
  }
  return false;
}

}  // namespace

bool MayHoldSubset(const NineSets& sets, int size) {
  unsigned small = 0;
  for (unsigned rest = sets.members; rest != 0; rest &= rest - 1) {
    if (BitCount[sets.set[std::countr_zero(rest)]] <= size) small |= rest & (~rest + 1);
  }
  return BitCount[small] >= size && Search(sets, small, size, size, 0);
}

}  // namespace kestrel

// SPDX-License-Identifier: MIT
// X-Wing, Swordfish and Jellyfish: n lines whose places for a digit lie in n crossing lines.
//
//             c1    c7
//    r2    .  4  .  4  .        X-Wing in rows: 4 has only columns c1 and c7 in r2 and r6,
//    r3    .  x  .  .  .        so it goes from those columns everywhere else (x)
//    r6    .  4  .  4  .
#include <array>
#include <bit>

#include "solver/combinations.h"
#include "solver/describe.h"
#include "solver/techniques.h"

namespace kestrel {
namespace {

void Describe(Finding& finding, const SolverState& state, int digit, int first_line, unsigned base,
              unsigned cover) {
  finding.digits = DigitBit(digit);
  for (; base != 0; base &= base - 1) {
    const int line = first_line + std::countr_zero(base);
    AddDigitCells(finding, state, digit, line);
    finding.units.push_back(NamedUnit(line));
  }
  for (; cover != 0; cover &= cover - 1) {
    finding.covers.push_back(NamedUnit(kFirstColumn - first_line + std::countr_zero(cover)));
  }
  finding.form = first_line == 0 ? 1 : 2;
}

// Removes the digit from the cover positions of all lines that are not in the base.
bool EliminateFish(SolverState& state, int digit, int first_line, unsigned base, unsigned cover) {
  bool removed = false;
  for (unsigned i = 0; i < 9; ++i) {
    if ((base >> i & 1U) != 0) continue;
    const auto line = static_cast<std::size_t>(first_line) + i;
    for (unsigned rest = state.Places(digit, first_line + static_cast<int>(i)) & cover; rest != 0;
         rest &= rest - 1) {
      removed |= state.RemoveCandidate(digit, kUnitTables.cell[line][std::countr_zero(rest)]);
    }
  }
  return removed;
}

// One digit, base lines first_line (a unit) .. first_line + 8. Scan order: covers in lexicographic order. The
// base are all lines that qualify; only exactly `size` of them make a fish.
template <int size>
bool FindFishOf(SolverState& state, const SolverInput& input, int digit, int first_line) {
  NineSets lines;
  for (unsigned i = 0; i < 9; ++i) {
    lines.set[i] = state.Places(digit, first_line + static_cast<int>(i));
    // The base lines of an X-Wing must fill the cover; those of the larger fish need not.
    if (size == 2 ? BitCount[lines.set[i]] == 2 : lines.set[i] != 0) lines.members |= 1U << i;
  }
  if (!MayHoldSubset<size>(lines)) return false;
  for (const unsigned cover : kCombinations<size>) {
    unsigned base = 0;
    for (unsigned rest = lines.members; rest != 0; rest &= rest - 1) {
      if ((lines.set[std::countr_zero(rest)] & ~cover) == 0) base |= LowestBit(rest);
    }
    if (BitCount[base] == size && EliminateFish(state, digit, first_line, base, cover)) {
      if (input.finding != nullptr) Describe(*input.finding, state, digit, first_line, base, cover);
      return true;
    }
  }
  return false;
}

// Rows for all digits, then columns for all digits.
template <int size>
bool FindFish(SolverState& state, const SolverInput& input, DigitScan rows, DigitScan columns) {
  for (const bool turned : {false, true}) {
    CandidateMask& to_scan = state.DigitsToScan(turned ? columns : rows);
    for (; to_scan != 0; to_scan &= to_scan - 1) {
      if (FindFishOf<size>(state, input, LowestDigit(to_scan), turned ? kFirstColumn : 0)) return true;
    }
  }
  return false;
}

}  // namespace

bool FindXWing(SolverState& state, const SolverInput& input) {
  return FindFish<2>(state, input, DigitScan::XWingRows, DigitScan::XWingColumns);
}
bool FindSwordfish(SolverState& state, const SolverInput& input) {
  return FindFish<3>(state, input, DigitScan::SwordfishRows, DigitScan::SwordfishColumns);
}
bool FindJellyfish(SolverState& state, const SolverInput& input) {
  return FindFish<4>(state, input, DigitScan::JellyfishRows, DigitScan::JellyfishColumns);
}

}  // namespace kestrel

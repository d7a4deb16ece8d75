// SPDX-License-Identifier: MIT
// XY-Wing and XYZ-Wing: a pivot cell and two wing cells with two candidates each that all see the pivot.
//
//    XY-Wing                         XYZ-Wing
//    P {2,5} . . . . . W {2,8}       P {2,5,8} sees W {2,8} and W {5,8}: wherever the 8 of the three is,
//    .                 .             8 goes from the cells that see all three
//    W {5,8} . . . . . x  8 goes
//
// Both scans go triple of digits by triple, pivot by pivot. Most of those have no wings, so first all cells
// that could be the pivot of anything are found, in no order; the scan then visits these alone.
#include <array>
#include <bit>

#include "solver/combinations.h"
#include "solver/describe.h"
#include "solver/techniques.h"

namespace kestrel {
namespace {

// (W1 unit, W2 unit) among the pivot's units 0 row, 1 column, 2 box, in the order in which they are searched.
constexpr std::array<std::array<int, 2>, 6> kWingUnits{{{0, 1}, {0, 2}, {1, 0}, {1, 2}, {2, 0}, {2, 1}}};

// The cells of `cells` with exactly the candidates `mask`.
CellSet CellsWithMask(const SolverState& state, CellSet cells, CandidateMask mask) {
  for (unsigned rest = mask; rest != 0; rest &= rest - 1) cells &= state.Cells(std::countr_zero(rest) + 1);
  return cells;
}

// The pivots in `candidates` with two wings in `bivalue` that would remove something. For an XY-Wing the
// digit to remove is the one that the wings share and the pivot lacks, for an XYZ-Wing the one they all have.
template <bool xyz>
CellSet ProductivePivots(const SolverState& state, CellSet candidates, CellSet bivalue) {
  CellSet pivots;
  for (const int pivot : candidates) {
    const unsigned mask = state.CellMask(pivot);
    std::array<int, 20> wings{};
    int count = 0;
    for (const int wing : kUnitTables.peers[pivot] & bivalue) {
      const unsigned wing_mask = state.CellMask(wing);
      if (xyz ? (wing_mask & ~mask) != 0 : BitCount[wing_mask & mask] != 1) continue;
      for (int i = 0; i < count; ++i) {
        const unsigned other = state.CellMask(wings[i]);
        const unsigned shared = wing_mask & other;
        if (other == wing_mask || shared == 0 || (!xyz && (shared & mask) != 0)) continue;
        CellSet seen = kUnitTables.peers[wing] & kUnitTables.peers[wings[i]];
        if (xyz) seen &= kUnitTables.peers[pivot];
        if (!(seen & state.Cells(LowestDigit(static_cast<CandidateMask>(shared)))).Empty()) pivots.Add(pivot);
      }
      wings[count++] = wing;
    }
  }
  return pivots;
}

void Describe(Finding& finding, const SolverState& state, CandidateMask digits, int pivot, int wing_1,
              int wing_2, const std::array<int, 2>& units) {
  finding.digits = digits;
  AddFullCell(finding, state, pivot, Role::Pivot);
  AddFullCell(finding, state, wing_1, Role::Wing);
  AddFullCell(finding, state, wing_2, Role::Wing);
  for (const int k : units) finding.units.push_back(NamedUnit(kUnitTables.unit[pivot][k]));
}

// Tries all wings with the candidate sets mask_1 and mask_2 in the pivot's units, in order.
template <bool xyz>
bool TryWings(SolverState& state, const SolverInput& input, int pivot, CellSet bivalue, CandidateMask mask_1,
              CandidateMask mask_2) {
  const int digit = LowestDigit(mask_1 & mask_2);
  const CellSet set_1 = CellsWithMask(state, bivalue, mask_1);
  const CellSet set_2 = CellsWithMask(state, bivalue, mask_2);
  if (set_1.Empty() || set_2.Empty()) return false;
  for (const auto& units : kWingUnits) {
    const auto& pivot_units = kUnitTables.unit[pivot];
    for (const int wing_1 : set_1& kUnitTables.cells[pivot_units[units[0]]]) {
      for (const int wing_2 : set_2& kUnitTables.cells[pivot_units[units[1]]]) {
        const bool removed = xyz ? EliminateSeenByThree(state, pivot, wing_1, wing_2, digit)
                                 : state.EliminateSeenByBoth(wing_1, wing_2, digit);
        if (!removed) continue;
        if (input.finding != nullptr) {
          Describe(*input.finding, state, mask_1 | mask_2, pivot, wing_1, wing_2, units);
        }
        return true;
      }
    }
  }
  return false;
}

}  // namespace

bool EliminateSeenByThree(SolverState& state, int pivot, int wing_a, int wing_b, int digit) {
  const auto& peers = kUnitTables.peers;
  return state.RemoveFrom(peers[pivot] & peers[wing_a] & peers[wing_b], digit);
}

// Scan order: triples of digits in lexicographic order, pivots in cell order, wings by kWingUnits.
bool FindXYWing(SolverState& state, const SolverInput& input) {
  const CellSet bivalue = state.CellsByCandidates().two;
  const CellSet pivots = ProductivePivots<false>(state, bivalue, bivalue);
  if (pivots.Empty()) return false;
  for (const CandidateMask triple : kCombinations<3>) {
    for (const int pivot : pivots) {
      const CandidateMask mask = state.CellMask(pivot);
      if ((mask & ~triple) != 0) continue;
      // Which wing is the first depends on the pivot. With the triple x < y < z:
      //   pivot {x,y}: wings {x,z}, {y,z}    {x,z}: {x,y}, {y,z}    {y,z}: {x,z}, {x,y}
      // so it is the one with the pivot's lower digit, except when the digit to remove is x.
      const CandidateMask removed = triple & ~mask;
      const CandidateMask low = static_cast<CandidateMask>(LowestBit(mask));
      const CandidateMask high = mask & (mask - 1);
      const bool high_first = removed < low;
      const CandidateMask first = (high_first ? high : low) | removed;
      const CandidateMask second = (high_first ? low : high) | removed;
      if (TryWings<false>(state, input, pivot, bivalue, first, second)) return true;
    }
  }
  return false;
}

// Scan order: triples, pivots, then the digit to remove from the lowest up, then the wings by kWingUnits.
bool FindXYZWing(SolverState& state, const SolverInput& input) {
  const SolverState::CellsBySize cells = state.CellsByCandidates();
  const CellSet pivots = ProductivePivots<true>(state, cells.three, cells.two);
  if (pivots.Empty()) return false;
  for (const CandidateMask triple : kCombinations<3>) {
    for (const int pivot : CellsWithMask(state, pivots, triple)) {
      for (unsigned rest = triple; rest != 0; rest &= rest - 1) {
        // The digit to remove, then the other two in ascending order.
        const auto removed = static_cast<CandidateMask>(LowestBit(rest));
        const CandidateMask others = triple & ~removed;
        const CandidateMask low = static_cast<CandidateMask>(LowestBit(others));
        const CandidateMask high = others & ~low;
        if (TryWings<true>(state, input, pivot, cells.two, low | removed, high | removed)) return true;
      }
    }
  }
  return false;
}

}  // namespace kestrel

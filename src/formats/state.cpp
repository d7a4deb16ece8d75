// SPDX-License-Identifier: MIT
#include <bit>
#include <cstdint>

#include "formats/puzzle.h"

namespace kestrel {
namespace {

// What each of the 27 units holds, as sets of digits.
struct UnitDigits {
  std::array<CandidateMask, kUnitSize> rows{};
  std::array<CandidateMask, kUnitSize> columns{};
  std::array<CandidateMask, kUnitSize> boxes{};

  void Add(int cell, CandidateMask digits) {
    rows[CellRow[cell]] |= digits;
    columns[CellCol[cell]] |= digits;
    boxes[CellBox[cell]] |= digits;
  }
  CandidateMask Around(int cell) const {
    return rows[CellRow[cell]] | columns[CellCol[cell]] | boxes[CellBox[cell]];
  }
};

bool SeeEachOther(int a, int b) {
  return CellRow[a] == CellRow[b] || CellCol[a] == CellCol[b] || CellBox[a] == CellBox[b];
}

bool SeesCandidate(const CandidateGrid& shown, int cell) {
  for (int other = 0; other < kCells; ++other) {
    const bool open = std::popcount(shown[other]) > 1;
    if (open && SeeEachOther(cell, other) && (shown[other] & shown[cell]) != 0) return true;
  }
  return false;
}

}  // namespace

CandidateGrid CandidatesOf(const DigitGrid& digits) {
  UnitDigits taken;
  for (int cell = 0; cell < kCells; ++cell) {
    if (digits[cell] != 0) taken.Add(cell, DigitBit(digits[cell]));
  }
  CandidateGrid candidates{};
  for (int cell = 0; cell < kCells; ++cell) {
    if (digits[cell] == 0) candidates[cell] = kAllDigits & static_cast<CandidateMask>(~taken.Around(cell));
  }
  return candidates;
}

PuzzleState StateOfCandidates(const CandidateGrid& shown) {
  PuzzleState state;
  for (int cell = 0; cell < kCells; ++cell) {
    if (std::popcount(shown[cell]) == 1 && !SeesCandidate(shown, cell)) {
      state.digits[cell] = static_cast<std::uint8_t>(LowestDigit(shown[cell]));
    } else {
      state.candidates[cell] = shown[cell];
    }
  }
  return state;
}

}  // namespace kestrel

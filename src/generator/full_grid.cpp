// SPDX-License-Identifier: MIT
#include "generator/full_grid.h"

#include <bit>
#include <cstdint>
#include <cstring>
#include <memory>
#include <utility>

namespace kestrel {

namespace {

constexpr std::int16_t kOneDigit = 1 << 8;
constexpr std::int16_t kPosition = kOneDigit - 1;
constexpr std::int16_t kFilled = 1 << 14;
constexpr std::int16_t kNoCell = 0x7FFF;  // in the lanes behind the last cell

// Eight lanes in a register (vector extension of GCC and Clang; without such registers plain code).
using Eight = std::int16_t __attribute__((vector_size(16)));

Eight Load(const std::int16_t* lanes) {
  Eight eight;
  std::memcpy(&eight, std::assume_aligned<16>(lanes), sizeof eight);
  return eight;
}

void Store(std::int16_t* lanes, Eight eight) {
  std::memcpy(std::assume_aligned<16>(lanes), &eight, sizeof eight);
}

Eight Smaller(Eight a, Eight b) {
  return a < b ? a : b;
}

int Smallest(Eight eight) {
  eight = Smaller(eight, __builtin_shufflevector(eight, eight, 4, 5, 6, 7, 0, 1, 2, 3));
  eight = Smaller(eight, __builtin_shufflevector(eight, eight, 2, 3, 0, 1, 6, 7, 4, 5));
  eight = Smaller(eight, __builtin_shufflevector(eight, eight, 1, 0, 3, 2, 5, 4, 7, 6));
  return eight[0];
}

constexpr bool SeeEachOther(int a, int b) {
  return a != b && (CellRow[a] == CellRow[b] || CellCol[a] == CellCol[b] || CellBox[a] == CellBox[b]);
}

// By cell: all bits in the lanes of the 20 cells that see it.
alignas(16) constexpr std::array<FullGridSearch::Keys, kCells> kSeenBy = [] {
  std::array<FullGridSearch::Keys, kCells> seen{};
  for (int cell = 0; cell < kCells; ++cell) {
    for (int other = 0; other < kCells; ++other) seen[cell][other] = SeeEachOther(cell, other) ? -1 : 0;
  }
  return seen;
}();

}  // namespace

FullGridSearch::FullGridSearch(const CellList& order) : lowest_(9 * kOneDigit), CellOrder(order) {
  keys_.fill(kNoCell);
  for (int i = 0; i < kCells; ++i) {
    keys_[CellOrder[i]] = static_cast<std::int16_t>(9 * kOneDigit + (kCells - 1 - i));
  }
  for (Keys& lanes : allowed_) lanes.fill(kOneDigit);
  row_allows_.fill(kAllDigits);
  col_allows_ = box_allows_ = row_allows_;
}

CandidateMask FullGridSearch::Allowed(int cell) const {
  return row_allows_[CellRow[cell]] & col_allows_[CellCol[cell]] & box_allows_[CellBox[cell]];
}

// Takes the digit from the cell's units, and finds the smallest key on the way.
void FullGridSearch::Place(int cell, int digit) {
  digits_[cell] = static_cast<std::uint8_t>(digit);
  keys_[cell] = static_cast<std::int16_t>(keys_[cell] | kFilled);
  const auto others = static_cast<CandidateMask>(~DigitBit(digit));
  row_allows_[CellRow[cell]] &= others;
  col_allows_[CellCol[cell]] &= others;
  box_allows_[CellBox[cell]] &= others;
  std::int16_t* const keys = keys_.data();
  std::int16_t* const allowed = allowed_[digit - 1].data();
  const std::int16_t* const seen = kSeenBy[cell].data();
  Eight lowest = Load(keys + kLanes - 8);
  for (int i = 0; i < kLanes; i += 8) {
    const Eight before = Load(allowed + i);
    const Eight taken = before & Load(seen + i);
    const Eight key = Load(keys + i) - taken;
    Store(allowed + i, before - taken);
    Store(keys + i, key);
    lowest = Smaller(lowest, key);
  }
  lowest_ = Smallest(lowest);
}

// Undoes Place, the last one first. Some of the 20 cells may still be denied the digit by another unit.
void FullGridSearch::GiveBack(int cell, int digit) {
  digits_[cell] = 0;
  keys_[cell] = static_cast<std::int16_t>(keys_[cell] & ~kFilled);
  row_allows_[CellRow[cell]] |= DigitBit(digit);
  col_allows_[CellCol[cell]] |= DigitBit(digit);
  box_allows_[CellBox[cell]] |= DigitBit(digit);
  Keys& allowed = allowed_[digit - 1];
  for (int other = 0; other < kCells; ++other) {
    if (kSeenBy[cell][other] == 0 || allowed[other] != 0 || !HasDigit(Allowed(other), digit)) continue;
    allowed[other] = kOneDigit;
    keys_[other] = static_cast<std::int16_t>(keys_[other] + kOneDigit);
  }
}

// Brings the cell of the smallest key to position p.
void FullGridSearch::ChooseCell() {
  const int best = kCells - 1 - (lowest_ & kPosition);
  const auto distance = static_cast<std::int16_t>(p_ - best);
  std::int16_t& chosen = keys_[CellOrder[best]];
  std::int16_t& other = keys_[CellOrder[p_]];
  chosen = static_cast<std::int16_t>(chosen - distance);
  other = static_cast<std::int16_t>(other + distance);
  std::swap(CellOrder[best], CellOrder[p_]);
}

void FullGridSearch::Step() {
  if (digits_[CellOrder[p_]] == 0) ChooseCell();
  const int cell = CellOrder[p_];
  const int before = digits_[cell];
  if (before != 0) GiveBack(cell, before);
  const auto left = static_cast<unsigned>(Allowed(cell)) >> static_cast<unsigned>(before);
  if (left == 0) {
    ++p_;
    return;
  }
  Place(cell, before + 1 + std::countr_zero(left));
  if (lowest_ >= kOneDigit) --p_;  // else the next step takes this cell's next digit
}

Making FullGridSearch::Fill(Yield& yield) {
  while (p_ >= 0) {
    if (!yield.KeepGoing()) return Making::Stopped;
    Step();
  }
  return Making::Made;
}

}  // namespace kestrel

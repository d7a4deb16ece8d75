// SPDX-License-Identifier: MIT
// A set of cells as 81 bits. Used by the solver, where one such set per digit is the fast side of the state.
#pragma once

#include <array>
#include <bit>
#include <cstdint>

#include "core/grid.h"

namespace kestrel {

// Bit c stands for cell c, in two words so that plain 64-bit machines need nothing special:
//
//   word 0: cells 0..63 (rows A to G and one cell of H)        word 1: cells 64..80
//
// Bits 17..63 of word 1 are always 0. Iterating gives the cells in ascending order:
//
//   for (int cell : set) ...
class CellSet {
 public:
  constexpr CellSet() = default;
  constexpr CellSet(std::uint64_t low, std::uint64_t high) : low_(low), high_(high) {}

  static constexpr CellSet All() { return {~std::uint64_t{0}, (std::uint64_t{1} << 17U) - 1}; }
  static constexpr CellSet Of(int cell) {
    CellSet set;
    set.Add(cell);
    return set;
  }

  constexpr void Add(int cell) { Word(cell) |= Bit(cell); }
  constexpr void Remove(int cell) { Word(cell) &= ~Bit(cell); }
  [[nodiscard]] constexpr bool Has(int cell) const {
    return (((cell < 64 ? low_ : high_) >> (static_cast<unsigned>(cell) & 63U)) & 1U) != 0;
  }
  [[nodiscard]] constexpr bool Empty() const { return (low_ | high_) == 0; }
  [[nodiscard]] constexpr int Size() const { return std::popcount(low_) + std::popcount(high_); }
  // True for two cells or more; cheaper than Size().
  [[nodiscard]] constexpr bool Several() const {
    return low_ != 0 ? ((low_ & (low_ - 1)) | high_) != 0 : (high_ & (high_ - 1)) != 0;
  }
  // The lowest cell of a set that is not empty.
  [[nodiscard]] constexpr int First() const { return *begin(); }

  // The nine cells of a row 0..8, bit c for column c.
  [[nodiscard]] constexpr unsigned Row(int row) const {
    const auto shift = static_cast<unsigned>(9 * row);
    const std::uint64_t word = row < 7 ? low_ >> shift : row == 7 ? low_ >> shift | high_ << 1U : high_ >> 8U;
    return static_cast<unsigned>(word & 511U);
  }

  friend constexpr CellSet operator&(CellSet a, CellSet b) { return {a.low_ & b.low_, a.high_ & b.high_}; }
  friend constexpr CellSet operator|(CellSet a, CellSet b) { return {a.low_ | b.low_, a.high_ | b.high_}; }
  // The cells of a that are not in b.
  friend constexpr CellSet operator-(CellSet a, CellSet b) { return {a.low_ & ~b.low_, a.high_ & ~b.high_}; }
  constexpr CellSet& operator&=(CellSet other) { return *this = *this & other; }
  constexpr CellSet& operator|=(CellSet other) { return *this = *this | other; }
  constexpr CellSet& operator-=(CellSet other) { return *this = *this - other; }
  friend constexpr bool operator==(CellSet, CellSet) = default;

  class Iterator {
   public:
    constexpr Iterator(std::uint64_t low, std::uint64_t high) : low_(low), high_(high) {}
    constexpr int operator*() const {
      return low_ != 0 ? std::countr_zero(low_) : 64 + std::countr_zero(high_);
    }
    constexpr Iterator& operator++() {
      std::uint64_t& word = low_ != 0 ? low_ : high_;
      word &= word - 1;
      return *this;
    }
    friend constexpr bool operator==(const Iterator&, const Iterator&) = default;

   private:
    std::uint64_t low_;
    std::uint64_t high_;
  };
  [[nodiscard]] constexpr Iterator begin() const { return {low_, high_}; }
  [[nodiscard]] constexpr Iterator end() const { return {0, 0}; }

 private:
  static constexpr std::uint64_t Bit(int cell) {
    return std::uint64_t{1} << (static_cast<unsigned>(cell) & 63U);
  }
  constexpr std::uint64_t& Word(int cell) { return cell < 64 ? low_ : high_; }

  std::uint64_t low_ = 0;
  std::uint64_t high_ = 0;
};

}  // namespace kestrel

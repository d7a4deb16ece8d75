// SPDX-License-Identifier: MIT
// 81 bits in one 128-bit register. Used by the fast form of the generator, which does little else than AND
// and OR on them; core's CellSet keeps the same bits in two ordinary words.
#pragma once

#include <bit>
#include <cstdint>

#include "core/grid.h"

namespace kestrel {

// The bits of a BitBoard as a constant: the vector extension has none.
struct alignas(16) BoardBits {
  std::uint64_t low = 0;   // cells 0..63
  std::uint64_t high = 0;  // cells 64..80

  // The cells for which `holds` is true.
  static constexpr BoardBits Where(auto holds) {
    BoardBits bits;
    for (int cell = 0; cell < kCells; ++cell) {
      if (!holds(cell)) continue;
      (cell < 64 ? bits.low : bits.high) |= std::uint64_t{1} << (static_cast<unsigned>(cell) & 63U);
    }
    return bits;
  }
};

class BitBoard {
 public:
  BitBoard() : words_{0, 0} {}
  // NOLINTNEXTLINE(google-explicit-constructor): the two are one thing.
  BitBoard(const BoardBits& bits) : words_(std::bit_cast<Words>(bits)) {}

  [[nodiscard]] bool Any() const { return (words_[0] | words_[1]) != 0; }
  [[nodiscard]] bool Has(int cell) const {
    return ((words_[cell >> 6] >> (static_cast<unsigned>(cell) & 63U)) & 1U) != 0;
  }
  // The lowest cell of a board that is not empty.
  [[nodiscard]] int First() const {
    return words_[0] != 0 ? std::countr_zero(words_[0]) : 64 + std::countr_zero(words_[1]);
  }
  // Calls `use` with every cell in ascending order.
  void ForEach(auto use) const {
    for (int word = 0; word < 2; ++word) {
      for (std::uint64_t left = words_[word]; left != 0; left &= left - 1) {
        use(64 * word + std::countr_zero(left));
      }
    }
  }

  friend BitBoard operator&(BitBoard a, BitBoard b) { return BitBoard(a.words_ & b.words_); }
  friend BitBoard operator|(BitBoard a, BitBoard b) { return BitBoard(a.words_ | b.words_); }
  // The cells of a that are not in b.
  friend BitBoard operator-(BitBoard a, BitBoard b) { return BitBoard(a.words_ & ~b.words_); }
  BitBoard operator~() const { return BitBoard(~words_); }
  BitBoard& operator&=(BitBoard other) { return *this = *this & other; }
  BitBoard& operator|=(BitBoard other) { return *this = *this | other; }
  BitBoard& operator-=(BitBoard other) { return *this = *this - other; }

 private:
  // Vector extension of GCC and Clang: plain SSE2 on x86-64, ordinary words where there are no such
  // registers.
  using Words = std::uint64_t __attribute__((vector_size(16)));
  explicit BitBoard(Words words) : words_(words) {}

  Words words_;
};

}  // namespace kestrel

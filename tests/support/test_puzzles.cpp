// SPDX-License-Identifier: MIT
// A small backtracking solver over digits still free in each row, column and box, always filling the cell
// with the fewest; the puzzle maker digs holes with it.
#include "support/test_puzzles.h"

#include <array>
#include <utility>

namespace kestrel::testing {
namespace {

class BruteForce {
 public:
  // With a random source digits are tried from a random one upwards, else from the lowest.
  BruteForce(const DigitGrid& givens, int limit, RandomSource* random = nullptr)
      : grid_(givens), limit_(limit), random_(random) {
    free_.fill(kAllDigits);
    for (int cell = 0; cell < kCells; ++cell) {
      if (givens[cell] == 0) {
        empty_[empty_count_++] = cell;
      } else {
        contradiction_ = contradiction_ || !HasDigit(Allowed(cell), givens[cell]);
        for (const int unit : UnitsOf(cell))
          free_[unit] &= static_cast<CandidateMask>(~DigitBit(givens[cell]));
      }
    }
  }

  // The solutions found; clashes of the givens count, or are left aside.
  int Count(bool clashes_count = true) {
    if (!contradiction_ || !clashes_count) Search();
    return found_;
  }
  [[nodiscard]] const DigitGrid& first() const { return first_; }

 private:
  [[nodiscard]] CandidateMask Allowed(int cell) const {
    return free_[CellRow[cell]] & free_[9 + CellCol[cell]] & free_[18 + CellBox[cell]];
  }
  static std::array<int, 3> UnitsOf(int cell) {
    return {CellRow[cell], 9 + CellCol[cell], 18 + CellBox[cell]};
  }
  void Flip(int cell, int digit) {
    for (const int unit : UnitsOf(cell)) free_[unit] ^= DigitBit(digit);
  }

  void Search() {
    if (empty_count_ == 0) {
      if (found_++ == 0) first_ = grid_;
      return;
    }
    int best = 0;
    int fewest = 10;
    for (int i = 0; i < empty_count_ && fewest > 1; ++i) {
      const int count = BitCount[Allowed(empty_[i])];
      if (count < fewest) {
        fewest = count;
        best = i;
      }
    }
    const int cell = empty_[best];
    std::swap(empty_[best], empty_[--empty_count_]);
    const int first = random_ == nullptr ? 0 : random_->Below(9);
    const CandidateMask allowed = Allowed(cell);
    for (int i = 0; i < 9 && found_ < limit_; ++i) {
      const int digit = (first + i) % 9 + 1;
      if (!HasDigit(allowed, digit)) continue;
      grid_[cell] = static_cast<std::uint8_t>(digit);
      Flip(cell, digit);
      Search();
      Flip(cell, digit);
    }
    grid_[cell] = 0;
    std::swap(empty_[best], empty_[empty_count_++]);
  }

  DigitGrid grid_;
  DigitGrid first_{};
  std::array<CandidateMask, 27> free_{};
  std::array<int, kCells> empty_{};
  int empty_count_ = 0;
  int limit_;
  RandomSource* random_;
  int found_ = 0;
  bool contradiction_ = false;
};

}  // namespace

DigitGrid GridFromText(std::string_view text) {
  DigitGrid grid{};
  for (std::size_t cell = 0; cell < grid.size() && cell < text.size(); ++cell) {
    if (text[cell] >= '1' && text[cell] <= '9') grid[cell] = static_cast<std::uint8_t>(text[cell] - '0');
  }
  return grid;
}

std::string TextFromGrid(const DigitGrid& grid) {
  std::string text;
  for (const int digit : grid) text += digit == 0 ? '.' : static_cast<char>('0' + digit);
  return text;
}

int CountSolutions(const DigitGrid& givens, int limit, DigitGrid* solution) {
  BruteForce search(givens, limit);
  const int count = search.Count();
  if (solution != nullptr && count > 0) *solution = search.first();
  return count;
}

int CountFillings(const DigitGrid& givens, int limit) {
  return BruteForce(givens, limit).Count(false);
}

DigitGrid MakeTestGrid(RandomSource& random) {
  BruteForce search(DigitGrid{}, 1, &random);
  search.Count();
  return search.first();
}

DigitGrid MakeTestPuzzle(RandomSource& random) {
  DigitGrid puzzle = MakeTestGrid(random);
  std::array<int, 41> order{};
  for (int i = 0; i < 41; ++i) order[i] = i;
  for (int i = 40; i > 0; --i) std::swap(order[i], order[random.Below(i + 1)]);
  for (const int cell : order) {
    DigitGrid next = puzzle;
    next[cell] = 0;
    next[80 - cell] = 0;
    if (CountSolutions(next, 2) == 1) puzzle = next;
  }
  return puzzle;
}

}  // namespace kestrel::testing

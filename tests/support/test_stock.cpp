// SPDX-License-Identifier: MIT
#include "support/test_stock.h"

#include <array>
#include <string_view>

#include "core/check.h"
#include "core/stock_file.h"
#include "host/host_files.h"
#include "solver/technique_table.h"
#include "support/test_puzzles.h"

namespace kestrel::testing {
namespace {

// By level; rated so by the solver.
constexpr std::array<std::string_view, kLevels> kPuzzles = {
    "..8..2....5...6...14..7..2.9.3..81.5..5...3..6.41..9.2.8..2..74...8...1....5..2..",
    "...6...1..467..52......5.97...8.9....82...96....5.3...95.1......13..684..6...4...",
    "8......2.2.7135.....4.9.5..74....8......7......1....46..3.5.9.....3192.4.2......1",
    "....4.5..7.45....3.3.6...94.4....7.9.6..8..3.8.9....5.97...1.6.3....62.7..6.7....",
    "4...6....26...1.....79..1...7..1.5...24...87...8.9..3...5..92.....1...67....7...4"};

// Digits moved on by `shift`, the grid turned by half when `turned`.
DigitGrid Variant(const DigitGrid& grid, int shift, bool turned) {
  DigitGrid variant{};
  for (int cell = 0; cell < kCells; ++cell) {
    const int digit = grid[turned ? kCells - 1 - cell : cell];
    variant[cell] = static_cast<std::uint8_t>(digit == 0 ? 0 : (digit - 1 + shift) % 9 + 1);
  }
  return variant;
}

SudokuRecord MakeRecord(int level, int number, const DigitGrid& puzzle, const DigitGrid& solution) {
  const int shift = (number - 1) % 9;
  const bool turned = (number - 1) / 9 % 2 == 1;
  SudokuRecord record;
  record.Level = static_cast<std::int16_t>(level);
  record.Reserved1 = static_cast<std::int16_t>(1000 * level + number);
  record.Reserved2 = static_cast<std::int16_t>(-number);
  record.GivenCells = Variant(puzzle, shift, turned);
  record.SolutionCells = Variant(solution, shift, turned);
  for (int slot = 0; slot < TechniquesUpTo(level); ++slot) {
    record.TechniqueCount[slot] = static_cast<std::int16_t>((number + slot) % 7);
  }
  record.Score = 100 * level + number;
  return record;
}

}  // namespace

StockTable MakeTestStock() {
  StockTable stock;
  for (int level = 1; level <= kLevels; ++level) {
    const DigitGrid puzzle = GridFromText(kPuzzles[level - 1]);
    DigitGrid solution{};
    CountSolutions(puzzle, 1, &solution);
    for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
      stock(level, number) = MakeRecord(level, number, puzzle, solution);
    }
  }
  stock(3, 1).BestMinutes = 1;
  stock(3, 1).BestSeconds = 30;
  stock(3, 2).BestMinutes = 2;
  stock(3, 2).BestSeconds = 1;
  stock(3, 1).BestPlayer = stock(3, 2).BestPlayer = 1;
  return stock;
}

StockTable ShippedStock() {
  SystemCalls calls;
  HostFiles files(calls, PathForm::kHost);
  StockTable stock;
  Require(static_cast<bool>(ReadStockFile(files, KESTREL_SOURCE_DIR "/data/sudstock.kpz", stock)));
  return stock;
}

}  // namespace kestrel::testing

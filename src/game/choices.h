// SPDX-License-Identifier: MIT
// What the player chooses before a puzzle is opened, and what is chosen on the board. Used by opening, options
// and cell input.
#pragma once

#include <array>

#include "core/check.h"
#include "core/stock_table.h"

namespace kestrel {

// A value for each level, indexed by level 1..5.
class PerLevel {
 public:
  int& operator()(int level) { return values_[Index(level)]; }
  int operator()(int level) const { return values_[Index(level)]; }

 private:
  static std::size_t Index(int level) {
    Require(level >= 1 && level <= kLevels);
    return static_cast<std::size_t>(level - 1);
  }
  std::array<int, kLevels> values_{};
};

// Kept in the settings, like the players and whether sounds are on. Cannot change while a puzzle is in play:
// it is then the puzzle CurrentNumber(SelectedLevel).
struct Choices {
  int SelectedLevel = 0;   // 1..5 after start-up
  PerLevel CurrentNumber;  // last number opened, 0: none yet
};

inline constexpr int kNoHeader = 9;  // none is selected

// The row and column that Reset Cell works on; stays from one puzzle to the next.
struct HeaderChoice {
  int SelectedRow = kNoHeader;  // 0..8
  int SelectedColumn = kNoHeader;
};

}  // namespace kestrel

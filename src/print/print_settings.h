// SPDX-License-Identifier: MIT
// What is to be printed, as the dialog or the command line chose it.
#pragma once

#include "core/stock_table.h"

namespace kestrel {

inline constexpr int kMostPages = 10;

struct PrintSettings {
  int pages = 1;     // 1..10
  int per_page = 1;  // puzzles a page: 1, 2 or 4
  bool with_solutions = true;
  bool with_pencil_marks = true;
  int first_number = 1;  // 1..HighestFirstNumber
  int level_index = 0;   // 0..4, "Very Easy" to "Very Hard"

  friend bool operator==(const PrintSettings&, const PrintSettings&) = default;
};

constexpr int PuzzlesPrinted(const PrintSettings& settings) {
  return settings.per_page * settings.pages;
}

// The first number that lets the last puzzle be the level's last one.
constexpr int HighestFirstNumber(const PrintSettings& settings) {
  return kPuzzlesPerLevel + 1 - PuzzlesPrinted(settings);
}

constexpr int LastNumber(const PrintSettings& settings) {
  return settings.first_number + PuzzlesPrinted(settings) - 1;
}

// The place of 1, 2 and 4 puzzles a page in tables: 0, 1, 2.
constexpr int PerPageIndex(int per_page) {
  return per_page / 2;
}

}  // namespace kestrel

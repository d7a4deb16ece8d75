// SPDX-License-Identifier: MIT
// Which puzzles of a stock are good practice for which technique. Used for the help pages.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/stock_table.h"
#include "core/technique.h"

namespace kestrel::help {

// The stock of a file's bytes; nothing when it is not the length of a stock.
std::optional<StockTable> StockOfBytes(std::span<const std::uint8_t> bytes);

// What a stock has for a technique.
struct Rung {
  Technique technique = Technique::None;
  int level = 0;             // of the technique's tier, 1..5
  std::vector<int> puzzles;  // numbers in that level that need the technique and nothing harder, best first
  std::size_t pure = 0;      // how many of those, at the front, need only singles besides
  int needed = 0;            // puzzles of all levels that need it
  int times = 0;             // how often all of them together do
};

// The two singles count as one here: hardly a puzzle does without either. The best puzzles are those with the fewest steps of other techniques besides singles; among these the ones
// with the lowest score.
Rung RungOf(const StockTable& stock, Technique technique);

// "Practise with Hard 4, 5 and 11, which need only singles besides, then with 7 and 12."
std::string PracticeSentence(const Rung& rung);

// "Needed in 45 of the 500 puzzles, 56 times in all."
std::string UseSentence(const Rung& rung);

}  // namespace kestrel::help

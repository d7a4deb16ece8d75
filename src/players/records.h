// SPDX-License-Identifier: MIT
// The best times of a level as a whole: how good each is, and who holds how many. Used by the records window.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/stock_table.h"
#include "players/players.h"

namespace kestrel {

struct PuzzleRecord {
  std::int32_t seconds = 0;  // 0: there is no best time
  std::int32_t score = 0;
  int player = 0;    // 0 or a number that is no player: nobody
  double merit = 0;  // of a time: 0 for the level's longest, 1 for its shortest
  friend bool operator==(const PuzzleRecord&, const PuzzleRecord&) = default;
};

struct Holder {
  int player = 0;
  std::string name;
  int count = 0;
  friend bool operator==(const Holder&, const Holder&) = default;
};

struct LevelRecords {
  std::array<PuzzleRecord, kPuzzlesPerLevel> puzzles{};  // number 1 first
  std::vector<Holder> holders;                           // who holds most first, then by number of the player

  [[nodiscard]] const PuzzleRecord& Of(int number) const {
    return puzzles[static_cast<std::size_t>(number - 1)];
  }
  // The place of a player among the holders, -1 for none.
  [[nodiscard]] int PlaceOf(int player) const;
  friend bool operator==(const LevelRecords&, const LevelRecords&) = default;
};

// The records of a level, 1..5.
[[nodiscard]] LevelRecords RecordsOf(const StockTable& stock, const Players& players, int level);

namespace texts {

// "03:07"; the minutes are never cut.
std::string RecordTime(std::int32_t seconds);

// "Number 12: 03:07 by Ann", "Number 12: no best time yet".
std::string PuzzleRecordText(const LevelRecords& records, int number);

}  // namespace texts

}  // namespace kestrel

// SPDX-License-Identifier: MIT
#include "players/records.h"

#include <algorithm>
#include <cstdint>

#include "players/texts.h"

namespace kestrel {

namespace {

void SetMerits(LevelRecords& records) {
  std::int32_t shortest = 0;
  std::int32_t longest = 0;
  for (const PuzzleRecord& each : records.puzzles) {
    if (each.seconds == 0) continue;
    shortest = shortest == 0 ? each.seconds : std::min(shortest, each.seconds);
    longest = std::max(longest, each.seconds);
  }
  for (PuzzleRecord& each : records.puzzles) {
    if (each.seconds == 0) continue;
    each.merit = longest == shortest ? 1 : 1.0 * (longest - each.seconds) / (longest - shortest);
  }
}

void CountHolders(LevelRecords& records, const Players& players) {
  for (const PuzzleRecord& each : records.puzzles) {
    if (each.seconds == 0) continue;
    const int place = records.PlaceOf(each.player);
    if (place >= 0) {
      ++records.holders[static_cast<std::size_t>(place)].count;
      continue;
    }
    std::string name = players.Name(each.player);
    if (name.empty()) name = texts::kNobody;
    records.holders.push_back({each.player, std::move(name), 1});
  }
  std::sort(records.holders.begin(), records.holders.end(), [](const Holder& one, const Holder& other) {
    return one.count != other.count ? one.count > other.count : one.player < other.player;
  });
}

}  // namespace

int LevelRecords::PlaceOf(int player) const {
  const auto found =
      std::find_if(holders.begin(), holders.end(), [&](const Holder& each) { return each.player == player; });
  return found == holders.end() ? -1 : static_cast<int>(found - holders.begin());
}

LevelRecords RecordsOf(const StockTable& stock, const Players& players, int level) {
  LevelRecords records;
  for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
    const SudokuRecord& record = stock(level, number);
    PuzzleRecord& puzzle = records.puzzles[static_cast<std::size_t>(number - 1)];
    puzzle.score = record.Score;
    // A foreign stock file can have negative times.
    if (BestTime(record) <= 0) continue;
    puzzle.seconds = BestTime(record);
    puzzle.player = record.BestPlayer;
  }
  SetMerits(records);
  CountHolders(records, players);
  return records;
}

std::string texts::RecordTime(std::int32_t seconds) {
  const auto padded = [](std::int32_t value) { return (value < 10 ? "0" : "") + std::to_string(value); };
  return padded(seconds / 60) + ":" + padded(seconds % 60);
}

std::string texts::PuzzleRecordText(const LevelRecords& records, int number) {
  const PuzzleRecord& puzzle = records.Of(number);
  std::string text = "Number " + std::to_string(number) + ": ";
  const int place = records.PlaceOf(puzzle.player);
  if (puzzle.seconds == 0 || place < 0) return text + "no best time yet";
  return text + RecordTime(puzzle.seconds) + " by " + records.holders[static_cast<std::size_t>(place)].name;
}

}  // namespace kestrel

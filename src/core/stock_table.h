// SPDX-License-Identifier: MIT
// One stored puzzle, and the table of all 500. Used by whoever opens, prints, rates or renews puzzles.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "core/check.h"
#include "core/grid.h"
#include "core/technique.h"

namespace kestrel {

inline constexpr int kLevels = 5;
inline constexpr int kPuzzlesPerLevel = 100;

inline constexpr std::size_t kRecordBytes = 222;
static_assert(kRecordBytes == 178 + 2 * kTechniques, "a further technique needs a wider record");
inline constexpr std::size_t kStockBytes = kRecordBytes * kLevels * kPuzzlesPerLevel;  // 111,000

struct SudokuRecord {
  std::int16_t Level = 0;      // 1 ("Very Easy") to 5 ("Very Hard")
  std::int16_t Reserved1 = 0;  // not interpreted, kept as it is
  std::int16_t Reserved2 = 0;  // not interpreted; 0 in a new puzzle
  DigitGrid GivenCells{};
  DigitGrid SolutionCells{};
  std::int16_t BestMinutes = 0;  // best time 0:00 means that there is none
  std::int16_t BestSeconds = 0;
  std::int16_t BestPlayer = 0;                             // 0 = nobody
  std::array<std::int16_t, kTechniques> TechniqueCount{};  // by display slot
  std::int32_t Score = 0;

  friend bool operator==(const SudokuRecord&, const SudokuRecord&) = default;
};

// A record as it stands in the stock file: 222 bytes, integers little-endian, no gaps.
void EncodeRecord(const SudokuRecord& record, std::span<std::uint8_t, kRecordBytes> bytes);
// The record of 222 bytes; nothing is checked, every byte pattern is a record.
SudokuRecord DecodeRecord(std::span<const std::uint8_t, kRecordBytes> bytes);

// A file that did not come from this program may hold anything, and the table keeps every byte of it. Who
// uses a field as an index or as a digit goes through these.

// The digit of a cell 0..80, 1..9; 0 for an empty cell and for a byte that is no digit.
constexpr int DigitAt(const DigitGrid& grid, int cell) {
  return grid[cell] <= 9 ? grid[cell] : 0;
}

// The same for a whole grid.
DigitGrid SafeDigits(const DigitGrid& grid);

// The best time in seconds, minutes x 60 + seconds; negative only when the record holds nonsense.
constexpr std::int32_t BestTime(const SudokuRecord& record) {
  return record.BestMinutes * 60 + record.BestSeconds;
}

// What can be wrong with a record by itself, without looking for other solutions or rating it.
enum class RecordFault : std::uint8_t {
  Level,     // not the one that it is filed under
  Solution,  // not a complete grid
  Given,     // differs from the solution
  BestTime,  // makes no sense
  Counts,    // one of them, or the score, is negative
};

// All faults of a record filed under `level`, in the order of their list.
std::vector<RecordFault> RecordFaults(const SudokuRecord& record, int level);

// A fault in a few words.
std::string_view Describe(RecordFault fault);

// The first fault of a record filed under `level` in words; empty when there is none.
std::string_view CheckRecord(const SudokuRecord& record, int level);

// The place of a puzzle in the stock file, 1..500.
constexpr int RecordNumber(int level, int number) {
  return (level - 1) * kPuzzlesPerLevel + number;
}

// 5 x 100 records, indexed by level 1..5 and number 1..100.
class StockTable {
 public:
  SudokuRecord& operator()(int level, int number) { return records_[Index(level, number)]; }
  const SudokuRecord& operator()(int level, int number) const { return records_[Index(level, number)]; }

  friend bool operator==(const StockTable&, const StockTable&) = default;

 private:
  static std::size_t Index(int level, int number) {
    Require(level >= 1 && level <= kLevels && number >= 1 && number <= kPuzzlesPerLevel);
    return static_cast<std::size_t>(RecordNumber(level, number) - 1);
  }

  std::array<SudokuRecord, kLevels * kPuzzlesPerLevel> records_{};
};

}  // namespace kestrel

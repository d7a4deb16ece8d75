// SPDX-License-Identifier: MIT
// The record's 222 bytes, and the look at a record that may hold anything.
#include "core/stock_table.h"

#include <algorithm>
#include <concepts>
#include <cstdint>
#include <type_traits>

#include "core/grid_check.h"

namespace kestrel {

namespace {

// Walks over the fields of a record in the order of the file; reading and writing share it, so that they
// cannot differ. A grid is one field: its 81 bytes are copied at once.
template <class Record, class Field>
void EachField(Record& record, Field field) {
  field(record.Level);
  field(record.Reserved1);
  field(record.Reserved2);
  field(record.GivenCells);
  field(record.SolutionCells);
  field(record.BestMinutes);
  field(record.BestSeconds);
  field(record.BestPlayer);
  for (auto& count : record.TechniqueCount) field(count);
  field(record.Score);
}

}  // namespace

void EncodeRecord(const SudokuRecord& record, std::span<std::uint8_t, kRecordBytes> bytes) {
  auto* next = bytes.data();
  EachField(record, [&next]<class T>(const T& value) {
    if constexpr (std::same_as<T, DigitGrid>) {
      next = std::ranges::copy(value, next).out;
    } else {
      const auto bits = static_cast<std::make_unsigned_t<T>>(value);
      for (std::size_t i = 0; i < sizeof(bits); ++i) *next++ = static_cast<std::uint8_t>(bits >> (8 * i));
    }
  });
}

SudokuRecord DecodeRecord(std::span<const std::uint8_t, kRecordBytes> bytes) {
  SudokuRecord record;
  const auto* next = bytes.data();
  EachField(record, [&next]<class T>(T& value) {
    if constexpr (std::same_as<T, DigitGrid>) {
      std::copy_n(next, value.size(), value.begin());
      next += value.size();
    } else {
      std::uint32_t bits = 0;
      for (std::size_t i = 0; i < sizeof(value); ++i) bits |= std::uint32_t{*next++} << (8 * i);
      value = static_cast<T>(bits);
    }
  });
  return record;
}

DigitGrid SafeDigits(const DigitGrid& grid) {
  DigitGrid safe{};
  for (int cell = 0; cell < kCells; ++cell) safe[cell] = static_cast<std::uint8_t>(DigitAt(grid, cell));
  return safe;
}

std::vector<RecordFault> RecordFaults(const SudokuRecord& record, int level) {
  std::vector<RecordFault> faults;
  if (record.Level != level) faults.push_back(RecordFault::Level);
  if (!IsFullGrid(record.SolutionCells)) faults.push_back(RecordFault::Solution);
  for (int cell = 0; cell < kCells; ++cell) {
    const int given = record.GivenCells[cell];
    if (given == 0 || given == record.SolutionCells[cell]) continue;
    faults.push_back(RecordFault::Given);
    break;
  }
  if (record.BestMinutes < 0 || record.BestSeconds < 0 || record.BestSeconds > 59 || record.BestPlayer < 0) {
    faults.push_back(RecordFault::BestTime);
  }
  if (std::ranges::any_of(record.TechniqueCount, [](int count) { return count < 0; }) || record.Score < 0) {
    faults.push_back(RecordFault::Counts);
  }
  return faults;
}

std::string_view Describe(RecordFault fault) {
  switch (fault) {
    case RecordFault::Level:
      return "its level is not the one that it is filed under";
    case RecordFault::Solution:
      return "its solution is not a complete grid";
    case RecordFault::Given:
      return "a given differs from the solution";
    case RecordFault::BestTime:
      return "its best time makes no sense";
    case RecordFault::Counts:
      return "a count or its score is negative";
  }
  return {};
}

std::string_view CheckRecord(const SudokuRecord& record, int level) {
  const std::vector<RecordFault> faults = RecordFaults(record, level);
  return faults.empty() ? std::string_view() : Describe(faults.front());
}

}  // namespace kestrel

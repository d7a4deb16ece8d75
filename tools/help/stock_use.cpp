// SPDX-License-Identifier: MIT
// Which puzzles of a stock need which technique.
#include "help/stock_use.h"

#include "explain/names.h"

namespace kestrel::help {
namespace {

std::string Ranges(const std::vector<int>& numbers) {
  std::vector<std::string> parts;
  for (std::size_t i = 0; i < numbers.size();) {
    std::size_t end = i + 1;
    while (end < numbers.size() && numbers[end] == numbers[end - 1] + 1) ++end;
    if (end - i >= 3) {
      parts.push_back(std::to_string(numbers[i]) + " to " + std::to_string(numbers[end - 1]));
    } else {
      for (std::size_t j = i; j < end; ++j) parts.push_back(std::to_string(numbers[j]));
    }
    i = end;
  }
  return Joined(parts);
}

}  // namespace

std::optional<StockTable> StockOfBytes(std::span<const std::uint8_t> bytes) {
  if (bytes.size() != kStockBytes) return std::nullopt;
  StockTable stock;
  for (int level = 1; level <= kLevels; ++level) {
    for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
      const auto at = static_cast<std::size_t>(RecordNumber(level, number) - 1) * kRecordBytes;
      stock(level, number) = DecodeRecord(bytes.subspan(at).first<kRecordBytes>());
    }
  }
  return stock;
}

TechniqueUse UseOf(const StockTable& stock, Technique technique) {
  TechniqueUse use;
  for (int level = 1; level <= kLevels; ++level) {
    for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
      const int times = stock(level, number).TechniqueCount[static_cast<std::size_t>(SlotOf(technique))];
      if (times <= 0) continue;
      use.puzzles[level - 1].push_back(number);
      use.times[level - 1] += times;
    }
  }
  return use;
}

std::string NumberList(const std::vector<int>& numbers) {
  if (numbers.size() == kPuzzlesPerLevel) return "all";
  std::vector<int> others;
  std::size_t next = 0;
  for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
    if (next < numbers.size() && numbers[next] == number) {
      ++next;
    } else {
      others.push_back(number);
    }
  }
  constexpr std::size_t kFewExceptions = 20;
  return others.size() <= kFewExceptions ? "all but " + Ranges(others) : Ranges(numbers);
}

std::string_view LevelName(int level) {
  constexpr std::array<std::string_view, kLevels> kNames{"Very Easy", "Easy", "Medium", "Hard", "Very Hard"};
  return kNames[static_cast<std::size_t>(level - 1)];
}

}  // namespace kestrel::help

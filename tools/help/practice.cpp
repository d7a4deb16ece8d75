// SPDX-License-Identifier: MIT
#include "help/practice.h"

#include <algorithm>
#include <array>
#include <tuple>

#include "core/level_names.h"
#include "explain/names.h"
#include "solver/technique_table.h"

namespace kestrel::help {
namespace {

constexpr std::size_t kPuzzlesOfRung = 5;

// How many steps of a puzzle are neither singles nor the technique.
int OtherSteps(const SudokuRecord& record, Technique technique) {
  int others = 0;
  for (const Technique other : kAllTechniques) {
    if (other <= Technique::NakedSingle || other == technique) continue;
    others += record.TechniqueCount[static_cast<std::size_t>(SlotOf(other))];
  }
  return others;
}

bool IsHardest(const SudokuRecord& record, Technique technique) {
  for (const Technique other : kAllTechniques) {
    if (other > std::max(technique, Technique::NakedSingle) &&
        record.TechniqueCount[static_cast<std::size_t>(SlotOf(other))] > 0)
      return false;
  }
  return record.TechniqueCount[static_cast<std::size_t>(SlotOf(technique))] > 0;
}

// "18,459"; up to 999,999.
std::string WithComma(int number) {
  std::string digits = std::to_string(number);
  return digits.size() <= 3 ? digits : digits.insert(digits.size() - 3, ",");
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

Rung RungOf(const StockTable& stock, Technique technique) {
  Rung rung;
  rung.technique = technique;
  rung.level = RowOf(technique).tier;
  std::vector<std::tuple<int, std::int32_t, int>> found;  // other steps, score, number
  for (int level = 1; level <= kLevels; ++level) {
    for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
      const SudokuRecord& record = stock(level, number);
      const int times = record.TechniqueCount[static_cast<std::size_t>(SlotOf(technique))];
      rung.needed += times > 0 ? 1 : 0;
      rung.times += times;
      if (level == rung.level && IsHardest(record, technique)) {
        found.emplace_back(OtherSteps(record, technique), record.Score, number);
      }
    }
  }
  std::sort(found.begin(), found.end());
  if (found.size() > kPuzzlesOfRung) found.resize(kPuzzlesOfRung);
  for (const auto& [others, score, number] : found) {
    rung.puzzles.push_back(number);
    rung.pure += others == 0 ? 1 : 0;
  }
  return rung;
}

std::string PracticeSentence(const Rung& rung) {
  if (rung.puzzles.empty()) {
    return "None of the 500 puzzles that come with the game has it as its hardest step; practise with the "
           "exercises.";
  }
  const auto numbers = [&](std::size_t from, std::size_t to) {
    std::vector<std::string> words;
    for (std::size_t i = from; i < to; ++i) words.push_back(std::to_string(rung.puzzles[i]));
    return Joined(words);
  };
  const std::string start = "Practise with " + std::string(LevelName(rung.level)) + ' ';
  if (rung.technique <= Technique::NakedSingle || rung.pure == 0) {
    return start + numbers(0, rung.puzzles.size()) + '.';
  }
  std::string text = start + numbers(0, rung.pure) + (rung.pure == 1 ? ", which needs" : ", which need") +
                     " only singles besides";
  if (rung.pure < rung.puzzles.size()) text += ", then with " + numbers(rung.pure, rung.puzzles.size());
  return text + '.';
}

std::string UseSentence(const Rung& rung) {
  if (rung.needed == 0) return "None of the 500 puzzles needs it.";
  return "Needed in " + (rung.needed == 500 ? "all" : std::to_string(rung.needed) + " of the") +
         " 500 puzzles, " + WithComma(rung.times) + (rung.times == 1 ? " time" : " times") + " in all.";
}

}  // namespace kestrel::help

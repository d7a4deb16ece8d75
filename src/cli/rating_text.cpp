// SPDX-License-Identifier: MIT
#include "cli/rating_text.h"

#include "core/level_names.h"
#include "forms/texts.h"

#include <cstdint>

namespace kestrel {

std::string CountsHeader() {
  std::string text;
  for (const TechniqueRow& row : kTechniqueTable) {
    if (!text.empty()) text += '\t';
    text += row.abbreviation;
  }
  return text;
}

std::string CountsTsv(const SlotCounts& counts) {
  std::string text;
  for (const int count : counts) {
    if (!text.empty()) text += '\t';
    text += std::to_string(count);
  }
  return text;
}

Json CountsJson(const SlotCounts& counts) {
  Json::object_t object;
  object.reserve(kTechniques);
  for (int slot = 0; slot < kTechniques; ++slot) {
    object.emplace_back(kTechniqueTable[slot].abbreviation, counts[slot]);
  }
  return object;
}

DigitGrid SolvedGrid(const SolverState& state) {
  DigitGrid grid{};
  for (int cell = 0; cell < kCells; ++cell) grid[cell] = static_cast<std::uint8_t>(state.CellValue(cell));
  return grid;
}

std::string RatingName(int level) {
  return level > kLevels ? "Beyond" : std::string(LevelName(level));
}

std::optional<SolverState> StartOf(const InputLine& line) {
  if (!line.state) return std::nullopt;
  return SolverState(line.state->digits, line.state->candidates);
}

}  // namespace kestrel

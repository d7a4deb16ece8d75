// SPDX-License-Identifier: MIT
// What 'var' and the questions about the puzzle tell: values that no control shows.
#include "ui/script/values.h"

#include <algorithm>
#include <array>

#include "core/text.h"
#include "ui/memory/json_string.h"
#include "ui/memory/transcript.h"
#include "ui/script/parsing.h"

namespace kestrel {

namespace {

using Plain = std::string (*)(const Session&);

struct PlainRow {
  std::string_view name;
  Plain text;
};

constexpr std::array<PlainRow, 24> kPlainValues{{
    {"StockStatus", [](const Session& s) { return std::to_string(s.stockroom.StockStatus); }},
    {"SelectedLevel", [](const Session& s) { return std::to_string(s.choices.SelectedLevel); }},
    {"RenewingLevel", [](const Session& s) { return std::to_string(s.stockroom.RenewingLevel); }},
    {"RedisplayPending", [](const Session& s) { return TruthValue(s.play.phase == PlayPhase::Chosen); }},
    {"PuzzleLevel", [](const Session& s) { return std::to_string(s.play.puzzle.PuzzleLevel); }},
    {"PuzzleNumber", [](const Session& s) { return std::to_string(s.play.puzzle.PuzzleNumber); }},
    {"PuzzleBestPlayer", [](const Session& s) { return std::to_string(s.play.puzzle.PuzzleBestPlayer); }},
    {"PuzzleBestMinutes", [](const Session& s) { return std::to_string(s.play.puzzle.PuzzleBestMinutes); }},
    {"PuzzleBestSeconds", [](const Session& s) { return std::to_string(s.play.puzzle.PuzzleBestSeconds); }},
    {"StepCount", [](const Session& s) { return std::to_string(s.play.history.StepCount()); }},
    {"StepTop", [](const Session& s) { return std::to_string(s.play.history.StepTop()); }},
    {"SelectedRow", [](const Session& s) { return std::to_string(s.headers.SelectedRow); }},
    {"SelectedColumn", [](const Session& s) { return std::to_string(s.headers.SelectedColumn); }},
    {"StartSecond", [](const Session& s) { return std::to_string(s.play.clock.StartSecond); }},
    {"ElapsedSeconds", [](const Session& s) { return std::to_string(s.play.clock.ElapsedSeconds); }},
    {"ClockStopped", [](const Session& s) { return TruthValue(s.play.clock.ClockStopped); }},
    {"ClockPaused", [](const Session& s) { return TruthValue(s.play.clock.ClockPaused); }},
    {"PausedMinutes", [](const Session& s) { return std::to_string(s.play.clock.PausedMinutes); }},
    {"PausedSeconds", [](const Session& s) { return std::to_string(s.play.clock.PausedSeconds); }},
    {"SoundOn", [](const Session& s) { return TruthValue(s.sounds.SoundOn); }},
    {"SoundAvailable", [](const Session& s) { return TruthValue(s.sounds.SoundAvailable()); }},
    {"PlayerCount", [](const Session& s) { return std::to_string(s.players.PlayerCount()); }},
    {"CurrentPlayer", [](const Session& s) { return std::to_string(s.players.CurrentPlayer); }},
    {"ProgramFolder", [](const Session& s) { return JsonString(s.ProgramFolder); }},
}};

std::optional<std::string> IndexedValue(const Session& session, std::string_view name, int index) {
  const bool is_level = index >= 1 && index <= kLevels;
  if (name == "CurrentNumber" && is_level) return std::to_string(session.choices.CurrentNumber(index));
  if (name == "RenewalCount" && is_level) return std::to_string(session.stockroom.RenewalCount(index));
  if (name == "PlayerNames" && index >= 1 && index <= session.players.PlayerCount()) {
    return JsonString(session.players.PlayerNames(index));
  }
  return std::nullopt;
}

// Numbers with `separator` between them.
template <class Numbers>
std::string Join(const Numbers& numbers, char separator) {
  std::string text;
  for (const auto number : numbers) {
    if (!text.empty()) text += separator;
    text += std::to_string(number);
  }
  return text;
}

}  // namespace

std::optional<std::string> ValueText(const Session& session, std::string_view name) {
  if (name == "DataFolder") return JsonString(session.stockroom.DataFolder);
  const auto row = std::ranges::find(kPlainValues, name, &PlainRow::name);
  if (row != kPlainValues.end()) return row->text(session);
  const auto indexed = ParseIndexedName(name);
  if (!indexed || !indexed->index) return std::nullopt;
  return IndexedValue(session, indexed->name, *indexed->index);
}

std::string PencilText(const OpenPuzzle& puzzle) {
  return Join(puzzle.PencilMask, ',');
}

std::vector<std::string> StepTexts(const StepHistory& history) {
  std::vector<std::string> texts;
  texts.push_back(std::to_string(history.StepCount()) + "/" + std::to_string(history.StepTop()));
  for (int k = 1; k <= history.StepTop(); ++k) {
    const Step& step = history.At(k);
    texts.push_back(Join(std::array<int, 6>{step.Action, step.Cell, step.CellMarks, step.ColumnMarks,
                                            step.RowMarks, step.BoxMarks},
                         ' '));
  }
  return texts;
}

std::string RecordText(const SudokuRecord& record) {
  return Join(std::array<int, 3>{record.Level, record.Reserved1, record.Reserved2}, ' ') + " " +
         GridText(record.GivenCells) + " " + GridText(record.SolutionCells) + " " +
         Join(std::array<int, 3>{record.BestMinutes, record.BestSeconds, record.BestPlayer}, ' ') + " " +
         Join(record.TechniqueCount, ',') + " " + std::to_string(record.Score);
}

}  // namespace kestrel

// SPDX-License-Identifier: MIT
#include "game/opening.h"

#include <cstdint>
#include <optional>
#include <string>

#include "core/text.h"
#include "game/options.h"
#include "game/status_bar.h"
#include "game/texts.h"

namespace kestrel {

namespace {

// Blanks the board and makes everything wait for the next round.
void Choose(Play& play, Choices& choices, Settings& settings, int number) {
  play.ClearGrid();
  play.board.DisableGrid();
  play.ClearSudokuData();
  choices.CurrentNumber(choices.SelectedLevel) = number;
  SaveLastPuzzles(choices, settings);
  play.phase = PlayPhase::Chosen;
}

void TakeOver(OpenPuzzle& puzzle, const SudokuRecord& record, int number) {
  puzzle.GivenDigits = record.GivenCells;
  puzzle.SolutionDigits = record.SolutionCells;
  puzzle.PuzzleLevel = record.Level;
  puzzle.PuzzleNumber = static_cast<std::int16_t>(number);
  puzzle.PuzzleBestPlayer = record.BestPlayer;
  puzzle.PuzzleBestMinutes = record.BestMinutes;
  puzzle.PuzzleBestSeconds = record.BestSeconds;
}

}  // namespace

void NextPuzzle(Play& play, Choices& choices, Settings& settings) {
  const int last = choices.CurrentNumber(choices.SelectedLevel);
  Choose(play, choices, settings, last == kPuzzlesPerLevel ? 1 : last + 1);
}

void OpenPuzzleByNumber(Play& play, Choices& choices, Settings& settings, Asker& asker) {
  for (;;) {
    const std::optional<std::string> answer =
        asker.Input({std::string(texts::kSudokuNumber), std::string(texts::kEnterNumber),
                     std::string(texts::kProposedNumber), choices.SelectedLevel});
    if (!answer || answer->empty()) return;
    const int number = LeadingNumber(*answer);
    if (number >= 1 && number <= kPuzzlesPerLevel) return Choose(play, choices, settings, number);
  }
}

void ShowPuzzle(Play& play, MainWindow& main, const Choices& choices, const StockTable& stock,
                const Players& players) {
  const int level = choices.SelectedLevel;
  const SudokuRecord& record = stock(level, choices.CurrentNumber(level));
  TakeOver(play.puzzle, record, choices.CurrentNumber(level));
  ShowStatus(main, play.puzzle, stock, players, level);
  for (int slot = 0; slot < kTechniques; ++slot) {
    main.LabelCount(kTechniques + slot).caption = std::to_string(record.TechniqueCount[slot]);
  }
  play.board.LayOutGivens();
  play.clock.Start();
  play.board.EnableGrid();
  play.phase = PlayPhase::InPlay;
}

}  // namespace kestrel

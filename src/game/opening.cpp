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

void EnableLevels(MainWindow& main, bool enabled) {
  for (OptionButton& option : main.OptionType.items) option.enabled = enabled;
}

// Blanks the board and makes everything wait for the next round.
void Choose(Session& session, int number) {
  session.ClearGrid();
  session.board.DisableGrid();
  session.ClearSudokuData();
  MainWindow& main = session.forms.main;
  EnableLevels(main, false);
  for (Button* button : {&main.CommandRestart, &main.CommandUndo, &main.CommandRedo, &main.CommandResetCell,
                         &main.CommandSolution, &main.CommandHint, &main.CommandNew, &main.CommandOpen}) {
    button->enabled = false;
  }
  session.CurrentNumber(session.SelectedLevel) = number;
  SaveLastPuzzles(session);
  session.RedisplayPending = true;
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

void NextPuzzle(Session& session) {
  const int last = session.CurrentNumber(session.SelectedLevel);
  Choose(session, last == kPuzzlesPerLevel ? 1 : last + 1);
}

void OpenPuzzleByNumber(Session& session) {
  for (;;) {
    const std::optional<std::string> answer =
        session.asker.Input({std::string(texts::kSudokuNumber), std::string(texts::kEnterNumber),
                             std::string(texts::kProposedNumber), session.SelectedLevel});
    if (!answer || answer->empty()) return;
    const int number = LeadingNumber(*answer);
    if (number >= 1 && number <= kPuzzlesPerLevel) return Choose(session, number);
  }
}

void ShowPuzzle(Session& session, int level) {
  MainWindow& main = session.forms.main;
  const SudokuRecord& record = (*session.stock)(level, session.CurrentNumber(level));
  TakeOver(session.puzzle, record, session.CurrentNumber(level));
  session.clock.ClearPause();
  ShowStatus(session, level);
  for (int slot = 0; slot < kTechniques; ++slot) {
    main.LabelCount(kTechniques + slot).caption = std::to_string(record.TechniqueCount[slot]);
  }
  session.board.LayOutGivens();
  session.clock.Start();
  session.RedisplayPending = false;
  session.board.EnableGrid();
  main.CommandNew.enabled = false;
  main.CommandOpen.enabled = false;
  main.CommandResetCell.enabled = true;
  main.CommandSolution.enabled = true;
  main.CommandHint.enabled = true;
  EnableLevels(main, false);
}

}  // namespace kestrel

// SPDX-License-Identifier: MIT
#include "game/session.h"

#include "game/texts.h"
#include "solver/technique_table.h"

namespace kestrel {

namespace {

constexpr std::array<Colour, kLevels> kTierColours = {kWhite, kLightYellow, kLightGreen, kLightCyan,
                                                      kLightBlue};

// The technique list's captions and colours: the part of the design that the technique table decides.
void DesignTechniqueRows(MainWindow& main) {
  for (int slot = 0; slot < kTechniques; ++slot) {
    const TechniqueRow& row = kTechniqueTable[slot];
    const Colour colour = kTierColours[row.tier - 1];
    main.LabelCount(slot).caption = row.caption;
    main.LabelCount(slot).back = colour;
    main.LabelCount(kTechniques + slot).back = colour;
  }
}

}  // namespace

Session::Session(const Ports& handed_in) : ports(handed_in) {
  DesignTechniqueRows(forms.main);
}

void Session::ClearGrid() {
  clock.Reset();
  forms.main.LabelStap.caption = std::to_string(0);
  clock.ClockStopped = true;
  board.ClearGrid();
}

void Session::ClearSudokuData() {
  // The marks stay as they are shown, and so does the best time, which the next puzzle replaces.
  puzzle.GivenDigits = puzzle.SolutionDigits = puzzle.CurrentDigits = DigitGrid{};
  clock.ClearPause();
  puzzle.PuzzleLevel = 0;
  puzzle.PuzzleNumber = 0;
  puzzle.PuzzleBestPlayer = 0;
  history.Clear();
}

Step* Session::RecordStep(int cell) {
  if (history.Full()) return nullptr;
  Step& step = history.Append(cell);
  EnableHistoryButtons();
  ShowStepCount();
  return &step;
}

void Session::ShowStepCount() {
  forms.main.LabelStap.caption = std::to_string(history.StepCount());
}

void Session::EnableHistoryButtons() {
  const bool any_done = history.StepCount() > 0;
  forms.main.CommandRestart.enabled = any_done;
  forms.main.CommandUndo.enabled = any_done;
  forms.main.CommandRedo.enabled = history.StepCount() < history.StepTop();
}

void Session::EndPlay() {
  MainWindow& main = forms.main;
  for (Button* button : {&main.CommandRestart, &main.CommandUndo, &main.CommandRedo, &main.CommandResetCell,
                         &main.CommandSolution, &main.CommandHint}) {
    button->enabled = false;
  }
  main.CommandNew.enabled = true;
  main.CommandOpen.enabled = true;
  for (int level = 1; level <= kLevels; ++level) main.OptionType(level).enabled = level != RenewingLevel;
}

bool Session::SaveStock() {
  if (WriteStock(ports.files, DataFolder, *stock, *known_stock)) return true;
  return asker.Message({std::string(texts::kFileError), std::string(texts::kWriteError),
                        MessageIcon::Exclamation, MessageButtons::Ok}) != Answer::Ended;
}

void Session::ShowPlayer() {
  forms.main.window.caption = texts::Caption(players.CurrentPlayer > 0, players.Name(players.CurrentPlayer));
}

}  // namespace kestrel

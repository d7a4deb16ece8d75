// SPDX-License-Identifier: MIT
#include "game/renewal.h"

#include <string>

#include "game/texts.h"

namespace kestrel {

namespace {

// Files a new puzzle into its level, which is in ascending order of score: the lowest record is dropped, the
// new one goes above all that score less than it. Slots of techniques above the level stay as they are.
void FilePuzzle(StockTable& stock, int level, const Generator& made, const Rating& rating) {
  int place = kPuzzlesPerLevel;
  while (place > 1 && rating.Score() <= stock(level, place).Score) --place;
  for (int i = 1; i < place; ++i) stock(level, i) = stock(level, i + 1);
  SudokuRecord& record = stock(level, place);
  record.Level = static_cast<std::int16_t>(level);
  record.Reserved2 = 0;
  record.GivenCells = made.Givens;
  record.SolutionCells = made.SolutionGrid;
  record.BestMinutes = record.BestSeconds = record.BestPlayer = 0;
  record.Score = rating.Score();
  for (int slot = 0; slot < TechniquesUpTo(level); ++slot) {
    record.TechniqueCount[slot] = rating.counters[kCounterOfSlot[slot]];
  }
}

}  // namespace

void Renewal::Click(int level) {
  const bool in_play = !session_.clock.ClockStopped && level == session_.OpenLevel;
  if (level == session_.SelectedLevel || in_play) return;
  const Answer answer = session_.asker.Message({std::string(texts::kRenewTitle), std::string(texts::kRenew),
                                                MessageIcon::Question, MessageButtons::OkCancel});
  if (answer != Answer::Ok) return;
  session_.RenewingLevel = level;
  session_.forms.main.OptionType(level).enabled = false;
  EnableLabels(false);
  session_.RenewalCount(level) = 0;
  session_.forms.main.ProgressBar2.value = 0;
  session_.forms.main.ProgressBar2.visible = true;
  // The highest record becomes the floor above which every new puzzle is filed.
  (*session_.stock)(level, kPuzzlesPerLevel).Score = 0;
  if (session_.StockStatus == kStockAcknowledged) {
    session_.StockStatus = static_cast<std::int16_t>(kStockComplete - StockLevelBit(level));
  } else if (session_.StockStatus == kStockComplete) {
    session_.StockStatus = static_cast<std::int16_t>(kStockAcknowledged - StockLevelBit(level));
  }
}

void Renewal::MakePuzzle() {
  if (generator_.MakeFullGrid(session_.yield) == Making::Stopped) return;
  if (generator_.MakePuzzle(session_.yield) == Making::Stopped) return;
  Rating rating = SolveAndRate(generator_.Givens, session_.yield, {.highest_level = session_.RenewingLevel});
  if (rating.outcome == RateOutcome::Rated && rating.level == session_.RenewingLevel) rating_ = rating;
}

void Renewal::File() {
  if (!rating_ || session_.ending.IsSet()) return;
  MainWindow& main = session_.forms.main;
  const int level = session_.RenewingLevel;
  int& count = session_.RenewalCount(level);
  main.ProgressBar2.value = count;
  FilePuzzle(*session_.stock, level, generator_, *rating_);
  if (count < kPuzzlesPerLevel) {
    main.ProgressBar1(level).value = ++count;
    if (count == kPuzzlesPerLevel) {
      session_.StockStatus = static_cast<std::int16_t>(session_.StockStatus | StockLevelBit(level));
    }
  }
  if ((session_.StockStatus | 1) != kStockAcknowledged) return;
  // A stock that could not be written was reported; it is written with the next success.
  session_.StockStatus = kStockComplete;
  (void)session_.SaveStock();
}

void Renewal::Acknowledge() {
  MainWindow& main = session_.forms.main;
  session_.StockStatus = kStockAcknowledged;
  if (session_.RenewingLevel != 0) {
    main.ProgressBar2.visible = false;
    main.OptionType(session_.RenewingLevel).enabled = true;
    EnableLabels(true);
    session_.RenewingLevel = 0;
  }
  if (main.Picture3.visible) {  // the first round
    main.Picture3.visible = false;
    main.CommandNew.enabled = true;
    main.CommandOpen.enabled = true;
    main.CommandPrint.enabled = true;
  }
}

void Renewal::EnableLabels(bool enabled) {
  for (Label& label : session_.forms.main.RenewLevel.items) label.enabled = enabled;
}

}  // namespace kestrel

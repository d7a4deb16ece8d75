// SPDX-License-Identifier: MIT
#include "game/renewal.h"

#include <cstdint>
#include <string>

#include "game/texts.h"

namespace kestrel {

void Renewal::Click(int level) {
  if (level == session_.SelectedLevel) return;
  const Answer answer = session_.asker.Message({std::string(texts::kRenewTitle), std::string(texts::kRenew),
                                                MessageIcon::Question, MessageButtons::OkCancel, true});
  if (answer != Answer::Ok) return;
  session_.RenewingLevel = level;
  session_.forms.main.OptionType(level).enabled = false;
  EnableLabels(false);
  session_.RenewalCount(level) = 0;
  session_.forms.main.ProgressBar2.value = 0;
  session_.forms.main.ProgressBar2.visible = true;
  SetFloor(*session_.stock, level);
  if (session_.StockStatus == kStockAcknowledged) {
    session_.StockStatus = static_cast<std::int16_t>(kStockComplete - StockLevelBit(level));
  } else if (session_.StockStatus == kStockComplete) {
    session_.StockStatus = static_cast<std::int16_t>(kStockAcknowledged - StockLevelBit(level));
  }
}

void Renewal::MakePuzzle() {
  RatedNewPuzzle puzzle;
  const RoundResult result = GenerateRound(generator_, session_.RenewingLevel, session_.yield, puzzle);
  if (result == RoundResult::Kept) puzzle_ = puzzle;
}

void Renewal::File() {
  if (!puzzle_ || session_.ending.IsSet()) return;
  MainWindow& main = session_.forms.main;
  const int level = puzzle_->level;
  int& count = session_.RenewalCount(level);
  main.ProgressBar2.value = count;
  FilePuzzle(*session_.stock, *puzzle_);
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
    // While a puzzle is in play the level cannot be changed; EndPlay gives all five back.
    const bool in_play = !session_.clock.ClockStopped || session_.RedisplayPending;
    main.OptionType(session_.RenewingLevel).enabled = !in_play;
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

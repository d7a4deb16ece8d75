// SPDX-License-Identifier: MIT
#include "game/renewal.h"

#include <cstdint>
#include <string>

#include "game/texts.h"

namespace kestrel {

void Renewal::Click(int level, int selected_level, Asker& asker) {
  if (level == selected_level) return;
  const Answer answer = asker.Message({std::string(texts::kRenewTitle), std::string(texts::kRenew),
                                       MessageIcon::Question, MessageButtons::OkCancel, true});
  if (answer != Answer::Ok) return;
  stockroom_.RenewingLevel = level;
  stockroom_.RenewalCount(level) = 0;
  main_.ProgressBar2.value = 0;
  main_.ProgressBar2.visible = true;
  SetFloor(*stockroom_.stock, level);
  if (stockroom_.StockStatus == kStockAcknowledged) {
    stockroom_.StockStatus = static_cast<std::int16_t>(kStockComplete - StockLevelBit(level));
  } else if (stockroom_.StockStatus == kStockComplete) {
    stockroom_.StockStatus = static_cast<std::int16_t>(kStockAcknowledged - StockLevelBit(level));
  }
}

std::optional<RatedNewPuzzle> Renewal::MakePuzzle(Yield& yield) {
  RatedNewPuzzle puzzle;
  const RoundResult result = GenerateRound(generator_, stockroom_.RenewingLevel, yield, puzzle);
  return result == RoundResult::Kept ? std::optional(puzzle) : std::nullopt;
}

bool Renewal::File(const RatedNewPuzzle& puzzle) {
  int& count = stockroom_.RenewalCount(puzzle.level);
  main_.ProgressBar2.value = count;
  FilePuzzle(*stockroom_.stock, puzzle);
  if (count < kPuzzlesPerLevel) {
    main_.ProgressBar1(puzzle.level).value = ++count;
    if (count == kPuzzlesPerLevel) {
      stockroom_.StockStatus =
          static_cast<std::int16_t>(stockroom_.StockStatus | StockLevelBit(puzzle.level));
    }
  }
  if ((stockroom_.StockStatus | 1) != kStockAcknowledged) return false;
  stockroom_.StockStatus = kStockComplete;
  return true;
}

void Renewal::Acknowledge() {
  stockroom_.StockStatus = kStockAcknowledged;
  stockroom_.RenewingLevel = 0;
  main_.ProgressBar2.visible = false;
}

}  // namespace kestrel

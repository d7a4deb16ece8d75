// SPDX-License-Identifier: MIT
#include "game/completion.h"

#include "game/status_bar.h"
#include "game/texts.h"
#include "players/best_time.h"

namespace kestrel {

namespace {

// Enters the new best time and congratulates. The stock is written first: what the player was told is on the
// disk. False: the program is ending.
bool NewBestTime(Play& play, int level, const BestTimeDesk& desk) {
  StockTable& stock = *desk.stockroom.stock;
  EnterBestTime(stock(level, play.puzzle.PuzzleNumber), play.puzzle, play.clock.ElapsedSeconds,
                desk.players.CurrentPlayer);
  if (!desk.stockroom.Save(desk.files, desk.asker)) return false;
  const Answer answer =
      desk.asker.Message({std::string(texts::kNewBestTimeTitle), std::string(texts::kNewBestTime),
                          MessageIcon::Information, MessageButtons::Ok});
  if (answer == Answer::Ended) return false;
  ShowBestTime(desk.main, play.puzzle, desk.players);
  ShowLevelTimes(desk.main, stock, level);
  return true;
}

}  // namespace

void ZetOpgelost(Play& play, int level, Sounds& sounds, const BestTimeDesk& desk) {
  play.clock.Stop();
  desk.main.end = PuzzleEnd::Solved;
  sounds.Speel(Sound::Applause);
  const bool is_new = desk.players.CurrentPlayer > 0 && IsNewBestTime(play.puzzle, play.clock.ElapsedSeconds);
  if (is_new && !NewBestTime(play, level, desk)) return;
  play.phase = PlayPhase::Over;
}

}  // namespace kestrel

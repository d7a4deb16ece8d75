// SPDX-License-Identifier: MIT
#include "game/completion.h"

#include "game/status_bar.h"
#include "game/texts.h"
#include "players/best_time.h"

namespace kestrel {

namespace {

// Enters the new best time and congratulates. The stock is written first: what the player was told is on the
// disk. False: the program is ending.
bool NewBestTime(Session& session) {
  const int level = session.SelectedLevel;  // cannot change during play
  EnterBestTime((*session.stock)(level, session.puzzle.PuzzleNumber), session.puzzle,
                session.clock.ElapsedSeconds, session.players.CurrentPlayer);
  if (!session.SaveStock()) return false;
  const Answer answer =
      session.asker.Message({std::string(texts::kNewBestTimeTitle), std::string(texts::kNewBestTime),
                             MessageIcon::Information, MessageButtons::Ok});
  if (answer == Answer::Ended) return false;
  ShowBestTime(session);
  ShowLevelTimes(session, level);
  return true;
}

}  // namespace

void ZetOpgelost(Session& session) {
  session.clock.Stop();
  session.forms.main.end = PuzzleEnd::Solved;
  session.sounds.Speel(Sound::Applause);
  const bool named = session.players.CurrentPlayer > 0;
  if (named && IsNewBestTime(session.puzzle, session.clock.ElapsedSeconds) && !NewBestTime(session)) return;
  session.EndPlay();
}

}  // namespace kestrel

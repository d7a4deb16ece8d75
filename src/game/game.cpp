// SPDX-License-Identifier: MIT
// Start-up, rounds and the end.
#include "game/game.h"

#include <optional>

#include "core/files.h"
#include "core/global.h"
#include "game/controls.h"
#include "game/names.h"
#include "game/opening.h"
#include "game/options.h"
#include "game/texts.h"

namespace kestrel {

namespace {

// The data folder as people write it: its name ends the written form, between two backslashes.
std::string ShownFolder(const std::string& written) {
  const std::string name(names::kDataFolder);
  return written.substr(0, written.size() - name.size() - 2) + '/' + name + '/';
}

}  // namespace

void Game::Start() {
  const Busy busy(depth_);
  MainWindow& main = session_.forms.main;
  main.window.left = (session_.screen.Width() - main.window.width) / 2;
  main.window.top = (session_.screen.Height() - main.window.height) / 2;
  FindFolders();
  session_.sounds.Init_Sound(session_.ProgramFolder);
  LoadSettings(session_.choices, session_.sounds, main, session_.ports.settings);
  session_.players.Setup_Players(session_.ports.settings, session_.forms.names);
  ShowPlayer();
  LoadStock();
  if (session_.ending.IsSet()) return;
  LoadLastPuzzles(session_.choices, session_.ports.settings);
  session_.print_dialog.Load();
  ResetPlay();
  session_.screen.Show(FormId::Main);
}

// The older copy is never older than a day of play: the first tick after midnight renews it.
void Game::Tick() {
  const int now = session_.ports.clock.SecondsOfDay();
  if (now < last_tick_) (void)KeepOlderStock(session_.ports.files, session_.stockroom.DataFolder);
  last_tick_ = now;
  session_.play.clock.Tick();
}

void Game::FindFolders() {
  session_.ProgramFolder = AddBackslash(session_.ports.program.folder);
  const std::string local = AddBackslash(GetSpecialFolder(session_.ports.folders, kLocalAppData));
  const std::string data = local + std::string(names::kDataFolder);
  // A folder that cannot be made shows in the stock that cannot be read.
  (void)session_.ports.files.MakeFolder(data);
  session_.stockroom.DataFolder = AddBackslash(data);
}

void Game::LoadStock() {
  Files& files = session_.ports.files;
  Stockroom& room = session_.stockroom;
  const std::string stock = ShownFolder(room.DataFolder) + std::string(kStockFileName);
  const std::string older = stock + std::string(kOlderStockEnding);
  const auto tell = [this](std::string_view title, std::string_view text, MessageIcon icon) {
    return session_.asker.Message({std::string(title), std::string(text), icon, MessageButtons::Ok});
  };
  const bool has_older =
      files.Exists(room.DataFolder + std::string(kStockFileName) + std::string(kOlderStockEnding));
  CopyStockIfMissing(files, session_.ProgramFolder, room.DataFolder);
  if (ReadStock(files, room.DataFolder, *room.stock, room.StockStatus, *room.known)) {
    if (!KeepOlderStock(files, room.DataFolder) && has_older) {
      (void)tell(texts::kFileError, texts::DamagedStock(stock, older), MessageIcon::Exclamation);
    }
    return;
  }
  if (tell(texts::kFileError, texts::kReadError, MessageIcon::Exclamation) == Answer::Ended) return;
  if (tell(texts::kCriticalError, texts::kCannotProceed, MessageIcon::Critical) == Answer::Ended) return;
  if (has_older &&
      tell(texts::kCriticalError, texts::OlderStock(older), MessageIcon::Information) == Answer::Ended) {
    return;
  }
  session_.ending.Set(EndReason::Fatal);
}

void Game::ResetPlay() {
  session_.play.ClearGrid();
  session_.play.board.DisableGrid();
  session_.play.ClearSudokuData();
}

bool Game::WorkLeft() const {
  const bool work =
      session_.stockroom.StockStatus == kStockComplete || session_.play.phase == PlayPhase::Chosen;
  return !session_.ending.IsSet() && work;
}

bool Game::Round() {
  if (session_.ending.IsSet() || depth_ > 0) return false;
  const Busy busy(depth_);
  RunRound();
  return !session_.ending.IsSet() && (WorkLeft() || session_.stockroom.Renewing());
}

void Game::RunRound() {
  if (!session_.yield.KeepGoing()) return;
  std::optional<RatedNewPuzzle> puzzle;
  if (session_.stockroom.StockStatus == kStockComplete) {
    Acknowledge();
  } else if (session_.stockroom.Renewing()) {
    puzzle = renewal_.MakePuzzle(session_.yield);
  } else if (session_.play.clock.ClockStopped) {
    (void)session_.yield.KeepGoing();
  }
  if (session_.ending.IsSet()) return;
  if (session_.play.phase == PlayPhase::Chosen) {
    ShowPuzzle(session_.play, session_.forms.main, session_.choices, *session_.stockroom.stock,
               session_.players);
  }
  ShowControls();
  // A stock that could not be written was reported; it is written with the next success.
  if (puzzle && renewal_.File(*puzzle)) (void)session_.stockroom.Save(session_.ports.files, session_.asker);
}

void Game::Acknowledge() {
  renewal_.Acknowledge();
  if (session_.play.phase != PlayPhase::Starting) return;
  session_.forms.main.Picture3.visible = false;
  session_.play.phase = PlayPhase::NoPuzzle;
}

void Game::ShowControls() {
  EnableControls(session_.forms.main, session_.play.phase, session_.play.history,
                 session_.stockroom.RenewingLevel);
  const Play& play = session_.play;
  session_.help.OfferSolving(play.phase == PlayPhase::Over ? &play.puzzle.GivenDigits : nullptr);
}

void Game::ShowPlayer() {
  const Players& players = session_.players;
  session_.forms.main.window.caption =
      texts::Caption(players.CurrentPlayer > 0, players.Name(players.CurrentPlayer));
}

void Game::AskToQuit() {
  const Answer answer = session_.asker.Message({std::string(texts::kQuitTitle), std::string(texts::kQuit),
                                                MessageIcon::Question, MessageButtons::YesNo});
  if (answer == Answer::Yes) session_.ending.Set(EndReason::Quit);
}

}  // namespace kestrel

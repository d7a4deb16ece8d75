// SPDX-License-Identifier: MIT
// Start-up, rounds and the end.
#include "game/game.h"

#include "core/files.h"
#include "core/global.h"
#include "game/names.h"
#include "game/opening.h"
#include "game/options.h"
#include "game/texts.h"

namespace kestrel {

void Game::Start() {
  const Busy busy(depth_);
  Window& window = session_.forms.main.window;
  window.left = (session_.screen.Width() - window.width) / 2;
  window.top = (session_.screen.Height() - window.height) / 2;
  FindFolders();
  session_.sounds.Init_Sound(session_.ProgramFolder);
  LoadSettings(session_);
  session_.players.Setup_Players(session_.ports.settings, session_.forms.names);
  session_.ShowPlayer();
  LoadStock();
  if (session_.ending.IsSet()) return;
  LoadLastPuzzles(session_);
  session_.print_dialog.Load();
  ResetPlay();
  session_.screen.Show(FormId::Main);
}

void Game::FindFolders() {
  session_.ProgramFolder = AddBackslash(session_.ports.program.folder);
  const std::string local = AddBackslash(GetSpecialFolder(session_.ports.folders, kLocalAppData));
  session_.DataFolder = local + std::string(names::kDataFolder);
  // A folder that cannot be made shows in the stock that cannot be read.
  (void)session_.ports.files.MakeFolder(session_.DataFolder);
  session_.DataFolder = AddBackslash(session_.DataFolder);
}

void Game::LoadStock() {
  Files& files = session_.ports.files;
  session_.StockStatus = kStockNotRead;
  CopyStockIfMissing(files, session_.ProgramFolder, session_.DataFolder);
  if (ReadStock(files, session_.DataFolder, *session_.stock, session_.StockStatus, *session_.known_stock)) {
    return;
  }
  const auto tell = [this](std::string_view title, std::string_view text, MessageIcon icon) {
    return session_.asker.Message({std::string(title), std::string(text), icon, MessageButtons::Ok});
  };
  if (tell(texts::kFileError, texts::kReadError, MessageIcon::Exclamation) == Answer::Ended) return;
  if (tell(texts::kCriticalError, texts::kCannotProceed, MessageIcon::Critical) == Answer::Ended) return;
  session_.ending.Set(EndReason::Fatal);
}

void Game::ResetPlay() {
  session_.ClearGrid();
  session_.board.DisableGrid();
  session_.ClearSudokuData();
}

bool Game::WorkLeft() const {
  return !session_.ending.IsSet() && (session_.StockStatus == kStockComplete || session_.RedisplayPending);
}

bool Game::Round() {
  if (session_.ending.IsSet() || depth_ > 0) return false;
  const Busy busy(depth_);
  RunRound();
  return !session_.ending.IsSet() && (WorkLeft() || session_.Renewing());
}

void Game::RunRound() {
  renewal_.ForgetPuzzle();
  if (!session_.yield.KeepGoing()) return;
  if (session_.StockStatus == kStockComplete) {
    renewal_.Acknowledge();
  } else if (session_.Renewing()) {
    renewal_.MakePuzzle();
  } else if (session_.clock.ClockStopped) {
    (void)session_.yield.KeepGoing();
  }
  if (session_.ending.IsSet()) return;
  if (session_.RedisplayPending) ShowPuzzle(session_, session_.SelectedLevel);
  renewal_.File();
}

void Game::AskToQuit() {
  const Answer answer = session_.asker.Message({std::string(texts::kQuitTitle), std::string(texts::kQuit),
                                                MessageIcon::Question, MessageButtons::YesNo});
  if (answer == Answer::Yes) session_.ending.Set(EndReason::Quit);
}

}  // namespace kestrel

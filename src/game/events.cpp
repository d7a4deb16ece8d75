// SPDX-License-Identifier: MIT
// Which event calls which handler.
#include <algorithm>
#include <array>

#include "game/board_commands.h"
#include "game/cell_input.h"
#include "game/game.h"
#include "game/hint_command.h"
#include "game/opening.h"
#include "game/options.h"
#include "media/web_link.h"
#include "solver/technique_table.h"

namespace kestrel {

void Game::Handle(const Event& event) {
  if (session_.ending.IsSet()) return;
  const Busy busy(depth_);
  switch (event.form) {
    case FormId::Main:
      return HandleMain(event);
    case FormId::Names:
      return session_.players_dialog.Handle(event);
    case FormId::Print:
      return session_.print_dialog.Handle(event);
    case FormId::Browser:
      if (event.kind == EventKind::Close) session_.screen.Hide(FormId::Browser);
      return;
  }
}

void Game::HandleMain(const Event& event) {
  switch (event.kind) {
    case EventKind::Click:
      return Click(event.control);
    case EventKind::Release:
      return Release(event);
    case EventKind::Timer:
      return session_.clock.Tick();
    case EventKind::Resize:
      return Resize(session_.forms.main.window.state);
    case EventKind::Close:
      return AskToQuit();
    default:
      return;
  }
}

void Game::Click(ControlId control) {
  using Command = void (*)(Session&);
  struct Row {
    std::string_view name;
    Command command;
  };
  constexpr auto kHelp = [](Session& session) { session.help.ShowPage(kHelpIndex); };
  constexpr auto kWeb = [](Session& session) {
    OpenWebSite(kWebSite, session.ProgramFolder, session.ports.files, session.ports.shell, session.asker);
  };
  static constexpr std::array<Row, 12> kCommands{{{"CommandNew", NextPuzzle},
                                                  {"CommandOpen", OpenPuzzleByNumber},
                                                  {"CommandRestart", Restart},
                                                  {"CommandUndo", Undo},
                                                  {"CommandRedo", Redo},
                                                  {"CommandResetCell", ResetCell},
                                                  {"CommandHint", Hint},
                                                  {"CommandSolution", ShowSolution},
                                                  {"CommandHelp", kHelp},
                                                  {"LabelHint", OpenHintPage},
                                                  {"Picture1", kWeb},
                                                  {"chkSound", SoundsClick}}};
  const auto row = std::ranges::find(kCommands, control.name, &Row::name);
  if (row != kCommands.end()) return row->command(session_);
  if (control.name == "OptionType") return SelectLevel(session_, control.index);
  if (control.name == "RenewLevel") return renewal_.Click(control.index);
  if (control.name == "LabelCount") return OpenTechniquePage(session_, control.index % kTechniques + 1);
  if (control.name == "cmdPlayers") return RunPlayersDialog();
  if (control.name == "CommandPrint") return RunPrintDialog();
}

void Game::Release(const Event& event) {
  const auto mark = std::ranges::find(kMarkNames, event.control.name);
  if (mark != kMarkNames.end()) {
    const int digit = static_cast<int>(mark - kMarkNames.begin()) + 1;
    MarkMouseUp(session_, digit, event.control.index, event.button, event.x, event.y);
  } else if (event.control.name == "LabelRow") {
    HeaderMouseUp(session_, HeaderKind::Row, event.control.index, event.button, event.x, event.y);
  } else if (event.control.name == "LabelColumn") {
    HeaderMouseUp(session_, HeaderKind::Column, event.control.index, event.button, event.x, event.y);
  }
}

// A stopped clock is paused, too, which changes nothing that one can see: its timer is off. Behind the print
// dialog the clock stands already.
void Game::Resize(WindowState state) {
  if (session_.forms.print.window.open) return;
  if (state == WindowState::Minimized) session_.clock.Pause();
  if (state == WindowState::Normal && session_.clock.ClockPaused) session_.clock.Resume();
}

void Game::RunPlayersDialog() {
  if (session_.players_dialog.Run(session_.forms.main.window)) session_.ShowPlayer();
}

void Game::RunPrintDialog() {
  PlayClock& clock = session_.clock;
  if (!clock.ClockStopped) clock.Pause();
  if (!session_.print_dialog.Run(session_.SelectedLevel, session_.ProgramFolder)) return;
  if (!clock.ClockStopped) clock.Resume();
  // The dialog was closed while the window is minimised: the clock stands on.
  if (session_.forms.main.window.state == WindowState::Minimized) clock.Pause();
}

}  // namespace kestrel

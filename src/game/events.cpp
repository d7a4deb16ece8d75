// SPDX-License-Identifier: MIT
// Which event calls which handler.
#include <algorithm>
#include <array>

#include "core/check.h"
#include "game/board_commands.h"
#include "game/cell_input.h"
#include "game/completion.h"
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
  HandleForm(event);
  ShowControls();
}

void Game::HandleForm(const Event& event) {
  switch (event.form) {
    case FormId::Main:
      return HandleMain(event);
    case FormId::Names:
      return session_.players_dialog.Handle(event);
    case FormId::Print:
      return session_.print_dialog.Handle(event);
    case FormId::Browser:
      Require(event.kind == EventKind::Close);
      return session_.screen.Hide(FormId::Browser);
  }
}

void Game::HandleMain(const Event& event) {
  switch (event.kind) {
    case EventKind::Click:
      return Click(event.control);
    case EventKind::Release:
      return Release(event);
    case EventKind::Timer:
      Require(event.control.name == "Timer1");
      return Tick();
    case EventKind::Resize:
      return Resize(session_.forms.main.window.state);
    case EventKind::Close:
      return AskToQuit();
    default:
      Require(false);  // no control of this form sends another
  }
}

// A name without a row is a mistake of the program.
void Game::Click(ControlId control) {
  using Command = void (*)(Game&, Session&, int index);
  struct Row {
    std::string_view name;
    Command command;
  };
  static constexpr auto kCommands = std::to_array<Row>({
      {"CommandNew", [](Game&, Session& s, int) { NextPuzzle(s.play, s.choices, s.ports.settings); }},
      {"CommandOpen",
       [](Game&, Session& s, int) { OpenPuzzleByNumber(s.play, s.choices, s.ports.settings, s.asker); }},
      {"CommandRestart", [](Game&, Session& s, int) { Restart(s.play, s.sounds); }},
      {"CommandUndo", [](Game&, Session& s, int) { Undo(s.play, s.sounds); }},
      {"CommandRedo", [](Game&, Session& s, int) { Redo(s.play, s.sounds); }},
      {"CommandResetCell", [](Game&, Session& s, int) { ResetCell(s.play, s.headers, s.sounds); }},
      {"CommandHint", [](Game&, Session& s, int) { Hint(s.play, s.forms.main, s.sounds, s.yield, s.asker); }},
      {"CommandSolution", [](Game&, Session& s, int) { ShowSolution(s.play, s.sounds); }},
      {"CommandPrint", [](Game& game, Session&, int) { game.RunPrintDialog(); }},
      {"CommandHelp", [](Game&, Session& s, int) { s.help.ShowPage(kHelpIndex); }},
      {"LabelCount",
       [](Game&, Session& s, int index) { OpenTechniquePage(index % kTechniques + 1, s.help); }},
      {"LabelHint", [](Game&, Session& s, int) { OpenHintPage(s.forms.main, s.help); }},
      {"OptionType",
       [](Game&, Session& s, int level) {
         SelectLevel(s.choices, level, s.sounds, s.forms.main, s.ports.settings);
       }},
      {"RenewLevel", [](Game& game, Session& s,
                        int level) { game.renewal_.Click(level, s.choices.SelectedLevel, s.asker); }},
      {"cmdPlayers", [](Game& game, Session&, int) { game.RunPlayersDialog(); }},
      {"Picture1",
       [](Game&, Session& s,
          int) { OpenWebSite(kWebSite, s.ProgramFolder, s.ports.files, s.ports.shell, s.asker); }},
      {"chkSound",
       [](Game&, Session& s, int) { SoundsClick(s.sounds, s.choices, s.forms.main, s.ports.settings); }},
  });
  const auto row = std::ranges::find(kCommands, control.name, &Row::name);
  Require(row != kCommands.end());
  row->command(*this, session_, control.index);
}

void Game::Release(const Event& event) {
  const ControlId& control = event.control;
  if (control.digit != 0) {
    MarkMouseUp(session_.play, session_.sounds, control.digit, control.index, event.button, event.x, event.y);
    if (session_.play.board.Complete()) {
      ShowControls();  // a box may open before this event has ended
      ZetOpgelost(
          session_.play, session_.choices.SelectedLevel, session_.sounds,
          {session_.players, session_.stockroom, session_.ports.files, session_.asker, session_.forms.main});
    }
    return;
  }
  Require(control.name == "LabelRow" || control.name == "LabelColumn");
  const HeaderKind kind = control.name == "LabelRow" ? HeaderKind::Row : HeaderKind::Column;
  HeaderMouseUp(session_.headers, session_.forms.main, session_.sounds, kind, control.index, event.button,
                event.x, event.y);
}

// A stopped clock is paused, too, which changes nothing that one can see: its timer is off. Behind the print
// dialog the clock stands already.
void Game::Resize(WindowState state) {
  if (session_.forms.print.window.open) return;
  PlayClock& clock = session_.play.clock;
  if (state == WindowState::Minimized) clock.Pause();
  if (state == WindowState::Normal && clock.ClockPaused) clock.Resume();
}

void Game::RunPlayersDialog() {
  if (session_.players_dialog.Run(session_.forms.main.window)) ShowPlayer();
}

void Game::RunPrintDialog() {
  PlayClock& clock = session_.play.clock;
  if (!clock.ClockStopped) clock.Pause();
  if (!session_.print_dialog.Run(session_.choices.SelectedLevel, session_.ProgramFolder)) return;
  if (!clock.ClockStopped) clock.Resume();
  // The dialog was closed while the window is minimised: the clock stands on.
  if (session_.forms.main.window.state == WindowState::Minimized) clock.Pause();
}

}  // namespace kestrel

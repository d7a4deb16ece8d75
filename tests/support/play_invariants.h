// SPDX-License-Identifier: MIT
// What must hold between any two events of a game, also inside a yield. Used by the tests that play at random
// and by the fuzzers. Header only, because one fuzzer links no game.
#pragma once

#include <algorithm>
#include <optional>
#include <string>

#include "core/text.h"
#include "game/session.h"
#include "game/texts.h"
#include "hint/hint_engine.h"

namespace kestrel::testing {

struct Invariant {
  const char* name;
  bool (*holds)(const Session&);
};

inline bool MarksAgree(const Session& s) {
  for (int cell = 0; cell < kCells; ++cell) {
    const int digit = s.play.puzzle.CurrentDigits[cell];
    if (s.forms.main.Grid(cell).caption != (digit == 0 ? "" : std::to_string(digit))) return false;
    if (digit != 0 && s.play.puzzle.PencilMask[cell] != 0) return false;
    for (int mark = 1; mark <= 9; ++mark) {
      if (s.forms.main.Mark(mark)(cell).visible != HasDigit(s.play.puzzle.PencilMask[cell], mark))
        return false;
    }
  }
  return true;
}

template <class Headers>
bool OneIsRed(const Headers& headers, int selected) {
  for (int index = 0; index < 9; ++index) {
    if ((headers(index).fore == kRed) != (index == selected)) return false;
  }
  return true;
}

// A hint is for the board as it is now, and for a puzzle in play.
inline bool HintIsFresh(const Session& s) {
  if (!s.forms.main.LabelHint.visible) return true;
  NeverStop yield;
  return !s.play.clock.ClockStopped &&
         FindHint(s.play.puzzle, yield) == WholeNumber(s.forms.main.LabelHint.tag);
}

inline bool LevelsAreOff(const Session& s) {
  return std::ranges::none_of(s.forms.main.OptionType.items, &OptionButton::enabled);
}

inline constexpr Invariant kInvariants[] = {
    {"the marks and fields show the board", MarksAgree},
    {"the headers show the selection",
     [](const Session& s) {
       return OneIsRed(s.forms.main.LabelRow, s.headers.SelectedRow) &&
              OneIsRed(s.forms.main.LabelColumn, s.headers.SelectedColumn);
     }},
    {"LabelStap shows the history",
     [](const Session& s) {
       return s.play.history.StepCount() <= s.play.history.StepTop() &&
              s.forms.main.LabelStap.caption == std::to_string(s.play.history.StepCount());
     }},
    {"LabelTijd shows ElapsedSeconds",
     [](const Session& s) {
       const std::int32_t seconds = s.play.clock.ElapsedSeconds;
       return s.forms.main.LabelTijd.caption == texts::Time(seconds / 60, seconds % 60);
     }},
    {"the timer runs with the clock",
     [](const Session& s) { return s.forms.main.Timer1.enabled != s.play.clock.ClockStopped; }},
    {"a puzzle in play can be given up, and no other one or level can be chosen",
     [](const Session& s) {
       const MainWindow& main = s.forms.main;
       const bool chosen = s.play.phase == PlayPhase::Chosen;
       if (s.play.clock.ClockStopped && !chosen) return true;
       return main.CommandSolution.enabled != chosen && !main.CommandNew.enabled &&
              !main.CommandOpen.enabled && LevelsAreOff(s);
     }},
    {"the history's buttons follow it in play, and are off otherwise",
     [](const Session& s) {
       const MainWindow& main = s.forms.main;
       const bool in_play = main.CommandSolution.enabled;
       const bool any = in_play && s.play.history.StepCount() > 0;
       return main.CommandUndo.enabled == any && main.CommandRestart.enabled == any &&
              main.CommandRedo.enabled ==
                  (in_play && s.play.history.StepCount() < s.play.history.StepTop()) &&
              main.CommandHint.enabled == in_play && main.CommandResetCell.enabled == in_play;
     }},
    {"the record of the puzzle in play is still in its place",
     [](const Session& s) {
       if (s.play.clock.ClockStopped) return true;
       return s.stockroom.RenewingLevel != s.choices.SelectedLevel &&
              (*s.stockroom.stock)(s.choices.SelectedLevel, s.play.puzzle.PuzzleNumber).GivenCells ==
                  s.play.puzzle.GivenDigits;
     }},
    {"a level being renewed cannot be chosen, nor another one renewed",
     [](const Session& s) {
       const auto& labels = s.forms.main.RenewLevel.items;
       const bool renewing = s.stockroom.RenewingLevel != 0;
       return (!renewing || !s.forms.main.OptionType(s.stockroom.RenewingLevel).enabled) &&
              std::ranges::all_of(labels, [&](const Label& label) { return label.enabled != renewing; });
     }},
    {"how a puzzle is solved is offered when it has ended, never in play",
     [](const Session& s) {
       const std::optional<DigitGrid>& offered = s.help.Offered();
       return !offered || (s.play.phase == PlayPhase::Over && *offered == s.play.puzzle.GivenDigits);
     }},
    {"the hint is fresh", HintIsFresh}};

// The first one that does not hold; empty: all do.
inline std::string BrokenInvariant(const Session& session) {
  for (const Invariant& each : kInvariants) {
    if (!each.holds(session)) return each.name;
  }
  return "";
}

}  // namespace kestrel::testing

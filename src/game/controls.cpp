// SPDX-License-Identifier: MIT
#include "game/controls.h"

#include "core/stock_table.h"

namespace kestrel {

void EnableControls(MainWindow& main, PlayPhase phase, const StepHistory& history, int renewing_level) {
  const bool in_play = phase == PlayPhase::InPlay;
  const bool at_rest = phase == PlayPhase::NoPuzzle || phase == PlayPhase::Over;
  for (Button* button : {&main.CommandNew, &main.CommandOpen}) button->enabled = at_rest;
  for (Button* button : {&main.CommandResetCell, &main.CommandSolution, &main.CommandHint}) {
    button->enabled = in_play;
  }
  for (Button* button : {&main.CommandUndo, &main.CommandRestart}) {
    button->enabled = in_play && history.StepCount() > 0;
  }
  main.CommandRedo.enabled = in_play && history.StepCount() < history.StepTop();
  main.CommandPrint.enabled = phase != PlayPhase::Starting;
  for (int level = 1; level <= kLevels; ++level) {
    const bool open = at_rest || phase == PlayPhase::Starting;
    main.OptionType(level).enabled = open && level != renewing_level;
    main.RenewLevel(level).enabled = renewing_level == 0;
  }
}

}  // namespace kestrel

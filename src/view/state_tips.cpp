// SPDX-License-Identifier: MIT
#include "view/state_tips.h"

#include <string_view>

#include "core/level_names.h"
#include "forms/texts.h"
#include "solver/technique_table.h"
#include "view/play_state.h"
#include "view/texts.h"

namespace kestrel {

namespace {

std::string LevelTip(const MainWindow& main, const TipState& state, int level) {
  if (main.OptionType(level).enabled) return std::string(texts::kLevelTip);
  return std::string(level == state.renewing_level ? texts::kLevelInRenewal : texts::kLevelInPlay);
}

std::string RenewTip(const MainWindow& main, const TipState& state, int level) {
  if (state.renewing_level != 0) return std::string(texts::kRenewing);
  if (main.OptionType(level).value) return std::string(texts::kRenewOther);
  return std::string(texts::kRenewBefore) + std::string(LevelName(level)) + std::string(texts::kRenewAfter);
}

std::string TechniqueTip(int slot) {
  const TechniqueRow& row = kTechniqueTable[static_cast<std::size_t>(slot % kTechniques)];
  return std::string(row.caption) + std::string(texts::kTierBefore) + std::string(LevelName(row.tier)) +
         std::string(texts::kTierAfter);
}

// Of a command that works only in play; `idle` says why it does nothing in play either.
std::string_view PlayTip(const MainWindow& main, const Button& button, std::string_view idle) {
  if (button.enabled) return {};
  if (!PuzzleOpen(main)) return texts::kNoPuzzle;
  return InPlay(main) ? idle : texts::kNoPlay;
}

std::string_view CommandTip(const MainWindow& main, const TipState& state, std::string_view name) {
  if (name == "CommandNew" || name == "CommandOpen") {
    return InPlay(main) ? texts::kFinishFirst : std::string_view();
  }
  if (name == "CommandUndo") return PlayTip(main, main.CommandUndo, texts::kNothingToUndo);
  if (name == "CommandRedo") return PlayTip(main, main.CommandRedo, texts::kNothingToRedo);
  if (name == "CommandRestart") return PlayTip(main, main.CommandRestart, texts::kNothingToRestart);
  if (name == "CommandSolution") return PlayTip(main, main.CommandSolution, {});
  if (name == "CommandHint") {
    if (InPlay(main) && !state.marks_are_candidates) return texts::kHintKeypad;
    return PlayTip(main, main.CommandHint, {});
  }
  if (name == "CommandResetCell") {
    if (InPlay(main) && SelectedCell(main) < 0) return texts::kResetHow;
    if (InPlay(main) && ResetTarget(main) < 0) return texts::kResetGiven;
    return PlayTip(main, main.CommandResetCell, {});
  }
  if (name == "chkSound" && !main.chkSound.enabled) return texts::kNoSound;
  return {};
}

}  // namespace

std::string StateTip(const MainWindow& main, const TipState& state, ControlId id) {
  if (id.name == "OptionType") return LevelTip(main, state, id.index);
  if (id.name == "RenewLevel") return RenewTip(main, state, id.index);
  if (id.name == "LabelCount") return TechniqueTip(id.index);
  return std::string(CommandTip(main, state, id.name));
}

}  // namespace kestrel

// SPDX-License-Identifier: MIT
#include "game/hint_command.h"

#include <cstdint>
#include <optional>
#include <string>

#include "core/cell_names.h"
#include "core/global.h"
#include "core/text.h"
#include "game/texts.h"
#include "hint/hint_engine.h"
#include "solver/technique_table.h"

namespace kestrel {

namespace {

void MarkTechnique(PlayClock& clock, Label& marker, Technique technique) {
  marker.top = kListTop + kListPitch * SlotOf(technique);
  marker.tag = std::to_string(StepOf(technique));
  marker.spoken = texts::HelpOn(RowOf(technique).caption);
  marker.visible = true;
  clock.AddPenalty(StepOf(technique));
}

void ReportMistake(Asker& asker, const std::string& text) {
  // Nothing follows, whether the box was answered or the program is ending.
  (void)asker.Message({std::string(texts::kBadCell), text, MessageIcon::Critical, MessageButtons::Ok});
}

}  // namespace

void Hint(Play& play, MainWindow& main, Sounds& sounds, Yield& yield, Asker& asker) {
  play.HideHint();
  const std::uint64_t changes = play.history.Changes();
  const std::optional<HintCode> found = FindHint(play.puzzle, yield);
  if (!found || *found == kNoHint || *found == kNoHintsAtThisLevel) return;
  if (play.history.Changes() != changes || play.phase != PlayPhase::InPlay) return;
  const bool is_technique = *found < kFirstWrongDigit;
  sounds.Speel(is_technique ? Sound::Hint : Sound::Error);
  if (is_technique) {
    MarkTechnique(play.clock, main.LabelHint, TechniqueOfStep(*found));
  } else if (*found < kFirstErasedMark) {
    ReportMistake(asker, texts::WrongDigit(CellName(*found - kFirstWrongDigit)));
  } else {
    ReportMistake(asker, texts::ErasedMark(CellName(*found - kFirstErasedMark)));
  }
}

void OpenHintPage(const MainWindow& main, Help& help) {
  OpenTechniquePage(WholeNumber(main.LabelHint.tag).value_or(0), help);
}

void OpenTechniquePage(int step, Help& help) {
  const Technique technique = TechniqueOfStep(step);
  if (technique != Technique::None) help.ShowPage(RowOf(technique).help_page);
}

}  // namespace kestrel

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

void MarkTechnique(Session& session, Technique technique) {
  session.sounds.Speel(Sound::Hint);
  Label& marker = session.forms.main.LabelHint;
  marker.top = kListTop + kListPitch * SlotOf(technique);
  marker.tag = std::to_string(StepOf(technique));
  marker.spoken = texts::HelpOn(RowOf(technique).caption);
  marker.visible = true;
  session.clock.AddPenalty(StepOf(technique));
}

void ReportMistake(Session& session, const std::string& text) {
  session.sounds.Speel(Sound::Error);
  // Nothing follows, whether the box was answered or the program is ending.
  (void)session.asker.Message(
      {std::string(texts::kBadCell), text, MessageIcon::Critical, MessageButtons::Ok});
}

}  // namespace

void Hint(Session& session) {
  session.forms.main.LabelHint.visible = false;
  const std::uint64_t changes = session.history.Changes();
  const std::optional<HintCode> found = FindHint(session.puzzle, session.yield);
  if (!found || *found == kNoHint || *found == kNoHintsAtThisLevel) return;
  // What waited behind the click has changed the board or ended play: the hint is for a board that is gone.
  if (session.history.Changes() != changes || session.clock.ClockStopped) return;
  if (*found < kFirstWrongDigit) {
    MarkTechnique(session, TechniqueOfStep(*found));
  } else if (*found < kFirstErasedMark) {
    ReportMistake(session, texts::WrongDigit(CellName(*found - kFirstWrongDigit)));
  } else {
    ReportMistake(session, texts::ErasedMark(CellName(*found - kFirstErasedMark)));
  }
}

void OpenHintPage(Session& session) {
  OpenTechniquePage(session, WholeNumber(session.forms.main.LabelHint.tag).value_or(0));
}

void OpenTechniquePage(Session& session, int step) {
  const Technique technique = TechniqueOfStep(step);
  if (technique != Technique::None) session.help.ShowPage(RowOf(technique).help_page);
}

}  // namespace kestrel

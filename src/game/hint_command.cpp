// SPDX-License-Identifier: MIT
#include "game/hint_command.h"

#include <optional>
#include <string>

#include "core/global.h"
#include "core/text.h"
#include "game/texts.h"
#include "hint/hint_engine.h"
#include "solver/technique_table.h"

namespace kestrel {

namespace {

// "C7" of row C and column 7, by the captions of the headers.
std::string CellName(const MainWindow& main, int cell) {
  std::string row = main.LabelRow(CellRow[cell]).caption;
  std::string column = main.LabelColumn(CellCol[cell]).caption;
  return StripTrailingBlanks(row) + StripTrailingBlanks(column);
}

void MarkTechnique(Session& session, int step) {
  session.sounds.Speel(Sound::Hint);
  Label& marker = session.forms.main.LabelHint;
  marker.top = kListTop + kListPitch * (step - 1);
  marker.tag = std::to_string(step);
  marker.spoken = texts::HelpOn(TechniqueOfStep(step).caption);
  marker.visible = true;
  session.clock.AddPenalty(step);
}

void ReportMistake(Session& session, const std::string& text) {
  session.sounds.Speel(Sound::Error);
  // Nothing follows, whether the box was answered or the program is ending.
  (void)session.asker.Message(
      {std::string(texts::kBadCell), text, MessageIcon::Critical, MessageButtons::Ok});
}

}  // namespace

void Hint(Session& session) {
  const MainWindow& main = session.forms.main;
  session.forms.main.LabelHint.visible = false;
  const std::optional<HintCode> found = FindHint(session.puzzle, session.yield);
  if (!found || *found == kNoHint || *found == kNoHintsAtThisLevel) return;
  if (*found < kFirstWrongDigit) {
    MarkTechnique(session, *found);
  } else if (*found < kFirstErasedMark) {
    ReportMistake(session, texts::WrongDigit(CellName(main, *found - kFirstWrongDigit)));
  } else {
    ReportMistake(session, texts::ErasedMark(CellName(main, *found - kFirstErasedMark)));
  }
}

void OpenHintPage(Session& session) {
  const int step = WholeNumber(session.forms.main.LabelHint.tag).value_or(0);
  if (step < 1 || step > kTechniques) return;
  session.help.ShowPage(TechniqueOfStep(step).help_page);
}

}  // namespace kestrel

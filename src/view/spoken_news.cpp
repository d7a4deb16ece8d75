// SPDX-License-Identifier: MIT
#include "view/spoken_news.h"

#include <utility>

#include "core/text.h"
#include "solver/technique_table.h"
#include "view/play_state.h"
#include "view/texts.h"

namespace kestrel {

SpokenNews::Seen SpokenNews::Look(const MainWindow& main) {
  Seen seen;
  for (int cell = 0; cell < kCells; ++cell) {
    seen.digits[cell] = main.Grid(cell).caption;
    for (int digit = 1; digit <= 9; ++digit) {
      if (main.Mark(digit)(cell).visible) {
        seen.marks[cell] = static_cast<CandidateMask>(seen.marks[cell] | DigitBit(digit));
      }
    }
  }
  seen.in_play = InPlay(main);
  seen.end = main.end;
  if (main.LabelHint.visible) seen.hint = main.LabelHint.tag;
  seen.steps = main.LabelStap.caption;
  return seen;
}

// The cell whose digit came or went, else the one that lost or got marks; with several of them it was no
// single step.
News SpokenNews::StepNews(const Seen& before, const Seen& now) {
  int with_digit = -1, with_marks = -1, digits = 0, marks = 0;
  for (int cell = 0; cell < kCells; ++cell) {
    if (now.digits[cell] != before.digits[cell]) {
      ++digits;
      with_digit = cell;
    } else if (now.marks[cell] != before.marks[cell]) {
      ++marks;
      with_marks = cell;
    }
  }
  const std::string steps = now.steps + std::string(now.steps == "1" ? texts::kStep : texts::kSteps);
  if (digits == 1) return {steps, with_digit};
  return {steps, digits == 0 && marks == 1 ? with_marks : -1};
}

News SpokenNews::Since(const MainWindow& main) {
  const std::optional<Seen> before = std::exchange(seen_, Look(main));
  if (!before) return {};
  if (seen_->in_play && !before->in_play) {
    return {main.StatusBar(1).caption + ", " + main.StatusBar(2).caption};
  }
  if (seen_->end != before->end && seen_->end == PuzzleEnd::Solved) {
    return {std::string(texts::kSolvedIn) + main.LabelTijd.caption};
  }
  if (seen_->end != before->end && seen_->end == PuzzleEnd::Revealed) return {std::string(texts::kRevealed)};
  if (seen_->hint != before->hint && !seen_->hint.empty()) {
    const Technique technique = TechniqueOfStep(WholeNumber(seen_->hint).value_or(0));
    if (technique != Technique::None)
      return {std::string(texts::kHintIs) + std::string(RowOf(technique).caption)};
  }
  if (seen_->in_play && seen_->steps != before->steps) return StepNews(*before, *seen_);
  return {};
}

}  // namespace kestrel

// SPDX-License-Identifier: MIT
#include "view/guide.h"

#include "view/play_state.h"
#include "view/texts.h"

namespace kestrel {

Guide GuideFor(const MainWindow& main, const ViewSettings& view, bool marks_are_candidates) {
  Guide guide;
  if (main.end == PuzzleEnd::Solved) {
    guide.line = texts::kSolvedLine;
  } else if (main.end == PuzzleEnd::Revealed) {
    guide.line = texts::kRevealedLine;
  } else if (!view.guide) {
    return guide;
  } else if (!PuzzleOpen(main)) {
    // Behind the start-up panel, and in the moment between two puzzles, Next cannot be pressed.
    guide.card = main.CommandNew.enabled && !main.Picture3.visible;
  } else if (view.marks_clicked < kMarksToLearn) {
    guide.line = marks_are_candidates ? texts::kMarksLine : texts::kKeypadLine;
    guide.can_close = true;
  }
  return guide;
}

void CountMark(ViewSettings& view) {
  if (view.guide && view.marks_clicked < kMarksToLearn) ++view.marks_clicked;
}

}  // namespace kestrel

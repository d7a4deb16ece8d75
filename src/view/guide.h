// SPDX-License-Identifier: MIT
// The first steps: a card while no puzzle is open, and one line under the board that tells how to play. Used
// by the window's front end.
#pragma once

#include <string_view>

#include "forms/main_window.h"
#include "view/view_settings.h"

namespace kestrel {

inline constexpr int kMarksToLearn = 20;  // clicked in this home; then the line is known by heart

struct Guide {
  bool card = false;       // on the board: choose a level, press Next
  std::string_view line;   // under the board; empty: none
  bool can_close = false;  // the line goes for good by a click on its cross

  friend bool operator==(const Guide&, const Guide&) = default;
};

// What is to be shown now. `marks_are_candidates` is that of the open puzzle.
Guide GuideFor(const MainWindow& main, const ViewSettings& view, bool marks_are_candidates);

// A mark was clicked: counts it while that matters.
void CountMark(ViewSettings& view);

}  // namespace kestrel

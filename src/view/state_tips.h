// SPDX-License-Identifier: MIT
// Tooltips that depend on the state of play: why a control does nothing now, and what it would do. Used by
// the window's front end.
#pragma once

#include <string>

#include "forms/main_window.h"

namespace kestrel {

struct TipState {
  bool marks_are_candidates = false;  // of the open puzzle
  int renewing_level = 0;             // 0: none
};

// The tooltip of a control of the main window; empty where its own says all.
std::string StateTip(const MainWindow& main, const TipState& state, ControlId id);

}  // namespace kestrel

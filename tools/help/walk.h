// SPDX-License-Identifier: MIT
// A whole easy puzzle solved on a page, for someone who has never solved one. Used by the site.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/grid.h"
#include "explain/page_parts.h"

namespace kestrel::help {

class Walk {
 public:
  // Solves the puzzle.
  explicit Walk(const DigitGrid& givens);

  // The HTML of a part; pictures go to the files. The parts:
  //
  //   start  the puzzle                     first  the first step, with its reason
  //   run    what follows up to the first naked single
  //   naked  that step, with its reason     end    the rest and the full board
  //
  // Empty for a word that is none, and for every word when the puzzle needs more than singles or has no naked
  // one.
  std::string Part(HelpFiles& files, std::string_view word) const;

 private:
  // The steps from `from` up to `to`, a picture for every few.
  std::string Run(HelpFiles& files, std::size_t from, std::size_t to) const;
  [[nodiscard]] std::string Reasoned(HelpFiles& files, std::size_t step) const;
  // The board after `count` steps, as it looks at this level: what an empty cell shows there is a keypad.
  [[nodiscard]] Example Board(std::size_t count) const;

  std::vector<Example> steps_;  // each the position before it
  std::size_t naked_ = 0;       // the first naked single; 0 when the walk cannot be told
};

}  // namespace kestrel::help

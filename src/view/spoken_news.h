// SPDX-License-Identifier: MIT
// What just happened on the board and beside it, for a player who hears the window instead of seeing it: a
// puzzle opened, a cell changed, a hint, the end. What the keyboard's place says by itself is left out.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "core/grid.h"
#include "forms/main_window.h"

namespace kestrel {

struct News {
  std::string text;  // empty: none
  int cell = -1;     // to be named behind the text as it is now, -1: none
};

class SpokenNews {
 public:
  // What is new since the last call; nothing at the first.
  [[nodiscard]] News Since(const MainWindow& main);

 private:
  struct Seen {
    std::array<std::string, kCells> digits;
    std::array<CandidateMask, kCells> marks{};
    bool in_play = false;
    PuzzleEnd end = PuzzleEnd::None;
    std::string hint;  // its tag, empty while there is none
    std::string steps;
  };

  [[nodiscard]] static Seen Look(const MainWindow& main);
  [[nodiscard]] static News StepNews(const Seen& before, const Seen& now);

  std::optional<Seen> seen_;
};

}  // namespace kestrel

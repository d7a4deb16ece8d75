// SPDX-License-Identifier: MIT
// Renewing the 100 puzzles of a level, one puzzle in each round of the main loop. Used by Game.
//
//   StockStatus   63 idle -> 62 - 2^L renewing level L -> 62 complete, stock written -> 63 idle
#pragma once

#include <optional>

#include "core/random_source.h"
#include "core/yield.h"
#include "forms/asker.h"
#include "forms/main_window.h"
#include "game/stockroom.h"
#include "generator/generator.h"
#include "generator/level_renewal.h"

namespace kestrel {

class Renewal {
 public:
  // All must outlive this object.
  Renewal(Stockroom& stockroom, MainWindow& main, SeedSource& seeds)
      : stockroom_(stockroom), main_(main), generator_(seeds) {}

  // A click on a level's label: asks, then starts to renew it. The selected level cannot be renewed; it is
  // the one in play, if any is.
  void Click(int level, int selected_level, Asker& asker);

  // Makes and rates one puzzle. Nothing when it has not the level that is being renewed, or when the yield
  // said stop.
  [[nodiscard]] std::optional<RatedNewPuzzle> MakePuzzle(Yield& yield);

  // Files a puzzle into its level. True: the stock is complete and is to be saved.
  [[nodiscard]] bool File(const RatedNewPuzzle& puzzle);

  // The stock is complete and the main loop has seen it: the end of start-up or of a renewal.
  void Acknowledge();

 private:
  Stockroom& stockroom_;
  MainWindow& main_;
  Generator generator_;
};

}  // namespace kestrel

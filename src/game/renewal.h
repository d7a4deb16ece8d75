// SPDX-License-Identifier: MIT
// Renewing the 100 puzzles of a level, one puzzle in each round of the main loop. Used by Game.
//
//   StockStatus   63 idle -> 62 - 2^L renewing level L -> 62 complete, stock written -> 63 idle
#pragma once

#include <optional>

#include "game/session.h"
#include "generator/generator.h"
#include "generator/level_renewal.h"

namespace kestrel {

class Renewal {
 public:
  // The session must outlive this object.
  explicit Renewal(Session& session) : session_(session), generator_(session.ports.seeds) {}

  // A click on a level's label: asks, then starts to renew it. The selected level cannot be renewed; it is
  // the one in play, if any is.
  void Click(int level);

  // Makes and rates one puzzle, and keeps it for File when it has the level that is being renewed.
  void MakePuzzle();

  // Forgets the puzzle that MakePuzzle has kept.
  void ForgetPuzzle() { puzzle_.reset(); }

  // Files the kept puzzle, if there is one. After the hundredth the stock is written.
  void File();

  // The stock is complete and the main loop has seen it: the end of start-up or of a renewal.
  void Acknowledge();

 private:
  void EnableLabels(bool enabled);

  Session& session_;
  Generator generator_;
  std::optional<RatedNewPuzzle> puzzle_;  // to be filed
};

}  // namespace kestrel

// SPDX-License-Identifier: MIT
// What a technique found, for whoever explains it: the steps in words, the hints, the help pages.
// The solver fills one only when somebody observes it.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "core/grid.h"

namespace kestrel {

enum class UnitKind : std::uint8_t { Row = 1, Column = 2, Box = 3 };

struct Unit {
  UnitKind kind;
  int index;  // 0..8
  friend bool operator==(const Unit&, const Unit&) = default;
};

// The part that a cell plays in a pattern, in the words of the literature.
enum class Role : std::uint8_t {
  Base,   // belongs to the pattern, no special part (subset cell, fish corner, conjugate end, rectangle
          // corner)
  Pivot,  // XY-Wing, XYZ-Wing
  Wing,   // XY-Wing, XYZ-Wing
  Fin,    // Finned X-Wing
  Floor,  // Unique Rectangle: the corners with just the two digits
  Roof,   // Unique Rectangle, Avoidable Rectangle: the corners that decide
  Link,   // Two-String Kite, Skyscraper, Empty Rectangle: the cells that connect the two ends
};

struct PatternCell {
  int cell;              // 0..80
  CandidateMask digits;  // its digits that matter here (for a solved rectangle corner: its value)
  Role role;
  friend bool operator==(const PatternCell&, const PatternCell&) = default;
};

struct Removal {
  int cell;              // 0..80
  CandidateMask digits;  // the candidates that went, never empty
  friend bool operator==(const Removal&, const Removal&) = default;
};

struct Finding {
  int step = 0;              // 1..22, the technique's row in the technique table plus one
  CandidateMask digits = 0;  // the digits that the pattern is about
  std::vector<PatternCell> pattern;
  std::vector<Unit> units;   // the units in which the pattern lies (a fish: its base lines)
  std::vector<Unit> covers;  // a fish: its cover lines; an intersection: where the removals happen
  int form = 0;          // techniques with several forms number them from 1 (types, passes, cases); else 0
  int placed_cell = -1;  // a single: where ...
  int placed_digit = 0;  // ... and which digit
  std::vector<Removal> removals;  // in ascending cell order; empty for a single
};

}  // namespace kestrel
